// Paints board scenes and the clue panel.
#include "render/boardpainter.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace combwise {

QColor colourOf(int rgbValue) { return QColor(rgbValue & 0xff, (rgbValue >> 8) & 0xff, (rgbValue >> 16) & 0xff); }

QColor BoardColours::of(ColourRole role) const {
  switch (role) {
    case ColourRole::Outline:
      return outline;
    case ColourRole::HexFill:
      return fill;
    case ColourRole::HexNumber:
      return numbers;
    case ColourRole::GivenLetter:
      return given;
    case ColourRole::Entry:
      return entries;
    case ColourRole::Highlight:
      return highlight;
  }
  return Qt::black;
}

Twips Twips::of(const QPaintDevice& device) {
  const int dpiX = device.logicalDpiX() > 0 ? device.logicalDpiX() : 96;
  const int dpiY = device.logicalDpiY() > 0 ? device.logicalDpiY() : 96;
  return {1440.0 / dpiX, 1440.0 / dpiY};
}

QtTextMeasure::QtTextMeasure(const QFont& font, const QPaintDevice* device, Twips twips)
    : m_metrics(font, device), m_twips(twips) {}

double QtTextMeasure::textWidth(std::string_view text) const {
  return m_metrics.horizontalAdvance(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))) *
         m_twips.perPixelX;
}

double QtTextMeasure::textHeight(std::string_view) const { return m_metrics.height() * m_twips.perPixelY; }

QFont boardFont(const QString& family, double pointSize) {
  QFont font(family);
  font.setPointSizeF(pointSize > 0 ? pointSize : 10);
  font.setBold(false);
  return font;
}

namespace {

QPen penFor(const QColor& colour, double width) {
  QPen pen(colour);
  pen.setWidthF(width);
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::MiterJoin);
  return pen;
}

}  // namespace

void paintLines(QPainter& painter, const std::vector<SceneLine>& lines, const BoardColours& colours, Twips twips,
                double penScale) {
  for (const auto& line : lines) {
    painter.setPen(penFor(colours.of(line.colour), line.penWidth * penScale));
    painter.drawLine(QPointF(line.x1 / twips.perPixelX, line.y1 / twips.perPixelY),
                     QPointF(line.x2 / twips.perPixelX, line.y2 / twips.perPixelY));
  }
}

void paintBoardScene(QPainter& painter, const BoardScene& scene, const BoardColours& colours, const QFont& font,
                     Twips twips, double penScale) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  for (const auto& outline : scene.outlines) {
    QPolygonF polygon;
    for (const auto& point : outline.points) polygon << QPointF(point.x, point.y);
    painter.setBrush(colours.fill.alpha() == 0 ? QBrush(Qt::NoBrush) : QBrush(colours.fill));
    painter.setPen(penFor(colours.outline, outline.penWidth * penScale));
    painter.drawPolygon(polygon);
  }
  if (scene.highlight) {
    QPolygonF polygon;
    for (const auto& point : scene.highlight->points) polygon << QPointF(point.x, point.y);
    QColor tint = colours.highlight;
    tint.setAlphaF(static_cast<float>(kHighlightOpacity));
    painter.setBrush(tint);
    painter.setPen(penFor(colours.outline, scene.highlight->penWidth * penScale));
    painter.drawPolygon(polygon);
  }
  painter.setBrush(Qt::NoBrush);
  paintLines(painter, scene.lines, colours, twips, penScale);
  for (const auto& circle : scene.circles) {
    painter.setPen(penFor(colours.of(circle.colour), penScale));
    painter.drawEllipse(QPointF(circle.cx / twips.perPixelX, circle.cy / twips.perPixelY),
                        circle.radius / twips.perPixelX, circle.radius / twips.perPixelX);
  }
  QFont bold = font;
  bold.setBold(true);
  const QFontMetricsF metrics(font, painter.device());
  for (const auto& text : scene.texts) {
    painter.setFont(text.bold ? bold : font);
    painter.setPen(colours.of(text.colour));
    painter.drawText(QPointF(text.x / twips.perPixelX, text.y / twips.perPixelY + metrics.ascent()),
                     QString::fromStdString(text.text));
  }
  painter.restore();
}

void paintClues(QPainter& painter, const CluePanel& panel, const QColor& colour, const QFont& font, Twips twips) {
  painter.save();
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  painter.setFont(font);
  painter.setPen(colour);
  const QFontMetricsF metrics(font, painter.device());
  for (const auto& line : panel.lines) {
    painter.drawText(QPointF(line.x / twips.perPixelX, line.y / twips.perPixelY + metrics.ascent()),
                     QString::fromStdString(line.text));
  }
  painter.restore();
}

}  // namespace combwise
