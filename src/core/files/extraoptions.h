// Settings beyond the ten lines of the configuration file, in a small file
// of their own beside it, "combwise-options.txt": one "key=value" a line
// (CR LF), "#" starting a comment line.
//
//   clean-board=off      start each puzzle with a clean board
//   no-word-twice=off    the generator uses no word twice in a puzzle
//
// Values are "on" or "off" ("yes", "no", "true", "false", "1" and "0" are
// read too). A missing file or key leaves the default (off); a damaged
// line is left out and reported. Lines with keys this version does not
// know are kept as they are and written back, so a newer version's
// settings survive an older one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/files/programfiles.h"
#include "core/model/callbacks.h"

namespace combwise {

inline constexpr std::string_view kExtraOptionsFileName = "combwise-options.txt";

struct ExtraOptions {
  bool cleanBoardEachPuzzle = false;    // "Start each puzzle with a clean board"
  bool noWordTwice = false;             // "No word twice in a puzzle"
  std::vector<std::string> otherLines;  // unknown keys, kept for writing back

  friend bool operator==(const ExtraOptions&, const ExtraOptions&) = default;
};

struct ExtraOptionsRead {
  ExtraOptions options;
  std::vector<std::string> problems;  // each names the file and the line
};

std::string extraOptionsPath(const std::string& programFolder);
// The extra settings where the program writes its files (the user's
// folder of an installed program); they are read and written there.
std::string extraOptionsPath(const ProgramFiles& files);

std::string extraOptionsText(const ExtraOptions& options);
ExtraOptionsRead parseExtraOptions(std::string_view text, const std::string& fileName);

// A missing file reads as the defaults without problems.
ExtraOptionsRead readExtraOptions(const std::string& path);
// Writes through a temporary file renamed over the old one.
Status writeExtraOptions(const std::string& path, const ExtraOptions& options);

}  // namespace combwise
