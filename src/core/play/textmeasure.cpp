// Word wrapping against a measuring surface.
#include "core/play/textmeasure.h"

namespace combwise {

std::vector<std::string> WrapText(std::string_view text, const TextMeasure& measure, double width) {
  std::vector<std::string> lines;
  if (text.empty()) return lines;
  const bool hasBreak = text.find_first_of("\r\n") != std::string_view::npos;
  if (!hasBreak && measure.textWidth(text) <= width) {
    lines.emplace_back(text);
    return lines;
  }

  std::string line;
  bool lineOpen = false;  // a line is being built (it may be empty after a break)
  auto endLine = [&] {
    lines.push_back(line);
    line.clear();
    lineOpen = false;
  };
  auto addWord = [&](std::string_view word) {
    if (word.empty()) return;
    if (!lineOpen || line.empty()) {
      line = std::string(word);
      lineOpen = true;
      return;
    }
    std::string candidate = line + " " + std::string(word);
    if (measure.textWidth(candidate) <= width) {
      line = std::move(candidate);
    } else {
      endLine();
      line = std::string(word);
      lineOpen = true;
    }
  };

  std::size_t i = 0;
  while (i < text.size()) {
    const char ch = text[i];
    if (ch == '\r' || ch == '\n') {
      endLine();
      // CR LF is one break.
      if (ch == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
      ++i;
      continue;
    }
    if (ch == ' ') {
      ++i;
      continue;
    }
    std::size_t end = i;
    while (end < text.size() && text[end] != ' ' && text[end] != '\r' && text[end] != '\n') ++end;
    addWord(text.substr(i, end - i));
    i = end;
  }
  if (lineOpen) lines.push_back(line);
  return lines;
}

}  // namespace combwise
