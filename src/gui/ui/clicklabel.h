// A label that reports clicks, such as the puzzle size label.
#pragma once

#include <QLabel>
#include <QMouseEvent>

namespace combwise {

class ClickLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

 signals:
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit clicked();
  }
};

}  // namespace combwise
