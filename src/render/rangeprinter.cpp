// Prints a run of puzzle pages.
#include "render/rangeprinter.h"

#include <QPainter>

namespace combwise {

RangeOutcome PrintPuzzleRange(PrintTarget& target, int first, int last, int count, const PageLoader& load,
                              bool withClues, const std::function<void()>& events) {
  RangeOutcome outcome;
  QPainter* painter = target.beginDocument();
  if (!painter) return outcome;
  outcome.opened = true;
  bool pageUsed = false;
  // A page is turned before each new page rather than after the last, so
  // skipped puzzles and an early end leave no blank page behind.
  // A page that cannot be turned (the file failed) ends the run.
  const auto nextPage = [&] {
    const bool turned = !pageUsed || target.newPage();
    pageUsed = true;
    return turned;
  };
  for (int n = std::max(first, 1); n <= last && n <= count; ++n) {
    const std::optional<PagePuzzle> page = load(n);
    if (page) {
      if (!nextPage()) break;
      PrintPuzzle(*painter, *page, kPageLeft, kSheetTop, 0);
      PrintPuzzle(*painter, *page, kPageLeft, kRangeSolvedTop, 1);
      if (withClues) {
        if (!nextPage()) break;
        PrintClueList(*painter, *page, kClueListLeft, kClueListTop, [&] { target.newPage(); });
      }
      ++outcome.printed;
    }
    if (events) events();
  }
  outcome.written = target.endDocument();
  return outcome;
}

}  // namespace combwise
