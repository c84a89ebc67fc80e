// Picture1, the board picture: paints the current puzzle, follows the
// pointer with the selection marker (Shape1), takes the player's keys, and
// is dragged about inside its frame (Picture5) with the left button. It
// shows what the window's state holds and reports what the player does;
// the rules live in the core.
#pragma once

#include <QFont>
#include <QWidget>
#include <vector>

#include "core/files/boardoptions.h"
#include "core/model/board.h"
#include "core/model/puzzlestate.h"
#include "core/play/boardscene.h"
#include "core/play/layout.h"
#include "render/boardpainter.h"

namespace combwise {

struct BoardView {
  BoardColours colours;
  QFont font = boardFont(kDefaultBoardFontName, kDefaultBoardFontSize);
  int outlineWidth = kDefaultOutlineWidth;
  int shrinkPercent = 0;
  LetterMode letters = LetterMode::Play;
  int highlightHex = 0;  // the hexagon drawn highlighted; 0 for none
};

class BoardPicture : public QWidget {
  Q_OBJECT

 public:
  BoardPicture(const Board& board, const PuzzleState& state, const BoardLayout& layout, QWidget* parent = nullptr);

  // Redraws in full: the letters of `letters`, and no verification marks.
  void DrawBoard(LetterMode letters);
  void setView(const BoardView& view);
  // Highlights one hexagon over the drawing (0 for none) and repaints.
  void setHighlightedHexagon(int hex);
  const BoardView& view() const { return m_view; }
  // Marks drawn over the board until the next DrawBoard.
  void setMarks(std::vector<SceneLine> marks);
  const std::vector<SceneLine>& marks() const { return m_marks; }

  // Draws the picture as the screen shows it (tests render it into images).
  void paintOn(QPainter& painter) const;

  // The selection marker; hidden while no cell is selected.
  QWidget* marker() const { return m_marker; }
  void showMarkerAt(int row, int col);
  void hideMarker();
  // Reports the pointer resting at `at` (pixels), as a move there would.
  void hoverAt(const QPoint& at);
  // Size and marker size from the layout, in pixels.
  void applyLayout();

 signals:
  // The pointer rests at (x, y) twips on the picture with no button down.
  void hovered(double x, double y);
  // A character key was typed (its character code), or a navigation key
  // was released (its key code as the platform numbers it: 35..40).
  void typed(int code);
  void navigated(int keyCode);
  // The pointer left the picture.
  void left();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  const Board& m_board;
  const PuzzleState& m_state;
  const BoardLayout& m_layout;
  BoardView m_view;
  std::vector<SceneLine> m_marks;
  QWidget* m_marker;
  QPoint m_dragOffset;
};

}  // namespace combwise
