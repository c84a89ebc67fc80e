// The main window, Form1: owns the board geometry, the puzzle state, the
// settings, the colour scheme and the word data, and wires every command
// to the part that does the work. Its commands live in several files by
// responsibility: construction, start-up and settings, collections, play,
// and puzzle creation.
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>
#include <array>
#include <memory>
#include <string>

#include "core/files/colourscheme.h"
#include "core/files/config.h"
#include "core/files/dictionary.h"
#include "core/files/errorlog.h"
#include "core/files/puzzlefile.h"
#include "core/generator/puzzlemaker.h"
#include "core/model/board.h"
#include "core/model/puzzlestate.h"
#include "core/model/random.h"
#include "core/play/layout.h"
#include "core/play/verify.h"

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

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(std::string programFolder, WindowServices services = {}, QWidget* parent = nullptr);
  ~MainWindow() override;

  const std::string& programFolder() const { return m_programFolder; }
  const Board& board() const { return m_board; }
  const PuzzleState& puzzle() const { return m_puzzle; }
  PuzzleState& puzzle() { return m_puzzle; }
  const BoardLayout& layout() const { return m_layout; }
  const Settings& settings() const { return m_settings; }
  Settings& settings() { return m_settings; }
  const ColourScheme& scheme() const { return m_scheme; }
  ColourScheme& scheme() { return m_scheme; }
  double boardFontSize() const { return m_fontSize; }
  BoardPicture* boardPicture() const { return m_picture; }
  CluePicture* cluePicture() const { return m_clues; }
  Prompter& prompter() const { return *m_prompter; }
  FileChooser& fileChooser() const { return *m_files; }
  QMenu* fileMenu() const { return m_fileMenu; }
  QMenu* puzzleMenu() const { return m_puzzleMenu; }
  QString statusText() const;
  void setStatus(const QString& text);
  // Whether the create command is enabled: false while a puzzle is made or
  // the dictionary read, when the file and play commands do nothing.
  bool createEnabled() const;
  void setCreateEnabled(bool enabled);
  // Reads a dictionary and makes it the one in use.
  void readDictionary(const std::string& path);
  // The size the next created puzzle will have.
  void showSize(int size);
  // The start-up step the timer runs once; true when it has run.
  bool startedUp() const { return m_startedUp; }

  // Loads puzzle n of a collection (its count already in the state) and
  // shows it; false, with the state unchanged, when it cannot be read.
  bool showPuzzle(const std::string& path, int n);
  // Opens this collection at puzzle n at start instead of the configured one.
  void setStartCollection(const std::string& path, int n);
  // Repaints the board and clues after the settings or the scheme changed.
  void applyLook();

  // Commands, public so that other windows and tests can run them.
  void loadPuzzleFile();
  void savePuzzle();
  void arrowClicked(int index, int mouseButton);
  void recentFileChosen(int index);
  void exitCommand();
  void saveOptions();
  void createPuzzle();
  void cancelCreation();
  void loadDictionaryCommand();
  void undoClicked(int mouseButton);
  void resetPuzzle();
  void verifyPressed();
  void verifyReleased();
  void showSolutionPressed();
  void showSolutionReleased();
  void zoomClicked(int index);
  void sizeLabelClicked();
  void editOptions();
  void showHelp();
  void showAbout();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  // Construction (mainwindow.cpp).
  void buildControls();
  void buildMenus();
  BoxControl* addButton(const QString& name, const QString& caption, const QString& tip);

  // Start-up and settings (startup.cpp).
  void startUp();
  void startTimerTick();
  void updateRecentMenu();
  // Paints this window and the message box from the colour scheme.
  void paintScheme();

  // After a puzzle was read or made: the counter, labels, word lists, the
  // layout when the board was set up again, the board and the clues.
  void puzzleShown(const PuzzleReadResult& read);
  void fitBoard();
  void relayout(int cellWidth, int cellHeight);
  ClueSource clueSource();
  void pumpEvents();

  std::string m_programFolder;
  Prompter* m_prompter = nullptr;
  FileChooser* m_files = nullptr;
  std::unique_ptr<Prompter> m_ownPrompter;
  std::unique_ptr<FileChooser> m_ownFiles;

  Board m_board;
  PuzzleState m_puzzle;
  BoardLayout m_layout;
  Settings m_settings;
  ColourScheme m_scheme;
  ErrorLog m_errorLog;
  Dictionary m_dictionary;
  Meanings m_meanings;
  PuzzleMaker m_maker;
  RandomSource m_random;
  int m_fitWidth = 225;
  int m_fitHeight = 375;
  int m_laidOutSize = -1;  // the size the layout was fitted for
  double m_fontSize = 10;
  bool m_startedUp = false;
  bool m_cancelRequested = false;
  bool m_creating = false;
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
};

}  // namespace combwise
