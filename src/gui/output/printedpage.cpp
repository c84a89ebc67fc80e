// Draws the printed page's boards, header and clue listing.
#include "gui/output/printedpage.h"

#include <QPainter>
#include <algorithm>

#include "core/model/text.h"
#include "core/play/layout.h"
#include "core/play/textmeasure.h"
#include "gui/play/boardpainter.h"

namespace combwise {
namespace {

// A line width unit of 1/192 inch on paper, never thinner than one pixel:
// hairlines vanish on a 600 dpi page and a printer's pixel is tiny.
double paperPenScale(Twips twips) { return std::max(1.0, 7.5 / twips.perPixelX); }

// Black on white: outlines and letters black, the inner lines and hexagon
// numbers grey, no fill.
BoardColours printColours() {
  BoardColours colours;
  colours.outline = Qt::black;
  colours.fill = Qt::transparent;
  colours.numbers = QColor(128, 128, 128);
  colours.given = Qt::black;
  colours.entries = Qt::black;
  return colours;
}

QString text(const std::string& value) { return QString::fromStdString(value); }

// Prints a text with its top at y, as a line of the page; returns the y of
// the next line.
double printLine(QPainter& painter, Twips twips, double x, double y, const QString& line) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  painter.drawText(QPointF(x / twips.perPixelX, y / twips.perPixelY + metrics.ascent()), line);
  return y + metrics.height() * twips.perPixelY;
}

void drawBoard(QPainter& painter, const PagePuzzle& puzzle, int left, int top, int solution, LetterMode letters) {
  const Twips twips = Twips::of(*painter.device());
  const double scale = solution == 1 ? 1.0 / kSolvedBoardScale : 1.0;
  const int cellWidth = static_cast<int>(roundHalfEven(kPrintCellWidth * scale));
  const int cellHeight = static_cast<int>(roundHalfEven(kPrintCellHeight * scale));
  const Board& board = puzzle.board;
  const BoardLayout layout = LayOutBoard({board.size(), board.rows(), board.cols(), cellWidth, cellHeight,
                                          twips.perPixelX, twips.perPixelY, left, top});
  const QFont font = boardFont(puzzle.look.fontName, (puzzle.look.fontSize > 0 ? puzzle.look.fontSize : 10) * scale);
  const QtTextMeasure measure(font, painter.device(), twips);
  const int border = puzzle.look.outlineWidth > 0 ? puzzle.look.outlineWidth : 2;
  // The solved board keeps its numbers too: they tie it to the sheet's clues.
  const SceneOptions options{solution == 1 ? LetterMode::Solution : letters, 2 * border, 0, true};
  const BoardScene scene = buildBoardScene(board, puzzle.state, layout, options, measure);
  paintBoardScene(painter, scene, printColours(), font, twips, paperPenScale(twips) * std::max(scale, 0.5));
}

}  // namespace

QString puzzleHeader(const PagePuzzle& puzzle) {
  const ListingBanner& banner = puzzle.look.banner;
  return text(banner.productName + " Puzzle ..." + banner.makerSite + " - Puz#" + Str(puzzle.state.PuzzleNumber) +
              ":" + puzzle.state.CollectionPath);
}

void PrintPuzzle(QPainter& target, const PagePuzzle& puzzle, int left, int top, int solution,
                 LetterMode sheetLetters) {
  if (puzzle.board.size() < 0) return;
  if (solution == 0) {
    target.save();
    target.setPen(Qt::black);
    target.setFont(boardFont(puzzle.look.fontName, 7));
    printLine(target, Twips::of(*target.device()), left + puzzle.look.screenCellWidth, top - 400,
              puzzleHeader(puzzle));
    target.restore();
  }
  drawBoard(target, puzzle, left, top, solution, sheetLetters);
}

void PrintClueList(QPainter& target, const PagePuzzle& puzzle, int left, int top) {
  const Twips twips = Twips::of(*target.device());
  const PuzzleState& state = puzzle.state;
  const ListingBanner& banner = puzzle.look.banner;
  target.save();
  target.setRenderHint(QPainter::TextAntialiasing, true);
  target.setPen(Qt::black);
  QFont font("Arial");
  font.setPointSizeF(7);
  target.setFont(font);
  double y = printLine(target, twips, left, top,
                       text(banner.productName + " Puzzle ..." + banner.makerSite + " - Puz#" +
                            Str(state.PuzzleNumber)));
  font.setPointSizeF(9);
  target.setFont(font);
  printLine(target, twips, left, y, text(state.CollectionPath + " - " + Str(state.PuzzleNumber)));

  // Clues wrap as the screen board's font measures them, so paper and
  // screen break the same clue at the same words.
  const QtTextMeasure wrapMeasure(puzzle.look.wrapFont, nullptr, Twips{15, 15});
  const int column = left + 400;
  const double columnWidth = 10000 - column;
  const int words = std::min(state.WordCount, PuzzleState::kMaxSlots);
  const auto heading = [&](double at, const char* title) {
    QFont bold = font;
    bold.setBold(true);
    target.setFont(bold);
    const double next = printLine(target, twips, left, at, title);
    target.setFont(font);
    return next;
  };
  const auto entries = [&](double at, int firstSlot) {
    for (int k = firstSlot; k <= words; k += 2) {
      // An empty clue still takes the line of its number.
      const double numberEnd = printLine(target, twips, left, at, text(clueNumber(k) + ". "));
      double lineY = at;
      for (const auto& line : WrapText(state.ClueTexts[k], wrapMeasure, columnWidth))
        lineY = printLine(target, twips, column, lineY, text(line));
      at = std::max(lineY, numberEnd) + 48;
    }
    return at;
  };
  heading(top + 700, "INSIDE CLUES:");
  y = entries(top + 1000, 2);
  y = heading(y + 500, "OUTSIDE CLUES:") + 100;
  entries(y, 1);
  target.restore();
}

}  // namespace combwise
