// Style keywords and layout arithmetic of the message box.
#include "core/play/messagebox.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>

namespace combwise {

namespace {

struct Keyword {
  std::string_view word;
  int icon;  // -1 for none
  std::initializer_list<MessageButton> buttons;
};

// "vbnormal" answers 0, "vbcancelok" keeps the Ok-first order of
// "vbokcancel" and "Continue" answers 6 like "Yes": callers depend on these.
const Keyword kKeywords[] = {
    {"vbquestion", 0, {}},
    {"vbexclamation", 1, {}},
    {"vbinformation", 2, {}},
    {"vberror", 3, {}},
    {"vbcritical", 4, {}},
    {"vbhappy", 5, {}},
    {"vbtrash", 6, {}},
    {"vbprint", 7, {}},
    {"vblighton", 8, {}},
    {"vbcustom", 10, {}},
    {"vbok", -1, {{"Ok", 1}}},
    {"vbokonly", -1, {{"Ok", 1}}},
    {"vbnormal", -1, {{"Ok", 0}}},
    {"vbokcancel", -1, {{"Ok", 1}, {"Cancel", 2}}},
    {"vbcancelok", -1, {{"Ok", 1}, {"Cancel", 2}}},
    {"vbcancel", -1, {{"Cancel", 2}}},
    {"vbabort", -1, {{"Abort", 3}}},
    {"vbretry", -1, {{"Retry", 4}}},
    {"vbignore", -1, {{"Ignore", 5}}},
    {"vbabortretryignore", -1, {{"Abort", 3}, {"Retry", 4}, {"Ignore", 5}}},
    {"vbretrycancel", -1, {{"Retry", 4}, {"Cancel", 2}}},
    {"vbyes", -1, {{"Yes", 6}}},
    {"vbno", -1, {{"No", 7}}},
    {"vbyesno", -1, {{"Yes", 6}, {"No", 7}}},
    {"vbyesnocancel", -1, {{"Yes", 6}, {"No", 7}, {"Cancel", 2}}},
    {"vbcontinuecancel", 2, {{"Continue", 6}, {"Cancel", 2}}},
};

bool isBlank(char c) { return c == ' ' || c == '\t'; }

std::string trimmedLower(std::string_view piece) {
  while (!piece.empty() && isBlank(piece.front())) piece.remove_prefix(1);
  while (!piece.empty() && isBlank(piece.back())) piece.remove_suffix(1);
  std::string word(piece);
  std::transform(word.begin(), word.end(), word.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return word;
}

void apply(const Keyword& keyword, MessageStyle& style) {
  if (keyword.icon >= 0) style.icons[keyword.icon] = true;
  for (const MessageButton& button : keyword.buttons) {
    if (static_cast<int>(style.buttons.size()) < kMessageButtonPlaces) style.buttons.push_back(button);
  }
}

}  // namespace

MessageStyle parseMessageStyle(std::string_view style) {
  MessageStyle result;
  std::size_t start = 0;
  while (start <= style.size()) {
    const std::size_t plus = style.find('+', start);
    const std::size_t end = plus == std::string_view::npos ? style.size() : plus;
    const std::string word = trimmedLower(style.substr(start, end - start));
    for (const Keyword& keyword : kKeywords) {
      if (keyword.word == word) {
        apply(keyword, result);
        break;
      }
    }
    start = end + 1;
  }
  if (result.buttons.empty()) result.buttons.push_back({"Ok", 1});
  return result;
}

MessageBoxLayout arrangeMessageBox(const MessageBoxDesign& design, int textHeight, int lastButtonIndex) {
  MessageBoxLayout layout;
  layout.formWidth = 2 * design.labelLeft + design.labelWidth;
  if (3 * design.buttonWidth > layout.formWidth) layout.formWidth = 3 * design.buttonWidth;
  layout.labelHeight = textHeight + 120;
  layout.buttonTop = design.labelTop + layout.labelHeight + 120;
  layout.formHeight = layout.buttonTop + design.buttonHeight + kMessageBoxFrameAllowance;

  const int count = std::clamp(lastButtonIndex, 0, kMessageButtonPlaces - 1) + 1;
  layout.visibleButtons = count;
  int left = (layout.formWidth - count * design.buttonWidth) / 2;
  for (int i = 0; i < count; ++i) {
    layout.buttonLefts[i] = left;
    left += design.buttonWidth;
  }
  return layout;
}

}  // namespace combwise
