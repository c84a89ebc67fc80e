// Draws the booklet's pages.
#include "render/bookletprinter.h"

#include <QPainter>
#include <deque>

#include "core/model/board.h"
#include "core/model/puzzlestate.h"
#include "render/boardpainter.h"

namespace combwise {
namespace {

constexpr double kKeyLetterPoints = 6.5;  // key boards stay readable however small

// A puzzle kept for the whole booklet: the pages are laid out once all
// are loaded, and the keys come back to them at the end.
struct KeptPuzzle {
  Board board;
  PuzzleState state;
  PrintLook look;
  PagePuzzle page() const { return {board, state, look}; }
};

// The cells a board's drawing spans: each hexagon from its top-left cell
// three cells across and two down, its outline reaching half a cell out
// on either side.
struct Span {
  double left = 0;  // in cells from the grid's left edge
  double top = 0;
  double across = 0;
  double down = 0;
};

Span spanOf(const Board& board) {
  if (board.hexCount() == 0) return {0, 0, 1, 1};
  double left = 1e9;
  double right = -1e9;
  double top = 1e9;
  double bottom = -1e9;
  for (int h = 1; h <= board.hexCount(); ++h) {
    left = std::min(left, board.HexCol(h) - 1.5);
    right = std::max(right, board.HexCol(h) + 2.5);
    top = std::min(top, board.HexRow(h) - 1.0);
    bottom = std::max(bottom, board.HexRow(h) + 1.0);
  }
  return {left, top, right - left, bottom - top};
}

BookletPuzzle cluesOf(const PuzzleState& state, const Board& board) {
  const Span span = spanOf(board);
  BookletPuzzle puzzle{state.PuzzleNumber, span.across, span.down, {}, {}};
  for (int h = 1; h <= board.hexCount() && 2 * h <= PuzzleState::kMaxSlots; ++h) {
    puzzle.inside.push_back(state.ClueTexts[static_cast<std::size_t>(2 * h)]);
    puzzle.outside.push_back(state.ClueTexts[static_cast<std::size_t>(2 * h - 1)]);
  }
  return puzzle;
}

struct Faces {
  QFont title{"Arial"};
  QFont heading{"Arial"};
  QFont clue{"Arial"};
  QFont label{"Arial"};
  QFont footer{"Arial"};

  Faces() {
    title.setPointSizeF(12);
    title.setBold(true);
    heading.setPointSizeF(11);
    heading.setBold(true);
    clue.setPointSizeF(10.5);
    label.setPointSizeF(10);
    label.setBold(true);
    footer.setPointSizeF(8);
  }
  const QFont& of(BookletFont face) const {
    switch (face) {
      case BookletFont::Title:
        return title;
      case BookletFont::Heading:
        return heading;
      case BookletFont::Label:
        return label;
      case BookletFont::Footer:
        return footer;
      case BookletFont::Clue:
        break;
    }
    return clue;
  }
};

void drawText(QPainter& painter, Twips twips, const BookletText& text, const QFont& font) {
  painter.setFont(font);
  const QFontMetricsF metrics(font, painter.device());
  const QString line = QString::fromStdString(text.text);
  double x = text.x / twips.perPixelX;
  if (text.align == BookletAlign::Right) x -= metrics.horizontalAdvance(line);
  if (text.align == BookletAlign::Centre) x -= metrics.horizontalAdvance(line) / 2;
  painter.drawText(QPointF(x, text.y / twips.perPixelY + metrics.ascent()), line);
}

}  // namespace

RangeOutcome PrintBooklet(PrintTarget& target, int first, int last, int count, const PageLoader& load,
                          const QString& title, const std::function<void()>& events) {
  RangeOutcome outcome;
  std::deque<KeptPuzzle> kept;  // stable addresses for the pages' references
  std::vector<BookletPuzzle> puzzles;
  for (int n = std::max(first, 1); n <= last && n <= count; ++n) {
    if (const std::optional<PagePuzzle> page = load(n)) {
      kept.push_back({page->board, page->state, page->look});
      puzzles.push_back(cluesOf(page->state, page->board));
    }
    if (events) events();
  }
  QPainter* painter = target.beginDocument();
  if (!painter) return outcome;
  outcome.opened = true;

  const Twips twips = Twips::of(*painter->device());
  const QMarginsF margins = target.printableMargins();
  const BookletPaper paper =
      bookletPaper(painter->device()->width() * twips.perPixelX, painter->device()->height() * twips.perPixelY,
                   margins.left(), margins.top(), margins.right(), margins.bottom());
  const Faces faces;
  const auto height = [&](BookletFont face) {
    return QFontMetricsF(faces.of(face), painter->device()).height() * twips.perPixelY;
  };
  const QtTextMeasure clueMeasure(faces.clue, painter->device(), twips);
  const BookletFaces measures{clueMeasure,
                              height(BookletFont::Title),
                              height(BookletFont::Heading),
                              height(BookletFont::Clue),
                              height(BookletFont::Label),
                              height(BookletFont::Footer)};
  const std::vector<BookletPage> pages = layOutBooklet(puzzles, paper, measures, title.toStdString());

  painter->setRenderHint(QPainter::TextAntialiasing, true);
  for (std::size_t p = 0; p < pages.size(); ++p) {
    // A page that cannot be turned (the file failed) ends the booklet.
    if (p > 0 && !target.newPage()) break;
    const BookletPage& page = pages[p];
    painter->save();
    painter->setPen(QPen(Qt::black, std::max(1.0, 15 / twips.perPixelY)));
    const double ruleY = page.headerRule / twips.perPixelY;
    painter->drawLine(QPointF(paper.printable.x / twips.perPixelX, ruleY),
                      QPointF(paper.printable.right() / twips.perPixelX, ruleY));
    for (const BookletText& text : page.texts) drawText(*painter, twips, text, faces.of(text.font));
    painter->restore();
    for (const BookletBoard& board : page.boards) {
      // The grid's corner lies where the board's drawing starts, less the
      // cells left empty above and to the left of it.
      const KeptPuzzle& puzzle = kept[board.puzzle];
      const Span span = spanOf(puzzle.board);
      const double left = board.box.x - span.left * kPrintCellWidth * board.scale;
      const double top = board.box.y - span.top * kPrintCellHeight * board.scale;
      PrintBoardAt(*painter, puzzle.page(), left, top, board.scale,
                   board.solved ? LetterMode::Solution : LetterMode::Sheet, board.solved ? kKeyLetterPoints : 0);
    }
    if (events) events();
  }
  outcome.printed = static_cast<int>(puzzles.size());
  outcome.written = target.endDocument();
  return outcome;
}

}  // namespace combwise
