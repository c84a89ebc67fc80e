// The clue panel's painting and drag scrolling.
#include "gui/play/cluepicture.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

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
  update();
}

void CluePicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paintClues(painter, m_panel, palette().color(QPalette::WindowText), m_font, Twips::of(*this));
}

void CluePicture::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) m_dragOffsetY = qRound(event->position().y());
}

void CluePicture::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  scrollTo(mapToParent(event->position().toPoint()).y() - m_dragOffsetY);
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
