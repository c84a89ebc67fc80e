// Paints the controls of a window from a colour scheme: colour 2 behind
// pictures, labels, check boxes, option buttons, lists and frames, colour 4
// on buttons and text boxes (after the colour 13 override), and colour 3
// behind the window itself unless the scheme's name says "default". Texts
// get black or white, whichever reads better on their background.
//
// A widget may carry the dynamic property "schemeRole": "keep" leaves it
// alone (colour swatches), "picture" paints it with colour 2 like a label.
#pragma once

#include <QColor>

#include "core/files/colourscheme.h"

class QWidget;

namespace combwise {

// A scheme colour (red in the low byte) as a QColor, and back.
QColor toQColor(int colour);
int toSchemeColour(const QColor& colour);

// Black or white, whichever stands out more on the background.
QColor readableTextOn(const QColor& background);

void applyScheme(QWidget* window, const ColourScheme& scheme);

}  // namespace combwise
