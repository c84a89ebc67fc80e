// The message box's logic without any window: reading the style text that
// names its icons and buttons ("vbquestion+vbyesno"), and laying the box out
// in twips. The window (MsgForm) shows what these compute.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace combwise {

inline constexpr int kMessageIconCount = 11;
inline constexpr int kMessageButtonPlaces = 3;

// Icon places of the box; 9 is a spare picture that no keyword shows.
enum class MessageIcon {
  Question = 0,
  Exclamation = 1,
  Information = 2,
  Error = 3,
  Critical = 4,
  Happy = 5,
  Trash = 6,
  Print = 7,
  LightOn = 8,
  Spare = 9,
  Custom = 10,
};

struct MessageButton {
  std::string caption;
  int result = 0;

  bool operator==(const MessageButton&) const = default;
};

struct MessageStyle {
  std::array<bool, kMessageIconCount> icons{};
  std::vector<MessageButton> buttons;  // never empty, at most three

  bool shows(MessageIcon icon) const { return icons[static_cast<int>(icon)]; }
  // The index of the last button placed, as the layout counts it.
  int lastButtonIndex() const { return static_cast<int>(buttons.size()) - 1; }
};

// Reads a style text: lower-cased, split at every "+", each piece trimmed
// and compared whole with the keywords; unknown pieces are skipped. Icons
// accumulate; buttons are appended in order. Buttons beyond the third place
// are dropped (the first three stay). With no button keyword the box gets
// one "Ok" button with result 1.
MessageStyle parseMessageStyle(std::string_view style);

// The box's design, in twips: where the prompt label stands and how wide it
// is, and the size of every button; textHeight is the prompt's height as
// the form's font draws it, all its lines counted.
struct MessageBoxDesign {
  int labelLeft = 0;
  int labelTop = 0;
  int labelWidth = 0;
  int buttonWidth = 0;
  int buttonHeight = 0;
};

struct MessageBoxLayout {
  int formWidth = 0;
  int formHeight = 0;  // the outer height, title bar and borders included
  int labelHeight = 0;
  int buttonTop = 0;
  std::array<int, kMessageButtonPlaces> buttonLefts{};
  int visibleButtons = 0;
};

// What the form height allows for the window's title bar and borders.
inline constexpr int kMessageBoxFrameAllowance = 600;

// Lays the box out for buttons 0..lastButtonIndex: the form is as wide as
// the label with its left margin on both sides (or three buttons, when
// wider); the label is the text's height + 120; the buttons stand 120 below
// it, touching one another, centred as a row.
MessageBoxLayout arrangeMessageBox(const MessageBoxDesign& design, int textHeight, int lastButtonIndex);

}  // namespace combwise
