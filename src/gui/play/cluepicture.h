// The clue panel: picinner, a picture taller than its viewport picouter,
// showing the numbered inside and outside clues. Dragging it with the left
// button scrolls it up and down, never past its ends.
#pragma once

#include <QFont>
#include <QFrame>
#include <QWidget>

#include "core/model/puzzlestate.h"
#include "core/play/cluepanel.h"

namespace combwise {

class CluePicture : public QWidget {
  Q_OBJECT

 public:
  CluePicture(const PuzzleState& state, QWidget* viewport);

  // Lays the clues out again for the current width and font and repaints.
  void DrawClues();
  void setClueFont(const QFont& font);
  const CluePanel& panel() const { return m_panel; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void scrollTo(int top);

  const PuzzleState& m_state;
  CluePanel m_panel;
  QFont m_font;
  int m_dragOffsetY = 0;
};

// picouter: the viewport; it keeps the clue picture as wide as itself.
class ClueViewport : public QFrame {
  Q_OBJECT

 public:
  explicit ClueViewport(QWidget* parent = nullptr);
  void setPicture(CluePicture* picture) { m_picture = picture; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  CluePicture* m_picture = nullptr;
};

}  // namespace combwise
