// Lays out the printed clue listing.
#include "core/play/printedclues.h"

#include <algorithm>

#include "core/model/text.h"

namespace combwise {
namespace {

constexpr int kColumnIndent = 400;   // the clue text, right of the numbers
constexpr int kColumnRight = 10000;  // where the clue text ends
constexpr int kInsideHeadingDown = 700;
constexpr int kFirstEntryDown = 1000;
constexpr int kEntryGap = 48;
constexpr int kOutsideHeadingGap = 500;
constexpr int kOutsideEntriesGap = 100;

}  // namespace

std::string pageHeader(const ListingBanner& banner, int puzzleNumber) {
  return banner.productName + " Puzzle ..." + banner.makerSite + " - Puz#" + Str(puzzleNumber);
}

std::vector<SheetLine> layOutPrintedClues(const PuzzleState& state, const ListingBanner& banner,
                                          const TextMeasure& wrapMeasure, const SheetLineHeights& heights, int left,
                                          int top, double pageBottom) {
  std::vector<SheetLine> lines;
  int page = 0;
  const auto heightOf = [&](SheetFont font) {
    switch (font) {
      case SheetFont::Header:
        return heights.header;
      case SheetFont::Heading:
        return heights.heading;
      case SheetFont::Text:
        break;
    }
    return heights.text;
  };
  // Each line puts the next one below it by its face's height.
  const auto line = [&](double x, double y, std::string text, SheetFont font) {
    lines.push_back({x, y, std::move(text), font, page});
    return y + heightOf(font);
  };
  const auto header = [&] {
    const double belowHeader = line(left, top, pageHeader(banner, state.PuzzleNumber), SheetFont::Header);
    line(left, belowHeader, state.CollectionPath + " - " + Str(state.PuzzleNumber), SheetFont::Text);
  };
  // Where a continued page's first entry or heading goes: where the first
  // page has its inside heading.
  const double continuedTop = top + kInsideHeadingDown;
  // Starts a new page when `height` more would pass the bottom; returns
  // where the next line goes.
  const auto room = [&](double y, double height) {
    if (y + height <= pageBottom || y <= continuedTop) return y;
    ++page;
    header();
    return continuedTop;
  };

  header();
  const int column = left + kColumnIndent;
  const double columnWidth = kColumnRight - column;
  const int words = std::min(state.WordCount, PuzzleState::kMaxSlots);
  const auto entries = [&](double y, int firstSlot) {
    for (int k = firstSlot; k <= words; k += 2) {
      std::vector<std::string> wrapped =
          WrapText(state.ClueTexts[static_cast<std::size_t>(k)], wrapMeasure, columnWidth);
      // An empty clue still takes the line of its number.
      const double height = std::max<double>(1, static_cast<double>(wrapped.size())) * heights.text;
      y = room(y, height);
      const double numberEnd = line(left, y, clueNumber(k) + ". ", SheetFont::Text);
      double lineY = y;
      for (auto& text : wrapped) lineY = line(column, lineY, std::move(text), SheetFont::Text);
      y = std::max(lineY, numberEnd) + kEntryGap;
    }
    return y;
  };
  line(left, top + kInsideHeadingDown, "INSIDE CLUES:", SheetFont::Heading);
  const double insideEnd = entries(top + kFirstEntryDown, 2);
  // The heading goes to the next page with at least its first entry.
  const double headingTop = room(insideEnd + kOutsideHeadingGap, heights.heading + kOutsideEntriesGap + heights.text);
  const double outsideTop = line(left, headingTop, "OUTSIDE CLUES:", SheetFont::Heading) + kOutsideEntriesGap;
  entries(outsideTop, 1);
  return lines;
}

}  // namespace combwise
