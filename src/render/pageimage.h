// The printed page as a picture for the clipboard: the header and the
// puzzle sheet (or, for the solution, the sheet with every letter), cut to
// a size that follows the grid and the screen's cell.
#pragma once

#include <QImage>

#include "render/printedpage.h"

namespace combwise {

// Where the picture draws the page.
inline constexpr int kImageLeft = 0;
inline constexpr int kImageTop = 500;

// The picture's size in twips: (columns + 1) x (screen cell width x 1.4)
// by (rows + 2) x (screen cell height x 1.25).
QSizeF pageImageTwips(const PagePuzzle& puzzle);

// White, at the screen's 96 dots per inch.
QImage pageImage(const PagePuzzle& puzzle, LetterMode letters);

}  // namespace combwise
