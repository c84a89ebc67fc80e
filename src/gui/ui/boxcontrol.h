// BoxControl: the owner-drawn push button used on every window. It paints
// its own face from its back colour, caption, font and optional picture, and
// tells its window of a press (a mouse button goes down on it) and of a
// click (the button is released over it), each with the mouse button:
// 1 left, 2 right. Commands that show something only while the button is
// held act on the press and restore on the click.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace combwise {

class BoxControl : public QWidget {
  Q_OBJECT

 public:
  explicit BoxControl(const QString& caption = {}, QWidget* parent = nullptr);

  QString Caption() const { return m_caption; }
  void setCaption(const QString& caption);
  QColor BackColor() const { return m_backColor; }
  void setBackColor(const QColor& colour);
  QColor ForeColor() const { return m_foreColor; }
  void setForeColor(const QColor& colour);
  QPixmap Picture() const { return m_picture; }
  void setPicture(const QPixmap& picture);
  QString ToolTipText1() const { return toolTip(); }
  void setToolTipText1(const QString& text) { setToolTip(text); }

  // Drawn pressed: a mouse button or an activation key is held on it.
  bool isDown() const { return m_down; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A mouse button went down on the control (1 left, 2 right).
  void press(int button);
  // The button went up over the control (1 left, 2 right). Space and Enter
  // on a focused control press and click with the left button.
  void click(int button);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString m_caption;
  QColor m_backColor;
  QColor m_foreColor;
  QPixmap m_picture;
  bool m_down = false;     // drawn pressed
  bool m_keyDown = false;  // Space or Enter went down on this control
};

}  // namespace combwise
