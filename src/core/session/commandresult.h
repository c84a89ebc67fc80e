// What a command of the game session hands back to the window: the status
// text, the messages to show, what to redraw, and whether the window is to
// close. The window shows these in that order of work: repaint first, then
// the status line, then the messages.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace combwise {

// A notice for the user. A style ("vbok+vbcritical") shows it in the
// program's own message box; an empty style in the platform's plain one.
struct Message {
  std::string text;
  std::string style;
  friend bool operator==(const Message&, const Message&) = default;
};

// The parts of the window a command changed. They combine with |.
enum class Redraw : unsigned {
  None = 0,
  Board = 1u << 0,         // the board with the player's letters; verification marks go
  Solution = 1u << 1,      // the board with the solution, and the solution word lists over the clues
  HideSolution = 1u << 2,  // the word lists hidden, the clue frame back to "Clues"
  Marks = 1u << 3,         // the verification crosses over the board
  Marker = 1u << 4,        // the selection marker follows the selection
  Puzzle = 1u << 5,        // a puzzle was read: counter, file name, size, word lists, clues; marker hidden
  Fitted = 1u << 6,        // the board was fitted to its frame: picture home, "Clues", layout
  Layout = 1u << 7,        // the board picture's size and cells
  BoardHome = 1u << 8,     // the board picture back at its start place in the frame
  Font = 1u << 9,          // the board font size (zoom)
  Look = 1u << 10,         // colours, fonts and the scheme from the settings
  Recent = 1u << 11,       // the recent-files menu
  Dictionary = 1u << 12,   // the dictionary's name
  Size = 1u << 13,         // the size to create
  Record = 1u << 14,       // the puzzle counter's solved mark and the timer
};

constexpr Redraw operator|(Redraw a, Redraw b) {
  return static_cast<Redraw>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr Redraw& operator|=(Redraw& a, Redraw b) { return a = a | b; }
// Whether `set` holds any part of `part`.
constexpr bool has(Redraw set, Redraw part) { return (static_cast<unsigned>(set) & static_cast<unsigned>(part)) != 0; }

struct CommandResult {
  std::optional<std::string> status;     // the new status text; nothing leaves it
  std::optional<std::string> statusTip;  // why a read failed (empty after a good read)
  std::vector<Message> messages;
  Redraw redraw = Redraw::None;
  bool close = false;  // the window closes (Exit confirmed)

  // A command that did nothing.
  bool empty() const { return !status && !statusTip && messages.empty() && redraw == Redraw::None && !close; }
  void add(const CommandResult& later);
};

}  // namespace combwise
