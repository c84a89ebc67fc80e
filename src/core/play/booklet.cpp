// Lays out the booklet's pages.
#include "core/play/booklet.h"

#include <algorithm>

namespace combwise {
namespace {

constexpr double kCellWidth = 500;  // the print cell
constexpr double kCellHeight = 833;
constexpr double kHeaderGap = 300;      // below the header's rule, above the footer
constexpr double kBoardGap = 360;       // between the board and its clues
constexpr double kColumnGap = 480;      // between the two clue columns
constexpr double kNumberIndent = 400;   // the clue text, right of its number
constexpr double kEntryGap = 60;        // between two clues
constexpr double kHeadingGap = 80;      // below a column's heading
constexpr double kMinBoardScale = 0.6;  // below this, clues go on to a page of their own
constexpr double kKeyGap = 360;         // between key boards
constexpr double kMinKeyScale = 0.42;   // smallest readable key board

struct Body {
  double top = 0;
  double bottom = 0;
  double height() const { return bottom - top; }
};

// Adds the header and the footer's place to a page; the footer's page
// number is filled in once the pages are counted.
Body frame(BookletPage& page, const BookletPaper& paper, const BookletFaces& faces, const std::string& title,
           const std::string& right) {
  const BookletRect& area = paper.printable;
  page.texts.push_back({area.x, area.y, title, BookletFont::Title, BookletAlign::Left});
  page.texts.push_back({area.right(), area.y, right, BookletFont::Title, BookletAlign::Right});
  page.headerRule = area.y + faces.title + 60;
  return {page.headerRule + kHeaderGap, area.bottom() - faces.footer - kHeaderGap};
}

Body bodyOf(const BookletPaper& paper, const BookletFaces& faces) {
  BookletPage scratch;
  return frame(scratch, paper, faces, {}, {});
}

std::string puzzleLabel(int number) { return "Puzzle " + std::to_string(number); }

// One column's worth of clues: the heading, then each numbered clue wrapped.
struct ClueBlock {
  double height = 0;
  std::vector<BookletText> texts;  // at y relative to the block's top, x relative to the column
};

std::vector<ClueBlock> clueBlocks(const std::string& heading, const std::vector<std::string>& clues,
                                  const BookletFaces& faces, double columnWidth) {
  std::vector<ClueBlock> blocks;
  blocks.push_back({faces.heading + kHeadingGap, {{0, 0, heading, BookletFont::Heading, BookletAlign::Left}}});
  for (std::size_t h = 0; h < clues.size(); ++h) {
    ClueBlock entry;
    entry.texts.push_back({0, 0, std::to_string(h + 1) + ".", BookletFont::Clue, BookletAlign::Left});
    double y = 0;
    for (std::string& line : WrapText(clues[h], faces.clue, columnWidth - kNumberIndent)) {
      entry.texts.push_back({kNumberIndent, y, std::move(line), BookletFont::Clue, BookletAlign::Left});
      y += faces.clueLine;
    }
    entry.height = std::max(y, faces.clueLine) + kEntryGap;
    blocks.push_back(std::move(entry));
  }
  return blocks;
}

double columnHeight(const std::vector<ClueBlock>& blocks) {
  double height = 0;
  for (const ClueBlock& block : blocks) height += block.height;
  return height;
}

}  // namespace

BookletPaper bookletPaper(double width, double height, double marginLeft, double marginTop, double marginRight,
                          double marginBottom) {
  const auto margin = [](double m) { return std::max(m, kBookletMinMargin); };
  BookletPaper paper;
  paper.width = width;
  paper.height = height;
  const double left = margin(marginLeft);
  const double top = margin(marginTop);
  paper.printable = {left, top, std::max(0.0, width - left - margin(marginRight)),
                     std::max(0.0, height - top - margin(marginBottom))};
  return paper;
}

double boardWidth(double across) { return across * kCellWidth; }
double boardHeight(double down) { return down * kCellHeight; }

int keysPerPage(const std::vector<BookletPuzzle>& puzzles, const BookletPaper& paper, const BookletFaces& faces) {
  double down = 0;
  double across = 0;
  for (const BookletPuzzle& puzzle : puzzles) {
    down = std::max(down, puzzle.down);
    across = std::max(across, puzzle.across);
  }
  const Body body = bodyOf(paper, faces);
  for (const auto& [across, down] : {std::pair{2, 3}, std::pair{2, 2}}) {
    const double cellWidth = (paper.printable.width - kKeyGap * (across - 1)) / across;
    const double cellHeight = (body.height() - kKeyGap * (down - 1)) / down - faces.label;
    if (std::min(cellWidth / boardWidth(across), cellHeight / boardHeight(down)) >= kMinKeyScale) return across * down;
  }
  return 2;
}

std::vector<BookletPage> layOutBooklet(const std::vector<BookletPuzzle>& puzzles, const BookletPaper& paper,
                                       const BookletFaces& faces, const std::string& title) {
  std::vector<BookletPage> pages;
  const BookletRect& area = paper.printable;
  const double columnWidth = (area.width - kColumnGap) / 2;

  for (std::size_t index = 0; index < puzzles.size(); ++index) {
    const BookletPuzzle& puzzle = puzzles[index];
    const std::string label = puzzleLabel(puzzle.number);
    pages.emplace_back();
    Body body = frame(pages.back(), paper, faces, title, label);

    const std::vector<ClueBlock> inside = clueBlocks("Inside clues", puzzle.inside, faces, columnWidth);
    const std::vector<ClueBlock> outside = clueBlocks("Outside clues", puzzle.outside, faces, columnWidth);
    const double clues = std::max(columnHeight(inside), columnHeight(outside));
    const double width = boardWidth(puzzle.across);
    const double height = boardHeight(puzzle.down);
    // The board takes the width, or what height the clues leave it; when
    // that makes it too small, the clues go on to the next page.
    double scale = std::min(area.width / width, (body.height() - clues - kBoardGap) / height);
    if (scale < kMinBoardScale) scale = std::min(area.width / width, body.height() * 0.6 / height);
    const BookletRect box{area.x + (area.width - width * scale) / 2, body.top, width * scale, height * scale};
    pages.back().boards.push_back({index, box, scale, false});

    // The clues fill the left column, then the right one, then the next
    // page's; the outside clues start a column of their own.
    int column = 0;
    double y = box.bottom() + kBoardGap;
    double columnTop = y;
    const auto nextColumn = [&] {
      if (++column == 2) {
        column = 0;
        pages.emplace_back();
        body = frame(pages.back(), paper, faces, title, label + " (continued)");
        columnTop = body.top;
      }
      y = columnTop;
    };
    const auto place = [&](const std::vector<ClueBlock>& blocks) {
      for (std::size_t b = 0; b < blocks.size(); ++b) {
        // A heading stays with its first clue.
        const double needed = blocks[b].height + (b == 0 && blocks.size() > 1 ? blocks[1].height : 0);
        // Half a twip of slack: a board sized to leave the clues just their
        // room must not lose the last one to rounding.
        if (y + needed > body.bottom + 0.5 && y > columnTop) {
          nextColumn();
          // A list that goes on in a new column says whose clues these are.
          if (b > 0) {
            const BookletText& heading = blocks[0].texts[0];
            pages.back().texts.push_back({area.x + column * (columnWidth + kColumnGap), y,
                                          heading.text + " (continued)", heading.font, heading.align});
            y += blocks[0].height;
          }
        }
        const double x = area.x + column * (columnWidth + kColumnGap);
        for (const BookletText& text : blocks[b].texts)
          pages.back().texts.push_back({x + text.x, y + text.y, text.text, text.font, text.align});
        y += blocks[b].height;
      }
    };
    place(inside);
    nextColumn();
    place(outside);
  }

  // The answer keys, in a grid of solved boards.
  const int perPage = keysPerPage(puzzles, paper, faces);
  const int across = 2;
  const int down = perPage / across;
  for (std::size_t first = 0; first < puzzles.size(); first += static_cast<std::size_t>(perPage)) {
    pages.emplace_back();
    pages.back().key = true;
    const Body body = frame(pages.back(), paper, faces, title, "Answers");
    const double cellWidth = (area.width - kKeyGap * (across - 1)) / across;
    const double cellHeight = (body.height() - kKeyGap * (down - 1)) / down;
    for (int slot = 0; slot < perPage && first + static_cast<std::size_t>(slot) < puzzles.size(); ++slot) {
      const std::size_t index = first + static_cast<std::size_t>(slot);
      const BookletPuzzle& puzzle = puzzles[index];
      const double cellX = area.x + (slot % across) * (cellWidth + kKeyGap);
      const double cellY = body.top + (slot / across) * (cellHeight + kKeyGap);
      pages.back().texts.push_back(
          {cellX + cellWidth / 2, cellY, puzzleLabel(puzzle.number), BookletFont::Label, BookletAlign::Centre});
      const double width = boardWidth(puzzle.across);
      const double height = boardHeight(puzzle.down);
      const double room = cellHeight - faces.label - 120;
      const double scale = std::min(cellWidth / width, room / height);
      pages.back().boards.push_back(
          {index,
           {cellX + (cellWidth - width * scale) / 2, cellY + faces.label + 120, width * scale, height * scale},
           scale,
           true});
    }
  }

  const std::string count = std::to_string(pages.size());
  for (std::size_t p = 0; p < pages.size(); ++p)
    pages[p].texts.push_back({area.x + area.width / 2, area.bottom() - faces.footer,
                              "Page " + std::to_string(p + 1) + " of " + count, BookletFont::Footer,
                              BookletAlign::Centre});
  return pages;
}

}  // namespace combwise
