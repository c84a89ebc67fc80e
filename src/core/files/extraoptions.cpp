// Reading and writing the extra options file.
#include "core/files/extraoptions.h"

#include <cerrno>
#include <filesystem>

#include "core/files/textfile.h"
#include "core/model/text.h"

namespace combwise {

namespace {

constexpr std::size_t kMaxLines = 1000;
constexpr std::size_t kMaxLineLength = 1000;

struct Key {
  std::string_view name;
  bool ExtraOptions::*flag;
};
constexpr Key kKeys[] = {{"clean-board", &ExtraOptions::cleanBoardEachPuzzle},
                         {"no-word-twice", &ExtraOptions::noWordTwice}};

std::optional<bool> switchValue(std::string_view value) {
  for (std::string_view on : {"on", "yes", "true", "1"}) {
    if (equalsIgnoreCase(value, on)) return true;
  }
  for (std::string_view off : {"off", "no", "false", "0"}) {
    if (equalsIgnoreCase(value, off)) return false;
  }
  return std::nullopt;
}

}  // namespace

std::string extraOptionsPath(const std::string& programFolder) {
  return programFolder + std::string(kExtraOptionsFileName);
}

std::string extraOptionsPath(const ProgramFiles& files) { return files.writePath(kExtraOptionsFileName); }

std::string extraOptionsText(const ExtraOptions& options) {
  std::string text;
  for (const auto& key : kKeys) text += std::string(key.name) + "=" + (options.*key.flag ? "on" : "off") + "\r\n";
  for (const auto& line : options.otherLines) text += line + "\r\n";
  return text;
}

ExtraOptionsRead parseExtraOptions(std::string_view text, const std::string& fileName) {
  ExtraOptionsRead read;
  std::size_t number = 0;
  while (!text.empty() && number < kMaxLines) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    ++number;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::string_view content = trimmed(line);
    if (content.empty() || content.front() == '#') continue;
    auto leaveOut = [&](const std::string& why) {
      read.problems.push_back(fileName + " line " + std::to_string(number) + " left out: " + why);
    };
    const std::size_t equals = content.find('=');
    if (line.size() > kMaxLineLength || equals == std::string_view::npos) {
      leaveOut("not a key=value line");
      continue;
    }
    const std::string_view key = trimmed(content.substr(0, equals));
    const std::string_view value = trimmed(content.substr(equals + 1));
    bool known = false;
    for (const auto& candidate : kKeys) {
      if (key != candidate.name) continue;
      known = true;
      if (const auto on = switchValue(value)) {
        read.options.*candidate.flag = *on;
      } else {
        leaveOut("\"" + std::string(value) + "\" is not on or off");
      }
    }
    if (!known) read.options.otherLines.emplace_back(content);
  }
  if (!text.empty())
    read.problems.push_back(fileName + ": more than " + std::to_string(kMaxLines) + " lines; the rest is left out");
  return read;
}

ExtraOptionsRead readExtraOptions(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::exists(path, error) && !error) return {};
  if (auto reason = unreadableReason(path)) return {{}, {*reason}};
  LineReader reader(path);
  reader.setMaxLineLength(kMaxLineLength);
  std::string text;
  for (std::size_t count = 0; count <= kMaxLines; ++count) {
    const auto line = reader.next();
    if (!line) break;
    text += *line + "\n";
  }
  ExtraOptionsRead read = parseExtraOptions(text, path);
  if (reader.failed() && reader.errorNumber() != 0)
    read.problems.push_back(fileErrorMessage("read", path, reader.errorNumber()));
  return read;
}

Status writeExtraOptions(const std::string& path, const ExtraOptions& options) {
  if (!replaceFileContent(path, extraOptionsText(options)))
    return Status::failure(fileErrorMessage("save", path, errno));
  return Status::success();
}

}  // namespace combwise
