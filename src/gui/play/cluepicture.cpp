// The clue panel's painting, highlighting, clicks and scrolling.
#include "gui/play/cluepicture.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <QtMath>
#include <algorithm>

#include "core/files/boardoptions.h"
#include "render/boardpainter.h"

namespace combwise {

CluePicture::CluePicture(const PuzzleState& state, QWidget* viewport) : QWidget(viewport), m_state(state) {
  setObjectName("picinner");
  setProperty("schemeRole", "picture");
  setAutoFillBackground(true);
  setCursor(Qt::OpenHandCursor);
  m_font = boardFont(kDefaultBoardFontName, kDefaultBoardFontSize * 0.7);
}

void CluePicture::setClueFont(const QFont& font) {
  m_font = font;
  DrawClues();
}

void CluePicture::DrawClues() {
  const Twips twips = Twips::of(*this);
  const QWidget* viewport = parentWidget();
  const int width = viewport ? viewport->width() : this->width();
  const QtTextMeasure measure(m_font, this, twips);
  m_panel = layOutClues(m_state, measure, width * twips.perPixelX);
  // The picture starts at the top, as tall as its text (and at least the viewport).
  const int height = qRound(m_panel.height / twips.perPixelY);
  setGeometry(0, 0, width, viewport ? qMax(height, viewport->height()) : height);
  showHighlighted();
  update();
}

void CluePicture::setHighlightedHexagon(int hex) {
  if (hex == m_highlightHex) return;
  m_highlightHex = hex;
  showHighlighted();
  update();
}

void CluePicture::setHighlightColour(const QColor& colour) {
  m_highlight = colour;
  update();
}

void CluePicture::showHighlighted() {
  const HexagonClues clues = cluesOfHexagon(m_panel, m_highlightHex);
  const QWidget* viewport = parentWidget();
  if (!viewport || (!clues.inside && !clues.outside)) return;
  const double perPixel = Twips::of(*this).perPixelY;
  // Both clues when they fit together, else the inside one first.
  const ClueSpan& first = clues.inside ? *clues.inside : *clues.outside;
  const ClueSpan& last = clues.outside ? *clues.outside : *clues.inside;
  constexpr int kMargin = 4;
  int top = qFloor(std::min(first.top, last.top) / perPixel) - kMargin;
  int bottom = qCeil(std::max(first.bottom, last.bottom) / perPixel) + kMargin;
  if (bottom - top > viewport->height()) {
    top = qFloor(first.top / perPixel) - kMargin;
    bottom = qCeil(first.bottom / perPixel) + kMargin;
  }
  // Scrolled only as far as needed: a clue already in view stays still.
  const int shownTop = -y();
  const int shownBottom = shownTop + viewport->height();
  if (top < shownTop)
    scrollTo(-top);
  else if (bottom > shownBottom)
    scrollTo(-(bottom - viewport->height()));
}

void CluePicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const HexagonClues clues = cluesOfHexagon(m_panel, m_highlightHex);
  const double perPixel = Twips::of(*this).perPixelY;
  QColor band = m_highlight;
  band.setAlphaF(static_cast<float>(kHighlightOpacity));
  for (const auto& span : {clues.inside, clues.outside}) {
    if (!span) continue;
    const QRectF area(0, span->top / perPixel - 2, width(), (span->bottom - span->top) / perPixel + 4);
    painter.fillRect(area, band);
  }
  paintClues(painter, m_panel, palette().color(QPalette::WindowText), m_font, Twips::of(*this));
}

void CluePicture::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  m_dragOffsetY = qRound(event->position().y());
  m_pressedAt = mapToParent(event->position().toPoint());
  m_pressed = true;
}

void CluePicture::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  scrollTo(mapToParent(event->position().toPoint()).y() - m_dragOffsetY);
}

void CluePicture::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !m_pressed) return;
  m_pressed = false;
  // A drag scrolls; only a press and release in one place is a click. The
  // picture may have scrolled under the pointer, so compare in the viewport.
  const QPoint moved = mapToParent(event->position().toPoint()) - m_pressedAt;
  if (moved.manhattanLength() > QApplication::startDragDistance()) return;
  if (const auto hit = clueAt(m_panel, event->position().y() * Twips::of(*this).perPixelY)) emit clueClicked(hit->hex);
}

void CluePicture::wheelEvent(QWheelEvent* event) {
  scrollTo(y() + event->angleDelta().y() / 4);
  event->accept();
}

void CluePicture::scrollTo(int top) {
  const QWidget* viewport = parentWidget();
  const int lowest = viewport ? qMin(0, viewport->height() - height()) : 0;
  // The picture always covers the viewport: its top stays at or above 0 and
  // its bottom at or below the viewport's.
  move(0, qBound(lowest, top, 0));
}

ClueViewport::ClueViewport(QWidget* parent) : QFrame(parent) {
  setObjectName("picouter");
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
}

void ClueViewport::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  if (m_picture) m_picture->DrawClues();
}

}  // namespace combwise
