// The board picture's painting and input.
#include "gui/play/boardpicture.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "core/play/entry.h"

namespace combwise {

namespace {

// Shape1: a frame in the entry colour over a faint wash of it, so that the
// letter under it stays readable (a filled square would hide it).
class SelectionMarker : public QWidget {
 public:
  explicit SelectionMarker(QWidget* parent) : QWidget(parent) {}
  void setColour(const QColor& colour) {
    m_colour = colour;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QColor wash = m_colour;
    wash.setAlphaF(0.15f);
    const qreal pen = qMax<qreal>(1.0, qMin(width(), height()) / 10.0);
    painter.fillRect(rect(), wash);
    painter.setPen(QPen(m_colour, pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect()).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2));
  }

 private:
  QColor m_colour = Qt::blue;
};

}  // namespace

BoardPicture::BoardPicture(const Board& board, const PuzzleState& state, const BoardLayout& layout, QWidget* parent)
    : QWidget(parent), m_board(board), m_state(state), m_layout(layout), m_marker(new SelectionMarker(this)) {
  setObjectName("Picture1");
  setProperty("schemeRole", "picture");
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent, false);
  m_marker->setObjectName("Shape1");
  m_marker->setProperty("schemeRole", "keep");
  m_marker->setAttribute(Qt::WA_TransparentForMouseEvents);
  m_marker->hide();
}

void BoardPicture::DrawBoard(LetterMode letters) {
  m_view.letters = letters;
  m_marks.clear();
  update();
}

void BoardPicture::setView(const BoardView& view) {
  m_view = view;
  static_cast<SelectionMarker*>(m_marker)->setColour(m_view.colours.entries);
  update();
}

void BoardPicture::setHighlightedHexagon(int hex) {
  if (m_view.highlightHex == hex) return;
  m_view.highlightHex = hex;
  update();
}

void BoardPicture::setMarks(std::vector<SceneLine> marks) {
  m_marks = std::move(marks);
  update();
}

void BoardPicture::applyLayout() {
  const Twips twips{m_layout.TwipsPerPixelX, m_layout.TwipsPerPixelY};
  resize(qRound(m_layout.pictureWidth / twips.perPixelX), qRound(m_layout.pictureHeight / twips.perPixelY));
  const int side = qMax(2, qRound(m_layout.markerSide / twips.perPixelX));
  m_marker->resize(side, side);
  if (m_state.SelRow != 0) showMarkerAt(m_state.SelRow, m_state.SelCol);
}

void BoardPicture::showMarkerAt(int row, int col) {
  const PixelPoint at = markerPosition(m_layout, row, col);
  m_marker->move(qRound(at.x / m_layout.TwipsPerPixelX), qRound(at.y / m_layout.TwipsPerPixelY));
  m_marker->show();
  m_marker->raise();
}

void BoardPicture::hideMarker() { m_marker->hide(); }

void BoardPicture::paintOn(QPainter& painter) const {
  const Twips twips{m_layout.TwipsPerPixelX, m_layout.TwipsPerPixelY};
  const QtTextMeasure measure(m_view.font, painter.device(), twips);
  const SceneOptions options{m_view.letters, m_view.outlineWidth, m_view.shrinkPercent, true, m_view.highlightHex};
  paintBoardScene(painter, buildBoardScene(m_board, m_state, m_layout, options, measure), m_view.colours, m_view.font,
                  twips);
  if (!m_marks.empty()) {
    painter.setRenderHint(QPainter::Antialiasing, true);
    paintLines(painter, m_marks, m_view.colours, twips);
  }
}

void BoardPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  paintOn(painter);
}

void BoardPicture::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) m_dragOffset = event->position().toPoint();
}

void BoardPicture::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) {
    // Dragging moves the whole picture inside its frame, with no limits:
    // "Reset zoom" brings it back.
    move(mapToParent(event->position().toPoint()) - m_dragOffset);
    return;
  }
  emit hovered(event->position().x() * m_layout.TwipsPerPixelX, event->position().y() * m_layout.TwipsPerPixelY);
}

void BoardPicture::hoverAt(const QPoint& at) {
  emit hovered(at.x() * m_layout.TwipsPerPixelX, at.y() * m_layout.TwipsPerPixelY);
}

void BoardPicture::leaveEvent(QEvent* event) {
  emit left();
  QWidget::leaveEvent(event);
}

void BoardPicture::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
    event->ignore();  // leave the window's shortcuts alone
    return;
  }
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
      event->accept();  // acted on when released
      return;
    case Qt::Key_Escape:
      emit typed(27);
      event->accept();
      return;
    default:
      break;
  }
  const QString text = event->text();
  if (text.size() == 1 && text.at(0).unicode() < 256 && text.at(0).unicode() >= 32) {
    emit typed(text.at(0).unicode());
    event->accept();  // every character is swallowed, accepted or not
    return;
  }
  if (event->key() == Qt::Key_Backspace) {
    event->accept();
    return;
  }
  QWidget::keyPressEvent(event);
}

void BoardPicture::keyReleaseEvent(QKeyEvent* event) {
  static const std::pair<int, int> kKeys[] = {{Qt::Key_End, 35}, {Qt::Key_Home, 36},  {Qt::Key_Left, 37},
                                              {Qt::Key_Up, 38},  {Qt::Key_Right, 39}, {Qt::Key_Down, 40}};
  for (const auto& [key, code] : kKeys) {
    if (event->key() == key) {
      emit navigated(code);
      event->accept();
      return;
    }
  }
  QWidget::keyReleaseEvent(event);
}

}  // namespace combwise
