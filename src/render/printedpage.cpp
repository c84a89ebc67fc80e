// Draws the printed page's boards, header and clue listing.
#include "render/printedpage.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

#include "core/model/text.h"
#include "core/play/layout.h"
#include "core/play/printedclues.h"
#include "core/play/textmeasure.h"
#include "render/boardpainter.h"

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

// Prints a text in the painter's font with its top at y.
void printLine(QPainter& painter, Twips twips, double x, double y, const QString& line) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  painter.drawText(QPointF(x / twips.perPixelX, y / twips.perPixelY + metrics.ascent()), line);
}

void drawBoard(QPainter& painter, const PagePuzzle& puzzle, double left, double top, double scale, LetterMode letters,
               double minimumPoints = 0) {
  const Twips twips = Twips::of(*painter.device());
  const int cellWidth = static_cast<int>(roundHalfEven(kPrintCellWidth * scale));
  const int cellHeight = static_cast<int>(roundHalfEven(kPrintCellHeight * scale));
  const Board& board = puzzle.board;
  const BoardLayout layout =
      LayOutBoard({board.size(), board.rows(), board.cols(), cellWidth, cellHeight, twips.perPixelX, twips.perPixelY,
                   static_cast<int>(std::lround(left)), static_cast<int>(std::lround(top))});
  const double points = std::max((puzzle.look.fontSize > 0 ? puzzle.look.fontSize : 10) * scale, minimumPoints);
  const QFont font = boardFont(puzzle.look.fontName, points);
  const QtTextMeasure measure(font, painter.device(), twips);
  const int border = puzzle.look.outlineWidth > 0 ? puzzle.look.outlineWidth : 2;
  // The solved board keeps its numbers too: they tie it to the sheet's clues.
  const SceneOptions options{letters, 2 * border, 0, true};
  const BoardScene scene = buildBoardScene(board, puzzle.state, layout, options, measure);
  paintBoardScene(painter, scene, printColours(), font, twips, paperPenScale(twips) * std::max(scale, 0.5));
}

}  // namespace

QString puzzleHeader(const PagePuzzle& puzzle) {
  return text(pageHeader(puzzle.look.banner, puzzle.state.PuzzleNumber) + ":" + puzzle.state.CollectionPath);
}

void PrintPuzzle(QPainter& target, const PagePuzzle& puzzle, int left, int top, int solution, LetterMode sheetLetters) {
  if (puzzle.board.size() < 0) return;
  if (solution == 0) {
    target.save();
    target.setPen(Qt::black);
    target.setFont(boardFont(puzzle.look.fontName, 7));
    printLine(target, Twips::of(*target.device()), left + puzzle.look.screenCellWidth, top - 400, puzzleHeader(puzzle));
    target.restore();
  }
  drawBoard(target, puzzle, left, top, solution == 1 ? 1.0 / kSolvedBoardScale : 1.0,
            solution == 1 ? LetterMode::Solution : sheetLetters);
}

void PrintBoardAt(QPainter& target, const PagePuzzle& puzzle, double left, double top, double scale, LetterMode letters,
                  double minimumPoints) {
  if (puzzle.board.size() < 0) return;
  drawBoard(target, puzzle, left, top, scale, letters, minimumPoints);
}

void PrintClueList(QPainter& target, const PagePuzzle& puzzle, int left, int top,
                   const std::function<void()>& newPage) {
  const Twips twips = Twips::of(*target.device());
  target.save();
  target.setRenderHint(QPainter::TextAntialiasing, true);
  target.setPen(Qt::black);
  QFont header(kSheetFontFamily);
  header.setPointSizeF(kSheetHeaderPoints);
  QFont body(kSheetFontFamily);
  body.setPointSizeF(kSheetTextPoints);
  QFont heading = body;
  heading.setBold(true);
  const auto fontOf = [&](SheetFont face) -> const QFont& {
    switch (face) {
      case SheetFont::Header:
        return header;
      case SheetFont::Heading:
        return heading;
      case SheetFont::Text:
        break;
    }
    return body;
  };
  // A line is as high as its font on this page's device.
  const auto lineHeight = [&](SheetFont face) {
    target.setFont(fontOf(face));
    return QFontMetricsF(target.font(), target.device()).height() * twips.perPixelY;
  };
  const SheetLineHeights heights{lineHeight(SheetFont::Header), lineHeight(SheetFont::Text),
                                 lineHeight(SheetFont::Heading)};
  // Clues wrap as the screen board's font measures them, so paper and
  // screen break the same clue at the same words.
  const QtTextMeasure wrapMeasure(puzzle.look.wrapFont, nullptr, Twips{15, 15});
  const double pageBottom = newPage ? target.device()->height() * twips.perPixelY - kClueListBottomMargin
                                    : std::numeric_limits<double>::max();
  int page = 0;
  for (const SheetLine& line :
       layOutPrintedClues(puzzle.state, puzzle.look.banner, wrapMeasure, heights, left, top, pageBottom)) {
    for (; page < line.page; ++page) newPage();
    target.setFont(fontOf(line.font));
    printLine(target, twips, line.x, line.y, text(line.text));
  }
  target.restore();
}

}  // namespace combwise
