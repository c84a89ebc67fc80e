// The clue panel: picinner, a picture taller than its viewport picouter,
// showing the numbered inside and outside clues. Dragging it with the left
// button or turning the mouse wheel scrolls it up and down, never past its
// ends. The two clues of one hexagon can be highlighted and scrolled into
// view; a click (a press and release without a drag) names the clue hit.
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
  // Highlights the inside and outside clue of hexagon `hex` (0 for none)
  // and scrolls them into view.
  void setHighlightedHexagon(int hex);
  int highlightedHexagon() const { return m_highlightHex; }
  void setHighlightColour(const QColor& colour);

 signals:
  // A clue was clicked: its hexagon.
  void clueClicked(int hex);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void scrollTo(int top);
  void showHighlighted();

  const PuzzleState& m_state;
  CluePanel m_panel;
  QFont m_font;
  QColor m_highlight = QColor(255, 222, 128);
  int m_highlightHex = 0;
  int m_dragOffsetY = 0;
  QPoint m_pressedAt;  // where the left button went down, in the viewport
  bool m_pressed = false;
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
