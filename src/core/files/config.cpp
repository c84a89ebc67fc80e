// Reading and saving the configuration file.
#include "core/files/config.h"

#include <charconv>
#include <optional>

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

// Reads lines 1 to 10 into the settings; false where the file ends early or
// line 5 is not nine numbers.
bool readInto(LineReader& reader, Settings& settings) {
  for (std::string* text :
       {&settings.schemeName, &settings.collectionPath, &settings.dictionaryPath, &settings.boardFontName}) {
    auto line = reader.next();
    if (!line) return false;
    *text = std::move(*line);
  }
  const auto numbers = reader.next();
  if (!numbers) return false;
  std::size_t at = 0;
  for (int* field : numberFields(settings)) {
    const auto value = nextNumber(*numbers, at);
    if (!value) return false;
    *field = *value;
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

void ReadcfgFile(const std::string& programFolder, Settings& settings) {
  {
    LineReader reader(configPath(programFolder));
    readInto(reader, settings);
  }
  if (!fileHasContent(settings.dictionaryPath)) settings.dictionaryPath = defaultDictionaryPath(programFolder);
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
  if (!replaceFileContent(path, content)) return Status::failure("Cannot save the settings to " + path);
  return Status::success();
}

}  // namespace combwise
