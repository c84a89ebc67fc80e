// Lays out the clue panel.
#include "core/play/cluepanel.h"

#include <algorithm>
#include <cmath>

#include "core/files/cluelisting.h"

namespace combwise {

CluePanel layOutClues(const PuzzleState& state, const TextMeasure& measure, double panelWidth) {
  CluePanel panel;
  double y = 0;
  // Each printed text ends its line: the cursor moves down by its height.
  auto print = [&](double x, const std::string& text) {
    panel.lines.push_back({x, y, text});
    y += measure.textHeight(text.empty() ? std::string("W") : text);
  };
  const double wrapWidth = (panelWidth - 20) - kClueColumn;
  auto listSlots = [&](int first) {
    for (int s = first; s <= state.WordCount && s <= PuzzleState::kMaxSlots; s += 2) {
      const double top = std::round(y);
      y = top;
      print(kClueMargin, clueNumber(s) + ". ");
      const double numberBottom = y;
      y = top;
      const auto wrapped = WrapText(state.ClueTexts[static_cast<std::size_t>(s)], measure, wrapWidth);
      for (const auto& line : wrapped) print(kClueColumn, line);
      // A clue without text still keeps its numbered line.
      if (wrapped.empty()) y = numberBottom;
      panel.clues.push_back({s, top, std::max(y, numberBottom)});
      y = std::round(y) + kClueGap;
    }
  };
  print(kClueMargin, "--");
  print(kClueMargin, " INSIDE CLUES:");
  listSlots(2);
  print(kClueMargin, "--");
  print(kClueMargin, " OUTSIDE CLUES:");
  listSlots(1);
  const double last = std::round(y);
  print(kClueMargin, "--");
  panel.height = last + 400;
  return panel;
}

HexagonClues cluesOfHexagon(const CluePanel& panel, int hex) {
  HexagonClues found;
  for (const auto& clue : panel.clues) {
    if (clue.slot == 2 * hex) found.inside = clue;
    if (clue.slot == 2 * hex - 1) found.outside = clue;
  }
  return found;
}

std::optional<ClueHit> clueAt(const CluePanel& panel, double y) {
  for (const auto& clue : panel.clues) {
    if (y >= clue.top && y < clue.bottom + kClueGap) return ClueHit{clue.slot, (clue.slot + 1) / 2, clue.slot % 2 == 0};
  }
  return std::nullopt;
}

}  // namespace combwise
