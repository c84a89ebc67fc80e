// The main window, Form1: its controls and menus, wired to the commands of
// the game session, which holds every piece of the game's state. A click
// becomes a session call; the result it returns (status, messages, what to
// redraw) is painted here. The window is also the session's host: it asks
// the questions, chooses the files and lets events run.
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <array>
#include <memory>
#include <string>

#include "core/session/gamesession.h"

class QAction;
class QFrame;
class QGroupBox;
class QLabel;
class QListWidget;
class QMenu;
class QTimer;

namespace combwise {

class BoardPicture;
class BoxControl;
class ClickLabel;
class CluePicture;
class ClueViewport;
class FileChooser;
class Prompter;

// How the window asks and chooses files; null members get the real boxes
// and dialogs. Tests pass fakes.
struct WindowServices {
  Prompter* prompter = nullptr;
  FileChooser* files = nullptr;
};

class MainWindow : public QMainWindow, private SessionHost {
  Q_OBJECT

 public:
  explicit MainWindow(std::string programFolder, WindowServices services = {}, QWidget* parent = nullptr);
  ~MainWindow() override;

  GameSession& session() { return m_session; }
  const GameSession& session() const { return m_session; }
  const std::string& programFolder() const { return m_session.programFolder(); }
  const Board& board() const { return m_session.board(); }
  const PuzzleState& puzzle() const { return m_session.puzzle(); }
  const BoardLayout& layout() const { return m_session.layout(); }
  const Settings& settings() const { return m_session.settings(); }
  double boardFontSize() const { return m_session.fontSize(); }
  bool createEnabled() const { return m_session.createEnabled(); }
  bool startedUp() const { return m_session.startedUp(); }

  BoardPicture* boardPicture() const { return m_picture; }
  CluePicture* cluePicture() const { return m_clues; }
  Prompter& prompter() const { return *m_prompter; }
  FileChooser& fileChooser() const { return *m_files; }
  QMenu* fileMenu() const { return m_fileMenu; }
  QMenu* puzzleMenu() const { return m_puzzleMenu; }
  QString statusText() const;
  void setStatus(const QString& text);

  // Shows what a session command returned: repaint, status, messages.
  void paint(const CommandResult& result);
  // Reads puzzle n of a collection and shows it; false when it cannot be read.
  bool showPuzzle(const std::string& path, int n);
  // Opens this collection at puzzle n at start instead of the configured one.
  void setStartCollection(const std::string& path, int n) { m_session.setStartCollection(path, n); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // Construction (mainwindow.cpp).
  void buildControls();
  void buildCommandRow();
  void buildMenus();
  BoxControl* addButton(const QString& name, const QString& caption, const QString& tip);

  // Painting results (windowhost.cpp).
  void paintPuzzle();
  void showSolution(bool shown);
  void updateRecentMenu();
  void moveBoardHome();

  // Play beyond the board's own keys (playwiring.cpp).
  void wirePlay();
  // A menu closed: when the pointer rests on the board, the keys go back
  // to it rather than staying with the menu bar.
  void returnKeysToBoard();
  void addPlayCommands();
  // The puzzle counter with its solved mark, and the timer.
  void paintRecord();
  // The selected cell's hexagon on the board and its clues.
  void paintHighlight();

  // The options window and the look (optionscommands.cpp).
  void editOptions();
  void showHelp();
  void showAbout();
  void paintScheme();
  void applyLook();

  // The session's host (windowhost.cpp).
  int ask(const std::string& prompt, const std::string& style) override;
  bool confirm(const std::string& text) override;
  std::string chooseFile(const FileQuestion& question) override;
  void tell(const Message& message) override;
  void progress(const std::string& status) override;
  void pumpEvents() override;
  void busyChanged() override;
  void pointerBusy(bool busy) override;
  ScreenMeasures measures() const override;

  Prompter* m_prompter = nullptr;
  FileChooser* m_files = nullptr;
  std::unique_ptr<Prompter> m_ownPrompter;
  std::unique_ptr<FileChooser> m_ownFiles;
  GameSession m_session;
  QElapsedTimer m_pumpClock;  // when pending events last ran

  QFrame* m_boardFrame = nullptr;  // Picture5
  BoardPicture* m_picture = nullptr;
  QGroupBox* m_clueFrame = nullptr;  // Frame1
  ClueViewport* m_clueViewport = nullptr;
  CluePicture* m_clues = nullptr;
  QListWidget* m_insideWords = nullptr;   // List2a
  QListWidget* m_outsideWords = nullptr;  // List2b
  QLabel* m_status = nullptr;             // Statx
  QLabel* m_fileLabel = nullptr;
  QLabel* m_dictionaryLabel = nullptr;
  QLabel* m_counter = nullptr;
  ClickLabel* m_sizeLabel = nullptr;
  BoxControl* m_createButton = nullptr;
  BoxControl* m_cancelButton = nullptr;
  QAction* m_createAction = nullptr;
  QAction* m_cancelAction = nullptr;  // Escape while a puzzle is made
  std::array<QAction*, Settings::kRecentFiles> m_recentActions{};
  QAction* m_recentSeparator = nullptr;
  QMenu* m_fileMenu = nullptr;
  QMenu* m_puzzleMenu = nullptr;
  QTimer* m_startTimer = nullptr;  // Timer1
  QLabel* m_timerLabel = nullptr;
  QTimer* m_clockTimer = nullptr;     // the timer label's ticks
  QTimer* m_progressTimer = nullptr;  // saves the player's letters soon after a change
};

}  // namespace combwise
