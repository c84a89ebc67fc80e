// The message box's pictures and the program's honeycomb logo, drawn as
// vectors so that they are sharp at any size and pixel ratio.
#pragma once

#include <QPixmap>

#include "core/play/messagebox.h"

class QPainter;

namespace combwise {

// A picture of size × size logical pixels at the given device pixel ratio.
QPixmap messageIcon(MessageIcon icon, int size, qreal devicePixelRatio = 1.0);
QPixmap programLogo(int size, qreal devicePixelRatio = 1.0);

// Draws a picture into the square (0, 0, 32, 32) of the painter's current
// coordinates; the painter is scaled to reach other sizes.
void drawMessageIcon(QPainter& painter, MessageIcon icon);
void drawProgramLogo(QPainter& painter);

}  // namespace combwise
