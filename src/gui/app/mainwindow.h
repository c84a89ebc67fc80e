// The main window, Form1: owns the board geometry and the puzzle state and
// wires the commands to the parts that do the work.
#pragma once

#include <QMainWindow>
#include <string>

#include "core/model/board.h"
#include "core/model/puzzlestate.h"

namespace combwise {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(std::string programFolder, QWidget* parent = nullptr);

  const std::string& programFolder() const { return m_programFolder; }
  const Board& board() const { return m_board; }
  const PuzzleState& puzzle() const { return m_puzzle; }

 private:
  void buildMenus();

  std::string m_programFolder;
  Board m_board;
  PuzzleState m_puzzle;
};

}  // namespace combwise
