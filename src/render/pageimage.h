// The printed page as a picture for the clipboard: the header and the
// puzzle sheet (or, for the solution, the sheet with every letter), cut to
// what is drawn plus a small white margin, so a small puzzle gives a small
// picture.
#pragma once

#include <QImage>
#include <QPoint>

#include "render/printedpage.h"

namespace combwise {

// Where the page is drawn before it is cut: the header goes 400 above
// the board.
inline constexpr int kImageLeft = 0;
inline constexpr int kImageTop = 500;
// The white border around the drawing, in pixels.
inline constexpr int kImageMargin = 12;

// White, at the screen's dots per inch. `pageOrigin`, when given, receives
// where the page's (0, 0) lies in the picture, in pixels.
QImage pageImage(const PagePuzzle& puzzle, LetterMode letters, QPoint* pageOrigin = nullptr);

}  // namespace combwise
