// Vector drawings of the message box's icons on a 32-unit square.
#include "gui/ui/messageicons.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>

namespace combwise {

namespace {

QPen roundPen(const QColor& colour, qreal width) {
  return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// A disc with a soft top-left highlight and a darker rim.
void disc(QPainter& p, const QColor& colour) {
  QRadialGradient fill(QPointF(12, 10), 20);
  fill.setColorAt(0, colour.lighter(135));
  fill.setColorAt(1, colour);
  p.setPen(QPen(colour.darker(150), 1.2));
  p.setBrush(fill);
  p.drawEllipse(QRectF(2, 2, 28, 28));
}

void questionMark(QPainter& p, const QColor& colour) {
  QPainterPath hook;
  hook.moveTo(11.5, 11.5);
  hook.arcTo(QRectF(11.5, 6.5, 9, 9), 180, -250);
  hook.quadTo(16, 15.5, 16, 19);
  p.setPen(roundPen(colour, 3.2));
  p.setBrush(Qt::NoBrush);
  p.drawPath(hook);
  p.setPen(Qt::NoPen);
  p.setBrush(colour);
  p.drawEllipse(QPointF(16, 24), 2.0, 2.0);
}

void exclamationMark(QPainter& p, const QColor& colour, qreal top, qreal bottom, qreal dotY) {
  p.setPen(roundPen(colour, 3.4));
  p.drawLine(QPointF(16, top), QPointF(16, bottom));
  p.setPen(Qt::NoPen);
  p.setBrush(colour);
  p.drawEllipse(QPointF(16, dotY), 2.0, 2.0);
}

void drawQuestion(QPainter& p) {
  disc(p, QColor(40, 110, 200));
  questionMark(p, Qt::white);
}

void drawExclamation(QPainter& p) {
  QPainterPath triangle;
  triangle.moveTo(16, 3);
  triangle.lineTo(30, 28);
  triangle.lineTo(2, 28);
  triangle.closeSubpath();
  QLinearGradient fill(0, 3, 0, 28);
  fill.setColorAt(0, QColor(255, 224, 90));
  fill.setColorAt(1, QColor(240, 180, 20));
  p.setPen(roundPen(QColor(170, 110, 0), 2.2));
  p.setBrush(fill);
  p.drawPath(triangle);
  exclamationMark(p, QColor(40, 30, 0), 11, 19.5, 24);
}

void drawInformation(QPainter& p) {
  disc(p, QColor(30, 120, 210));
  p.setPen(Qt::NoPen);
  p.setBrush(Qt::white);
  p.drawEllipse(QPointF(16, 9.5), 2.2, 2.2);
  p.setPen(roundPen(Qt::white, 3.6));
  p.drawLine(QPointF(16, 15), QPointF(16, 24));
}

void drawError(QPainter& p) {
  disc(p, QColor(210, 40, 40));
  p.setPen(roundPen(Qt::white, 3.4));
  p.drawLine(QPointF(11, 11), QPointF(21, 21));
  p.drawLine(QPointF(21, 11), QPointF(11, 21));
}

void drawCritical(QPainter& p) {
  QPolygonF octagon;
  for (int i = 0; i < 8; ++i) {
    const double angle = (22.5 + 45.0 * i) * M_PI / 180.0;
    octagon << QPointF(16 + 14.5 * std::cos(angle), 16 + 14.5 * std::sin(angle));
  }
  QLinearGradient fill(0, 2, 0, 30);
  fill.setColorAt(0, QColor(225, 45, 35));
  fill.setColorAt(1, QColor(160, 15, 15));
  p.setPen(roundPen(QColor(110, 0, 0), 1.4));
  p.setBrush(fill);
  p.drawPolygon(octagon);
  p.setPen(roundPen(QColor(255, 255, 255, 170), 1.0));
  p.setBrush(Qt::NoBrush);
  QPolygonF inner;
  for (int i = 0; i < 8; ++i) {
    const double angle = (22.5 + 45.0 * i) * M_PI / 180.0;
    inner << QPointF(16 + 12.5 * std::cos(angle), 16 + 12.5 * std::sin(angle));
  }
  p.drawPolygon(inner);
  exclamationMark(p, Qt::white, 8.5, 18.5, 23.5);
}

void drawHappy(QPainter& p) {
  disc(p, QColor(250, 200, 30));
  const QColor ink(70, 40, 0);
  p.setPen(Qt::NoPen);
  p.setBrush(ink);
  p.drawEllipse(QPointF(11.5, 12.5), 2.0, 2.6);
  p.drawEllipse(QPointF(20.5, 12.5), 2.0, 2.6);
  p.setPen(roundPen(ink, 2.2));
  p.setBrush(Qt::NoBrush);
  p.drawArc(QRectF(8.5, 9, 15, 14), 200 * 16, 140 * 16);
}

void drawTrash(QPainter& p) {
  const QColor edge(60, 70, 80);
  QLinearGradient body(6, 0, 26, 0);
  body.setColorAt(0, QColor(150, 160, 170));
  body.setColorAt(0.45, QColor(215, 222, 228));
  body.setColorAt(1, QColor(130, 140, 150));
  QPainterPath can;
  can.moveTo(7, 9);
  can.lineTo(25, 9);
  can.lineTo(23, 29);
  can.lineTo(9, 29);
  can.closeSubpath();
  p.setPen(roundPen(edge, 1.4));
  p.setBrush(body);
  p.drawPath(can);
  p.setPen(roundPen(edge, 1.2));
  for (qreal x : {12.0, 16.0, 20.0}) p.drawLine(QPointF(x, 12), QPointF(x + (x - 16) * 0.15, 26));
  // The lid and its handle.
  p.setPen(roundPen(edge, 1.4));
  p.setBrush(QColor(175, 185, 195));
  p.drawRoundedRect(QRectF(5, 5.5, 22, 3.5), 1.2, 1.2);
  p.setBrush(Qt::NoBrush);
  p.drawRoundedRect(QRectF(13, 2.5, 6, 3), 1, 1);
}

void drawPrinter(QPainter& p) {
  const QColor edge(55, 60, 70);
  // The sheet waiting at the back.
  p.setPen(roundPen(edge, 1.2));
  p.setBrush(Qt::white);
  p.drawRect(QRectF(9, 3, 14, 10));
  // The body.
  QLinearGradient body(0, 11, 0, 24);
  body.setColorAt(0, QColor(200, 205, 212));
  body.setColorAt(1, QColor(120, 128, 140));
  p.setBrush(body);
  p.drawRoundedRect(QRectF(3, 11, 26, 13), 2.5, 2.5);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(40, 190, 60));
  p.drawEllipse(QPointF(24.5, 15), 1.4, 1.4);
  // The printed sheet coming out, with lines of text.
  p.setPen(roundPen(edge, 1.2));
  p.setBrush(Qt::white);
  p.drawRect(QRectF(8, 19, 16, 11));
  p.setPen(roundPen(QColor(90, 100, 120), 1.0));
  for (qreal y : {22.5, 25.0, 27.5}) p.drawLine(QPointF(10.5, y), QPointF(y == 27.5 ? 17.5 : 21.5, y));
}

void drawLamp(QPainter& p) {
  // The glow and the rays.
  QRadialGradient glow(QPointF(16, 12), 15);
  glow.setColorAt(0, QColor(255, 240, 120, 200));
  glow.setColorAt(1, QColor(255, 240, 120, 0));
  p.setPen(Qt::NoPen);
  p.setBrush(glow);
  p.drawEllipse(QPointF(16, 12), 15, 15);
  p.setPen(roundPen(QColor(235, 170, 0), 1.6));
  for (int i = 0; i < 7; ++i) {
    const double angle = (180 + 30.0 * i) * M_PI / 180.0;
    p.drawLine(QPointF(16 + 11 * std::cos(angle), 12 + 11 * std::sin(angle)),
               QPointF(16 + 14.5 * std::cos(angle), 12 + 14.5 * std::sin(angle)));
  }
  // The bulb.
  QPainterPath bulb;
  bulb.moveTo(12.5, 21);
  bulb.cubicTo(12.5, 17, 8.5, 15.5, 8.5, 11.5);
  bulb.arcTo(QRectF(8.5, 4, 15, 15), 180, -180);
  bulb.cubicTo(23.5, 15.5, 19.5, 17, 19.5, 21);
  bulb.closeSubpath();
  QRadialGradient fill(QPointF(14, 9), 10);
  fill.setColorAt(0, QColor(255, 255, 230));
  fill.setColorAt(1, QColor(255, 215, 40));
  p.setPen(roundPen(QColor(190, 130, 0), 1.3));
  p.setBrush(fill);
  p.drawPath(bulb);
  // The screw base.
  p.setPen(roundPen(QColor(70, 75, 85), 1.1));
  p.setBrush(QColor(160, 165, 175));
  p.drawRoundedRect(QRectF(12.5, 21, 7, 6), 1, 1);
  p.drawLine(QPointF(12.5, 23), QPointF(19.5, 23));
  p.drawLine(QPointF(12.5, 25), QPointF(19.5, 25));
  p.setBrush(QColor(70, 75, 85));
  p.drawRoundedRect(QRectF(14, 27, 4, 2.5), 1, 1);
}

QPolygonF hexagon(QPointF centre, qreal radius) {
  QPolygonF shape;
  for (int i = 0; i < 6; ++i) {
    const double angle = (30 + 60.0 * i) * M_PI / 180.0;
    shape << QPointF(centre.x() + radius * std::cos(angle), centre.y() + radius * std::sin(angle));
  }
  return shape;
}

void drawSpare(QPainter& p) {
  QLinearGradient fill(0, 4, 0, 28);
  fill.setColorAt(0, QColor(120, 200, 120));
  fill.setColorAt(1, QColor(50, 140, 60));
  p.setPen(roundPen(QColor(30, 90, 40), 1.6));
  p.setBrush(fill);
  p.drawPolygon(hexagon(QPointF(16, 16), 13.5));
  p.setPen(roundPen(Qt::white, 3.0));
  p.drawPolyline(QPolygonF{QPointF(10, 16.5), QPointF(14.5, 21), QPointF(22, 11)});
}

}  // namespace

void drawProgramLogo(QPainter& p) {
  // Seven cells of a honeycomb, the middle one darker.
  const qreal radius = 5.6;
  const qreal step = radius * std::sqrt(3.0);
  QList<QPointF> centres{QPointF(16, 16)};
  for (int i = 0; i < 6; ++i) {
    const double angle = (60.0 * i) * M_PI / 180.0;
    centres << QPointF(16 + step * std::cos(angle), 16 + step * std::sin(angle));
  }
  for (int i = 0; i < centres.size(); ++i) {
    QLinearGradient fill(0, centres[i].y() - radius, 0, centres[i].y() + radius);
    const QColor colour = i == 0 ? QColor(214, 120, 10) : QColor(250, 190, 40);
    fill.setColorAt(0, colour.lighter(118));
    fill.setColorAt(1, colour);
    p.setPen(roundPen(QColor(110, 60, 0), 1.1));
    p.setBrush(fill);
    p.drawPolygon(hexagon(centres[i], radius - 0.35));
  }
}

void drawMessageIcon(QPainter& painter, MessageIcon icon) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  switch (icon) {
    case MessageIcon::Question:
      drawQuestion(painter);
      break;
    case MessageIcon::Exclamation:
      drawExclamation(painter);
      break;
    case MessageIcon::Information:
      drawInformation(painter);
      break;
    case MessageIcon::Error:
      drawError(painter);
      break;
    case MessageIcon::Critical:
      drawCritical(painter);
      break;
    case MessageIcon::Happy:
      drawHappy(painter);
      break;
    case MessageIcon::Trash:
      drawTrash(painter);
      break;
    case MessageIcon::Print:
      drawPrinter(painter);
      break;
    case MessageIcon::LightOn:
      drawLamp(painter);
      break;
    case MessageIcon::Spare:
      drawSpare(painter);
      break;
    case MessageIcon::Custom:
      drawProgramLogo(painter);
      break;
  }
  painter.restore();
}

namespace {

template <typename Draw>
QPixmap rendered(int size, qreal ratio, Draw draw) {
  QPixmap pixmap(QSize(size, size) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 32.0, size / 32.0);
  draw(painter);
  return pixmap;
}

}  // namespace

QPixmap messageIcon(MessageIcon icon, int size, qreal devicePixelRatio) {
  return rendered(size, devicePixelRatio, [icon](QPainter& painter) { drawMessageIcon(painter, icon); });
}

QPixmap programLogo(int size, qreal devicePixelRatio) {
  return rendered(size, devicePixelRatio, [](QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    drawProgramLogo(painter);
  });
}

}  // namespace combwise
