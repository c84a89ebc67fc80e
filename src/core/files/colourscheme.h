// Colour schemes: the table of 14 colours that paints every window, read by
// name from the scheme file "all.col" (a header line such as "xp.col"
// followed by 13 "red;green;blue" lines for indices 0 to 12). Two loaders
// read it: the options window's and the start-up one; they differ on
// purpose in their message and in the scheme they fall back to. Both return
// what the window should tell the user instead of showing anything.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace combwise {

// A 24-bit RGB colour in an int, red in the low byte.
constexpr int rgb(int red, int green, int blue) { return red | (green << 8) | (blue << 16); }
constexpr int redOf(int colour) { return colour & 0xff; }
constexpr int greenOf(int colour) { return (colour >> 8) & 0xff; }
constexpr int blueOf(int colour) { return (colour >> 16) & 0xff; }

struct ColourScheme {
  static constexpr int kColours = 14;
  static constexpr int kFileColours = 13;  // index 13 is never in the file
  static constexpr int kBackground = 2;    // pictures, labels, lists, frames
  static constexpr int kFormBrush = 3;     // the main window's background
  static constexpr int kButtons = 4;       // buttons and text boxes
  static constexpr int kButtonOverride = 13;

  // Until a scheme is loaded the table holds "xp.col" as shipped, so a
  // missing scheme file still leaves readable windows.
  std::string name = "xp.col";
  std::array<int, kColours> colours{rgb(0, 0, 0),       rgb(255, 255, 255),
                                    rgb(236, 233, 216), rgb(212, 208, 200),
                                    rgb(244, 243, 238), rgb(255, 251, 235),
                                    rgb(0, 84, 227),    rgb(128, 128, 128),
                                    rgb(0, 0, 0),       rgb(0, 0, 160),
                                    rgb(255, 222, 128), rgb(0, 140, 0),
                                    rgb(200, 0, 0),     0};

  int& operator[](int index) { return colours.at(static_cast<std::size_t>(index)); }
  int operator[](int index) const { return colours.at(static_cast<std::size_t>(index)); }

  friend bool operator==(const ColourScheme&, const ColourScheme&) = default;
};

// The scheme file of a program folder (which ends with a separator).
std::string schemeFilePath(const std::string& programFolder);

// The list entry of a scheme file line: the text before the first ".col"
// when the line contains it (also in the middle of other text).
std::optional<std::string> schemeListEntry(std::string_view line);
// Every list entry of a scheme file, in file order; empty when it cannot be read.
std::vector<std::string> schemeList(const std::string& schemeFile);

// One colour line "red;green;blue": each field read as a number and rounded,
// a field that is not a number (or is missing) reads 0, values held to
// 0..255. An empty line has no fields: nullopt.
std::optional<int> parseColourLine(std::string_view line);

// How the search for a scheme ended.
enum class SchemeSearch {
  Complete,  // the header and all 13 colour lines were read
  Stopped,   // the header was found but an empty line or the file's end came early
  NotFound,  // no line equals the name (or the file could not be read)
};

// Gives the next line of a scheme file, nullopt at its end.
using NextLine = std::function<std::optional<std::string>()>;

// Reads lines until one equals `name` exactly, then up to 13 colour lines
// into indices 0 to 12 of `colours`; the indices after a stop keep their
// values. Never fails on any text.
SchemeSearch readScheme(const NextLine& next, const std::string& name,
                        std::array<int, ColourScheme::kColours>& colours);
// The same over a whole scheme file's text (CR LF or LF lines).
SchemeSearch readSchemeText(std::string_view fileText, const std::string& name,
                            std::array<int, ColourScheme::kColours>& colours);

// Colours the "default.col" scheme takes from the windows as designed
// rather than from the file.
struct DesignedColours {
  int listBox = rgb(255, 255, 255);    // indices 2 and 4
  int formBrush = rgb(240, 240, 240);  // index 3
};

// What a loader asks the window to show.
struct SchemeLoad {
  int colour = 0;       // options window: the colour for the picker (index 2, 0 when not found)
  std::string message;  // a notice to show; empty when none
  // With a notice, the scheme file and why the scheme was not in it: the
  // file cannot be read (and why), or it holds no header of that name.
  std::string detail;
};

// The options window's loader. "default.col" (in any case) never opens the
// file: it takes indices 2, 3 and 4 from the designed colours, and so does a
// scheme whose colour lines stop early. A missing scheme gives the notice
// "Color Scheme: NAME not found" for the platform's plain box, the name
// "default.col" and colour 0, the table unchanged. Characters of the name
// that cannot be shown appear as "?" in the notice.
SchemeLoad loadOptionsScheme(const std::string& schemeFile, const std::string& name, ColourScheme& scheme,
                             const DesignedColours& designed);

// The start-up loader: the same reading, but a missing scheme gives
// "Colour Scheme: NAME not found" (for the message box with
// kStartupSchemeStyle) and the name "xp.col", the table unchanged.
SchemeLoad loadStartupScheme(const std::string& schemeFile, const std::string& name, ColourScheme& scheme,
                             const DesignedColours& designed);
inline constexpr std::string_view kStartupSchemeStyle = "vbok+vbcritical";

// What applying a scheme paints, after the button colour override.
struct SchemePaint {
  int background = 0;            // colour 2: pictures, labels, check and option boxes, lists, frames
  int buttons = 0;               // colour 4: buttons and text boxes
  std::optional<int> formBrush;  // colour 3 for the main window; none for a "default" scheme
};

// Settles index 13 against index 4 (13 is 0: 13 := 4; 13 is 1 or more:
// 4 := 13) and tells which colour paints what.
SchemePaint prepareSchemePaint(ColourScheme& scheme);

// False when the upper-cased name contains "DEFAULT": such a scheme keeps
// the main window's designed background.
bool paintsFormBrush(std::string_view schemeName);

}  // namespace combwise
