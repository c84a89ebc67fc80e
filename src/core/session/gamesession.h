// The game session: everything one game window plays with, and its
// commands. It owns the board, the puzzle (with the player's letters,
// selection and undo list), the screen layout and zoom, the settings and
// colour scheme, the word data and meanings, the puzzle maker, the busy
// state and the size of the next created puzzle. Each command checks its
// guards, changes the state and returns what the window shows: status,
// messages, what to redraw. Questions, file choices and event pumping go
// through the SessionHost the window implements.
//
// The commands live in files by responsibility: start-up, settings and
// reading puzzles (gamesession.cpp), collections (collectioncommands.cpp),
// play on the board (playcommands.cpp), making puzzles and the collection
// tools (makecommands.cpp), keyboard play and the player's letters
// (keyboard.cpp), and the progress kept between runs with the puzzle timer
// (progress.cpp).
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/files/boardoptions.h"
#include "core/files/colourscheme.h"
#include "core/files/config.h"
#include "core/files/dictionary.h"
#include "core/files/errorlog.h"
#include "core/files/extraoptions.h"
#include "core/files/programfiles.h"
#include "core/files/progressfile.h"
#include "core/files/puzzlefile.h"
#include "core/generator/puzzlemaker.h"
#include "core/model/board.h"
#include "core/model/puzzlestate.h"
#include "core/model/random.h"
#include "core/play/boardscene.h"
#include "core/play/hexagonjump.h"
#include "core/play/layout.h"
#include "core/play/puzzletimer.h"
#include "core/session/commandresult.h"
#include "core/session/sessionhost.h"

namespace combwise {

// What keeps the session from taking commands. While it reads the
// dictionary, starts up, creates a puzzle or makes a batch, the create
// command is off and the file and play commands do nothing; a randomize
// run only holds back the output commands.
enum class Busy { None, ReadingDictionary, StartingUp, Creating, Batch, Randomizing };

class GameSession {
 public:
  // The program folder ends with a separator. The host must outlive the
  // session. Where the program folder cannot be written, the files the
  // session writes go to the user's folders.
  GameSession(std::string programFolder, SessionHost& host);
  // With the places of the program's files decided by the caller.
  GameSession(ProgramFiles files, SessionHost& host);
  ~GameSession();
  GameSession(const GameSession&) = delete;
  GameSession& operator=(const GameSession&) = delete;

  // --- Start-up (gamesession.cpp) ---
  // The start-up settings, the configuration file, the colour scheme and
  // the empty layout; the window then runs startStep() once.
  CommandResult startUp();
  // Opens this collection at puzzle n instead of the configured one.
  void setStartCollection(const std::string& path, int n);
  // Reads the dictionary and opens the last collection (or the readymade
  // one) at its puzzle.
  CommandResult startStep();
  bool startedUp() const { return m_startedUp; }

  // --- Collections (collectioncommands.cpp) ---
  CommandResult loadCollection();
  CommandResult savePuzzle();
  // Arrow k (0 previous, 1 random, 2 next) released with a mouse button (2 = right).
  CommandResult arrow(int index, int mouseButton);
  CommandResult openRecent(int index);
  CommandResult saveOptions();
  CommandResult exit();

  // --- Play (playcommands.cpp) ---
  // The pointer rests at (x, y) twips on the board picture.
  CommandResult hover(double x, double y);
  // A character typed on the board.
  CommandResult type(int code);
  // A navigation key (35..40 as the platform numbers them) released.
  CommandResult navigate(int keyCode);
  CommandResult undo(int mouseButton);
  CommandResult reset();
  CommandResult verifyPressed();
  CommandResult verifyReleased();
  CommandResult showSolutionPressed();
  CommandResult showSolutionReleased();
  // 0 zoom out, 1 zoom in, 2 reset zoom.
  CommandResult zoom(int index);
  // The first `count` hexagons filled in as a player would have.
  CommandResult revealHexagons(int count);

  // --- Keyboard play and the player's letters (keyboard.cpp) ---
  // The pointer left the board picture: no cell stays selected.
  CommandResult pointerLeft();
  // Tab (Next) and Shift+Tab (Previous): the first open cell of the next
  // or previous hexagon.
  CommandResult stepHexagon(HexStep step);
  // A clue of hexagon `hex` clicked: its first open cell.
  CommandResult selectHexagon(int hex);
  CommandResult redo();
  // The player's letters on the puzzle's cells cleared as one undoable step.
  CommandResult clearLetters();
  // The hexagon of the selected cell; 0 without a selection.
  int selectedHexagon() const;

  // --- Progress, timer and solved records (progress.cpp) ---
  // Writes the progress file when letters, records or the time spent on a
  // puzzle with kept letters changed since the last write. A failed write
  // is reported once a run.
  CommandResult saveProgress();
  bool progressUnsaved() const { return m_progressUnsaved || m_lettersChanged; }
  // The window became active or inactive (minimised counts as inactive):
  // the timer runs only while it is active.
  void windowActive(bool active);
  long long elapsedSeconds() const { return m_timer.elapsedSeconds(); }
  std::string timerText() const { return formatElapsed(m_timer.elapsedSeconds()); }
  bool timerRunning() const { return m_timer.running(); }
  // The solved record of the puzzle shown, if it was ever solved.
  std::optional<SolvedRecord> solvedRecord() const;
  const ExtraOptions& extraOptions() const { return m_extraOptions; }
  // Keeps both play options in their file; the window repaints nothing.
  CommandResult setExtraOptions(bool cleanBoardEachPuzzle, bool noWordTwice);
  // The clock of the puzzle timer (tests drive it by hand).
  void setClock(PuzzleTimer::Clock clock) { m_timer = PuzzleTimer(std::move(clock)); }
  // Where a file of the player's own (progress, play options) is read and
  // written: the program folder, or the user's folder when that one cannot
  // be written.
  std::string playerFilePath(std::string_view name) const;

  // --- Making puzzles and the collection tools (makecommands.cpp) ---
  // The size label's click: the next size of 7, 10, 17, 22.
  CommandResult nextSize();
  CommandResult create();
  // Asks a running creation to stop.
  CommandResult cancelCreation();
  CommandResult chooseDictionary();
  CommandResult readDictionary(const std::string& path);
  CommandResult randomize();
  // Makes the batch; `progress` hears 0 when the run starts and then each
  // appended puzzle's number.
  CommandResult makeBatch(const std::function<void(int made)>& progress);
  void setBatchCount(int count) { m_batchCount = count; }
  int batchCount() const { return m_batchCount; }

  // --- Options and output ---
  CommandResult applyOptions(const OptionsChoice& choice);
  // Whether the output commands may run: idle, with a puzzle shown.
  bool outputReady() const;
  // Whether the print range window may open: output ready and a collection open.
  bool printRangeReady() const;
  // Reads puzzle n of `path` and shows it; false when it cannot be read.
  bool showPuzzle(const std::string& path, int n, CommandResult& result);

  // --- What the window shows ---
  const std::string& programFolder() const { return m_programFolder; }
  const ProgramFiles& files() const { return m_files; }
  // Where the save dialogs start: the user's folder of an installed
  // program, else the program folder.
  std::string saveFolder() const;
  std::string meaningsPath() const;
  const Board& board() const { return m_board; }
  const PuzzleState& puzzle() const { return m_puzzle; }
  const BoardLayout& layout() const { return m_layout; }
  const Settings& settings() const { return m_settings; }
  const ColourScheme& scheme() const { return m_scheme; }
  BoardLook look() const { return boardLook(m_settings); }
  // The board's letter size on screen, which zoom changes.
  double fontSize() const { return m_fontSize; }
  const std::vector<SceneLine>& marks() const { return m_marks; }
  // Whether a puzzle has been shown (the solution word lists hold it).
  bool hasPuzzle() const { return m_hasPuzzle; }
  int sizeToCreate() const { return m_sizeToCreate; }
  Busy busy() const { return m_busy; }
  bool createEnabled() const { return m_busy == Busy::None || m_busy == Busy::Randomizing; }
  bool creating() const { return m_busy == Busy::Creating; }

 private:
  class BusyScope;
  class PointerScope;

  ClueSource clueSource();
  // After a puzzle was read or made: fitted when needed, then shown.
  void puzzleShown(const PuzzleReadResult& read, CommandResult& result);
  // A meanings file that is missing, unreadable or unfit is told once.
  void tellMeaningsFault(const PuzzleReadResult& read, CommandResult& result);
  void fitBoard(CommandResult& result);
  void relayout(int cellWidth, int cellHeight);
  // Reads puzzle 1 of a newly chosen collection of `count` puzzles.
  void openCollection(const std::string& path, int count, CommandResult& result);
  void rememberRecent(const std::string& path, CommandResult& result);
  void setBusy(Busy busy);
  // Progress and play options read at start-up.
  void loadPlayerFiles(CommandResult& result);
  // A puzzle was read: the letters of the one before are kept, the timer
  // starts for a different puzzle, and its letters come back or go as the
  // options say.
  void puzzleChanged(CommandResult& result);
  void keepShownEntries();
  // The puzzle was solved: the timer stops and the solve is recorded.
  void puzzleSolved(CommandResult& result);
  void lettersChanged() { m_lettersChanged = true; }
  // Whether the puzzle shown is one of a collection (not the one just made).
  bool keepsProgress() const;

  std::string m_programFolder;
  SessionHost& m_host;
  ProgramFiles m_files;
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
  std::vector<SceneLine> m_marks;
  int m_fitWidth = 225;
  int m_fitHeight = 375;
  int m_laidOutSize = -1;  // the size the layout was fitted for
  double m_fontSize = kDefaultBoardFontSize;
  int m_sizeToCreate = 7;
  int m_batchCount = kBatchCount;
  Busy m_busy = Busy::None;
  bool m_hasPuzzle = false;
  bool m_startedUp = false;
  bool m_meaningsFaultTold = false;
  bool m_cancelRequested = false;

  ProgressStore m_progress;
  ExtraOptions m_extraOptions;
  PuzzleTimer m_timer;
  std::string m_shownCollection;  // the puzzle the letters on the board belong to
  int m_shownNumber = 0;
  bool m_windowActive = true;
  bool m_lettersChanged = false;   // since they were last kept in the store
  bool m_timeKept = false;         // the timer counts on from the kept letters' time
  bool m_progressUnsaved = false;  // the store differs from the file
  bool m_progressErrorShown = false;
};

}  // namespace combwise
