// BoxControl: face painting, mouse and key handling of the owner-drawn button.
#include "gui/ui/boxcontrol.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace combwise {

namespace {

// The mouse button as the window's handlers number it: 1 left, 2 right,
// 4 middle; 0 for any other.
int buttonNumber(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    case Qt::MiddleButton:
      return 4;
    default:
      return 0;
  }
}

bool isActivationKey(int key) { return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter; }

QColor mixed(const QColor& a, const QColor& b, double share) {
  return QColor::fromRgbF(a.redF() * (1 - share) + b.redF() * share, a.greenF() * (1 - share) + b.greenF() * share,
                          a.blueF() * (1 - share) + b.blueF() * share);
}

constexpr int kPadding = 6;
constexpr int kPictureGap = 4;

}  // namespace

BoxControl::BoxControl(const QString& caption, QWidget* parent)
    : QWidget(parent),
      m_caption(caption),
      m_backColor(palette().color(QPalette::Button)),
      m_foreColor(palette().color(QPalette::ButtonText)) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void BoxControl::setCaption(const QString& caption) {
  if (caption == m_caption) return;
  m_caption = caption;
  updateGeometry();
  update();
}

void BoxControl::setBackColor(const QColor& colour) {
  m_backColor = colour;
  update();
}

void BoxControl::setForeColor(const QColor& colour) {
  m_foreColor = colour;
  update();
}

void BoxControl::setPicture(const QPixmap& picture) {
  m_picture = picture;
  updateGeometry();
  update();
}

QSize BoxControl::sizeHint() const {
  const QFontMetrics metrics(font());
  int width = metrics.horizontalAdvance(m_caption);
  int height = metrics.height();
  if (!m_picture.isNull()) {
    const QSize picture = m_picture.deviceIndependentSize().toSize();
    width += picture.width() + (m_caption.isEmpty() ? 0 : kPictureGap);
    height = std::max(height, picture.height());
  }
  return {std::max(width + 2 * kPadding + 4, 24), height + 2 * kPadding};
}

QSize BoxControl::minimumSizeHint() const { return {16, QFontMetrics(font()).height() + 4}; }

void BoxControl::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = rect();
  const bool enabled = isEnabled();
  const QColor back = m_backColor.isValid() ? m_backColor : palette().color(QPalette::Button);
  const bool darkFace = back.lightness() < 60;
  const QColor rim = darkFace ? back.lighter(220) : back.darker(165);
  const QColor highlight = darkFace ? back.lighter(160) : back.lighter(125);
  const QColor shadow = back.darker(125);

  // A rim, a soft gradient and a one-pixel bevel: raised at rest, sunk while held.
  QLinearGradient fill(0, 0, 0, face.height());
  fill.setColorAt(0, m_down ? back.darker(112) : back.lighter(106));
  fill.setColorAt(1, m_down ? back.darker(104) : back.darker(106));
  painter.fillRect(face, fill);
  const QRect inner = face.adjusted(1, 1, -1, -1);
  painter.setPen(m_down ? shadow : highlight);
  painter.drawLine(inner.topLeft(), inner.topRight());
  painter.drawLine(inner.topLeft(), inner.bottomLeft());
  if (!m_down) {
    painter.setPen(shadow);
    painter.drawLine(inner.bottomLeft(), inner.bottomRight());
    painter.drawLine(inner.topRight(), inner.bottomRight());
  }
  painter.setPen(rim);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(face.adjusted(0, 0, -1, -1));

  // The contents move one pixel down and right while the button is held.
  QRect content = face.adjusted(kPadding / 2, 2, -kPadding / 2, -2);
  if (m_down) content.translate(1, 1);

  QColor fore = m_foreColor.isValid() ? m_foreColor : palette().color(QPalette::ButtonText);
  if (!enabled) fore = mixed(fore, back, 0.55);

  const QFontMetrics metrics(font());
  const QString caption = metrics.elidedText(m_caption, Qt::ElideRight, content.width());
  int captionWidth = caption.isEmpty() ? 0 : metrics.horizontalAdvance(caption);
  QSize pictureSize;
  if (!m_picture.isNull()) {
    pictureSize = m_picture.deviceIndependentSize().toSize();
    pictureSize.scale(pictureSize.boundedTo(content.size()), Qt::KeepAspectRatio);
  }
  const int gap = (!pictureSize.isEmpty() && captionWidth > 0) ? kPictureGap : 0;
  const int total = pictureSize.width() + gap + captionWidth;
  int x = content.left() + std::max(0, (content.width() - total) / 2);

  if (!pictureSize.isEmpty()) {
    const QRect target(x, content.top() + (content.height() - pictureSize.height()) / 2, pictureSize.width(),
                       pictureSize.height());
    if (!enabled) painter.setOpacity(0.4);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(target, m_picture);
    painter.setOpacity(1.0);
    x += pictureSize.width() + gap;
  }
  if (captionWidth > 0) {
    painter.setPen(fore);
    painter.setFont(font());
    painter.drawText(QRect(x, content.top(), captionWidth, content.height()), Qt::AlignCenter, caption);
  }

  if (hasFocus()) {
    QPen focusPen(fore, 1, Qt::DotLine);
    painter.setPen(focusPen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(face.adjusted(3, 3, -4, -4));
  }
}

void BoxControl::mousePressEvent(QMouseEvent* event) {
  const int button = buttonNumber(event->button());
  if (button == 0) {
    event->ignore();
    return;
  }
  m_down = true;
  update();
  // A box shown by the press takes the mouse, and the release that ends the
  // press goes to the box: the window's blocking says the press is over.
  QPointer<QWidget> top = window();
  top->installEventFilter(this);
  const QPointer<BoxControl> alive(this);
  emit press(button);
  if (alive && top) top->removeEventFilter(this);
}

bool BoxControl::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowBlocked && m_down && !m_keyDown) {
    m_down = false;
    update();
  }
  return QWidget::eventFilter(watched, event);
}

void BoxControl::mouseMoveEvent(QMouseEvent* event) {
  // While a button is held, the face shows whether a release would click.
  if (event->buttons() == Qt::NoButton) return;
  const bool inside = rect().contains(event->position().toPoint());
  if (inside != m_down) {
    m_down = inside;
    update();
  }
}

void BoxControl::mouseReleaseEvent(QMouseEvent* event) {
  const int button = buttonNumber(event->button());
  if (button == 0) {
    event->ignore();
    return;
  }
  m_down = false;
  update();
  if (rect().contains(event->position().toPoint())) emit click(button);
}

void BoxControl::keyPressEvent(QKeyEvent* event) {
  if (!isActivationKey(event->key())) {
    QWidget::keyPressEvent(event);
    return;
  }
  if (event->isAutoRepeat() || m_keyDown) return;
  m_keyDown = true;
  m_down = true;
  update();
  emit press(1);
}

void BoxControl::keyReleaseEvent(QKeyEvent* event) {
  if (!isActivationKey(event->key())) {
    QWidget::keyReleaseEvent(event);
    return;
  }
  // A release whose press went elsewhere (focus moved meanwhile) is no click.
  if (event->isAutoRepeat() || !m_keyDown) return;
  m_keyDown = false;
  m_down = false;
  update();
  emit click(1);
}

void BoxControl::focusOutEvent(QFocusEvent* event) {
  // A key held when the focus leaves never clicks.
  if (m_keyDown) {
    m_keyDown = false;
    m_down = false;
  }
  QWidget::focusOutEvent(event);
}

void BoxControl::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) updateGeometry();
  if (event->type() == QEvent::EnabledChange && !isEnabled()) {
    m_down = false;
    m_keyDown = false;
  }
  update();
  QWidget::changeEvent(event);
}

}  // namespace combwise
