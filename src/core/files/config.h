// The configuration file "combwise.cfg" in the program folder: the colour
// scheme, the collection and puzzle last shown, the dictionary, the board's
// font, colours and outline width, and the recent-files menu. Ten CR LF
// lines; line 5 holds the nine numbers.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/model/callbacks.h"

namespace combwise {

struct RecentFile {
  std::string path;  // the menu caption; kept even while hidden
  bool shown = false;
  friend bool operator==(const RecentFile&, const RecentFile&) = default;
};

struct Settings {
  static constexpr int kRecentFiles = 5;

  std::string schemeName;  // the colour scheme file, "default.col"
  std::string collectionPath;
  std::string dictionaryPath;
  std::string boardFontName;

  // Line 5, in this order.
  int PuzzleNumber = 0;
  int BoardFontSize = 0;
  int OutlineColour = 0;
  int GivenLetterColour = 0;
  int HexNumberColour = 0;
  int EntryColour = 0;
  int HexFillColour = 0;
  int OutlineWidth = 0;
  int schemeColour13 = 0;  // entry 13 of the colour scheme's table

  std::array<RecentFile, kRecentFiles> recentFiles{};  // entry 0 the most recent

  // The separator below the recent files shows when any entry does.
  bool recentSeparatorShown() const;

  friend bool operator==(const Settings&, const Settings&) = default;
};

// The configuration file of a program folder (which ends with a separator).
std::string configPath(const std::string& programFolder);
// The default dictionary of a program folder.
std::string defaultDictionaryPath(const std::string& programFolder);

// Line 5: every number followed by a blank, a non-negative one also
// preceded by one (" 7  10  255 -3 ").
std::string formatNumberLine(const Settings& settings);

// The ranges the options window offers; values read from the file are held
// to them so a damaged file cannot make the board unreadable.
inline constexpr int kMinBoardFontSize = 8;
inline constexpr int kMaxBoardFontSize = 32;
inline constexpr int kMinOutlineWidth = 1;
inline constexpr int kMaxOutlineWidth = 20;
inline constexpr int kMaxColour = 0xFFFFFF;

// What reading the configuration found amiss, for the window to tell if it
// chooses: each note names the file and what was wrong with it. A missing
// file is no fault (the first start has none).
struct ConfigRead {
  std::vector<std::string> notes;
};

// A scheme name the configuration may hold: printable text naming a ".col"
// scheme, not the bytes of a damaged file.
bool isSchemeName(std::string_view name);

// Reads the program folder's configuration into `settings`. A missing or
// damaged file ends the reading where it fails and keeps what was read
// before. A first line that is no scheme name keeps the scheme already set,
// and numbers outside the options window's ranges are held to them.
// Afterwards a dictionary path that names no file or an empty one becomes
// the default dictionary.
ConfigRead ReadcfgFile(const std::string& programFolder, Settings& settings);
// The same with the configuration read from `configFolder` (the user's
// folder of an installed program); the default dictionary stays in the
// program folder.
ConfigRead ReadcfgFile(const std::string& configFolder, const std::string& programFolder, Settings& settings);

// Writes every setting and all five recent-file captions, shown or not. The
// new file replaces the old one only once it is written in full; a failure
// names the file and the cause ("Permission denied").
Status SavecfgFile(const std::string& programFolder, const Settings& settings);

}  // namespace combwise
