// Reading and saving the configuration file.
#include "core/files/config.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <optional>
#include <vector>

#include "core/files/atomicfile.h"
#include "core/files/programfiles.h"
#include "core/files/textfile.h"
#include "core/model/text.h"

namespace combwise {

namespace {

// The settings of line 5 in file order.
template <typename SettingsT>
auto numberFields(SettingsT& s) {
  return std::array{&s.PuzzleNumber, &s.BoardFontSize, &s.OutlineColour, &s.GivenLetterColour, &s.HexNumberColour,
                    &s.EntryColour,  &s.HexFillColour, &s.OutlineWidth,  &s.schemeColour13};
}

bool isSeparator(char c) { return c == ' ' || c == ',' || c == '\t'; }

// The next whole number of a line, skipping blanks and commas before it;
// nothing when the next item is not a whole number that fits.
std::optional<int> nextNumber(std::string_view line, std::size_t& at) {
  while (at < line.size() && isSeparator(line[at])) ++at;
  std::size_t end = at;
  while (end < line.size() && !isSeparator(line[end])) ++end;
  std::string_view item = line.substr(at, end - at);
  at = end;
  if (!item.empty() && item.front() == '+') item.remove_prefix(1);
  int value = 0;
  const auto [stop, error] = std::from_chars(item.data(), item.data() + item.size(), value);
  if (item.empty() || error != std::errc() || stop != item.data() + item.size()) return std::nullopt;
  return value;
}

// What the options window lets each number of line 5 be, in file order.
struct Range {
  int low;
  int high;
  const char* what;
};
constexpr Range kRanges[] = {
    {INT_MIN, INT_MAX, nullptr},  // the puzzle number: its collection decides
    {kMinBoardFontSize, kMaxBoardFontSize, "the letter font size"},
    {0, kMaxColour, "the border colour"},
    {0, kMaxColour, "the fixed letters colour"},
    {0, kMaxColour, "the grid colour"},
    {0, kMaxColour, "the user colour"},
    {0, kMaxColour, "the hexagon fill colour"},
    {kMinOutlineWidth, kMaxOutlineWidth, "the border width"},
    {0, kMaxColour, "the button colour"},
};

// Holds a number read from line 5 to its range, noting the change.
int heldToRange(int value, const Range& range, const std::string& path, std::vector<std::string>& notes) {
  const int held = std::clamp(value, range.low, range.high);
  if (held != value)
    notes.push_back(path + ": " + range.what + " " + NumberText(value) + " is not from " + NumberText(range.low) +
                    " to " + NumberText(range.high) + "; " + NumberText(held) + " is used");
  return held;
}

// Reads lines 1 to 10 into the settings; false where the file ends early or
// line 5 is not nine numbers.
bool readInto(LineReader& reader, Settings& settings, const std::string& path, std::vector<std::string>& notes) {
  auto scheme = reader.next();
  if (!scheme) return false;
  if (isSchemeName(*scheme)) {
    settings.schemeName = std::move(*scheme);
  } else {
    notes.push_back(path + ": line 1 names no colour scheme; " + printableText(settings.schemeName) + " is used");
  }
  for (std::string* text : {&settings.collectionPath, &settings.dictionaryPath, &settings.boardFontName}) {
    auto line = reader.next();
    if (!line) return false;
    *text = std::move(*line);
  }
  const auto numbers = reader.next();
  if (!numbers) return false;
  std::size_t at = 0;
  const auto fields = numberFields(settings);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto value = nextNumber(*numbers, at);
    if (!value) {
      notes.push_back(path + ": line 5 is not nine whole numbers; the rest of the file is not read");
      return false;
    }
    *fields[i] = heldToRange(*value, kRanges[i], path, notes);
  }
  for (auto& recent : settings.recentFiles) {
    const auto line = reader.next();
    if (!line) return false;
    if (trimmed(*line).empty()) {
      recent.shown = false;
    } else {
      recent.path = *line;
      recent.shown = true;
    }
  }
  return true;
}

}  // namespace

bool Settings::recentSeparatorShown() const {
  for (const auto& recent : recentFiles) {
    if (recent.shown) return true;
  }
  return false;
}

std::string configPath(const std::string& programFolder) { return programFolder + kConfigFile; }

std::string defaultDictionaryPath(const std::string& programFolder) { return programFolder + kDefaultDictionaryFile; }

std::string formatNumberLine(const Settings& settings) {
  std::string line;
  for (const int* field : numberFields(settings)) line += Str(*field) + " ";
  return line;
}

bool isSchemeName(std::string_view name) {
  return !name.empty() && name.size() <= 255 && name.find(".col") != std::string_view::npos && isPrintableText(name);
}

ConfigRead ReadcfgFile(const std::string& programFolder, Settings& settings) {
  return ReadcfgFile(programFolder, programFolder, settings);
}

ConfigRead ReadcfgFile(const std::string& configFolder, const std::string& programFolder, Settings& settings) {
  ConfigRead result;
  const std::string path = configPath(configFolder);
  {
    LineReader reader(path);
    readInto(reader, settings, path, result.notes);
    if (reader.failed() && reader.errorNumber() != ENOENT) result.notes.push_back(reader.error());
  }
  if (!fileHasContent(settings.dictionaryPath)) settings.dictionaryPath = defaultDictionaryPath(programFolder);
  return result;
}

Status SavecfgFile(const std::string& programFolder, const Settings& settings) {
  std::string content;
  const auto addLine = [&content](std::string_view line) {
    content += line;
    content += "\r\n";
  };
  addLine(settings.schemeName);
  addLine(settings.collectionPath);
  addLine(settings.dictionaryPath);
  addLine(settings.boardFontName);
  addLine(formatNumberLine(settings));
  for (const auto& recent : settings.recentFiles) addLine(recent.path);
  const std::string path = configPath(programFolder);
  return writeFileAtomically(path, content);
}

}  // namespace combwise
