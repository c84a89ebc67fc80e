// Paints a board scene on any QPainter: the screen board, a printed page,
// a PDF page or the clipboard picture. Lengths come in twips and are turned
// into the device's pixels here, once; the hexagon outlines are already in
// device pixels.
#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>

#include "core/play/boardscene.h"
#include "core/play/cluepanel.h"
#include "core/play/textmeasure.h"

class QPainter;
class QPaintDevice;

namespace combwise {

// A colour of the program's RGB form (red in the low byte).
QColor colourOf(int rgbValue);

// The colours of the board's roles. A transparent fill leaves the page
// white (printing).
struct BoardColours {
  QColor outline = Qt::black;
  QColor fill = Qt::white;
  QColor numbers = Qt::white;
  QColor given = QColor(255, 0, 0);
  QColor entries = QColor(0, 0, 160);
  QColor highlight = QColor(255, 222, 128);  // laid over at kHighlightOpacity

  QColor of(ColourRole role) const;
};

// Twips per device pixel of a paint device, from its logical resolution.
struct Twips {
  double perPixelX = 15;
  double perPixelY = 15;
  static Twips of(const QPaintDevice& device);
};

// Measures texts in twips with a font as a device draws it.
class QtTextMeasure : public TextMeasure {
 public:
  QtTextMeasure(const QFont& font, const QPaintDevice* device, Twips twips);
  double textWidth(std::string_view text) const override;
  double textHeight(std::string_view text) const override;
  double ascent() const { return m_metrics.ascent() * m_twips.perPixelY; }

 private:
  QFontMetricsF m_metrics;
  Twips m_twips;
};

// Lines are drawn `penScale` times their scene width (1 on screen; more on
// a printer whose pixels are tiny).
void paintBoardScene(QPainter& painter, const BoardScene& scene, const BoardColours& colours, const QFont& font,
                     Twips twips, double penScale = 1.0);
void paintLines(QPainter& painter, const std::vector<SceneLine>& lines, const BoardColours& colours, Twips twips,
                double penScale = 1.0);
// The clue panel's text in one colour.
void paintClues(QPainter& painter, const CluePanel& panel, const QColor& colour, const QFont& font, Twips twips);

// A font at a point size that may have fractions (the board font zooms by
// 1.5 points).
QFont boardFont(const QString& family, double pointSize);

}  // namespace combwise
