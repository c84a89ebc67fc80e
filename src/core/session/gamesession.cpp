// The session's state and start-up, the settings, and reading a puzzle into
// the state with the layout that fits it.
#include "core/session/gamesession.h"

#include "core/files/browsing.h"
#include "core/files/programfiles.h"
#include "core/files/textfile.h"
#include "core/model/text.h"
#include "core/session/sessionscopes.h"

namespace combwise {

void CommandResult::add(const CommandResult& later) {
  if (later.status) status = later.status;
  if (later.statusTip) statusTip = later.statusTip;
  messages.insert(messages.end(), later.messages.begin(), later.messages.end());
  redraw |= later.redraw;
  close = close || later.close;
}

GameSession::GameSession(std::string programFolder, SessionHost& host)
    : GameSession(ProgramFiles(programFolder, userFolders()), host) {}

GameSession::GameSession(ProgramFiles files, SessionHost& host)
    : m_programFolder(files.programFolder()),
      m_host(host),
      m_files(std::move(files)),
      m_errorLog(m_files.writeFolder(kErrorLogFile)),
      m_dictionary(&m_errorLog),
      m_meanings(&m_errorLog),
      m_maker(m_board, m_puzzle, m_dictionary, m_meanings) {
  // The word lists' own errors are shown as well as logged.
  m_errorLog.setShow([this](const std::string&, const std::string& message) {
    m_host.tell({message, "vbok+vbcritical"});
  });
}

GameSession::~GameSession() = default;

std::string GameSession::meaningsPath() const { return m_files.readPath(kMeaningsFile); }

std::string GameSession::saveFolder() const {
  return m_files.usesUserFolders() ? m_files.writeFolder(kTemporaryPuzzleFile) : m_programFolder;
}

void GameSession::setBusy(Busy busy) {
  if (m_busy == busy) return;
  m_busy = busy;
  m_host.busyChanged();
}

CommandResult GameSession::startUp() {
  CommandResult result;
  m_settings = startupSettings();
  m_settings.dictionaryPath = defaultDictionaryPath(m_programFolder);
  m_puzzle.PuzzleSize = -1;
  const ConfigRead config = ReadcfgFile(m_files.readFolder(kConfigFile), m_programFolder, m_settings);
  if (!config.notes.empty()) {
    std::string notes;
    for (const std::string& note : config.notes) notes += (notes.empty() ? "" : "\n") + note;
    result.messages.push_back({notes, "vbok+vbexclamation"});
  }
  m_fontSize = look().fontSize;
  const SchemeLoad scheme =
      loadStartupScheme(schemeFilePath(m_programFolder), m_settings.schemeName, m_scheme, DesignedColours{});
  if (!scheme.message.empty()) {
    // The notice, then which file let it down and how.
    const std::string notice = scheme.detail.empty() ? scheme.message : scheme.message + "\n" + scheme.detail;
    result.messages.push_back({notice, std::string(kStartupSchemeStyle)});
    m_settings.schemeName = m_scheme.name;
  }
  m_scheme[ColourScheme::kButtonOverride] = m_settings.schemeColour13;
  const ScreenMeasures screen = m_host.measures();
  m_layout = LayOutBoard({-1, 0, 0, 225, 375, screen.twipsPerPixelX, screen.twipsPerPixelY});
  loadPlayerFiles(result);
  result.redraw = Redraw::Recent | Redraw::Look;
  return result;
}

void GameSession::setStartCollection(const std::string& path, int n) {
  m_settings.collectionPath = path;
  m_settings.PuzzleNumber = n;
}

CommandResult GameSession::startStep() {
  const PointerScope pointer(m_host);
  CommandResult result = readDictionary(m_settings.dictionaryPath);

  // The last collection, else the readymade one here or in the program folder.
  auto collection = startupCollection(m_settings.collectionPath, nonEmptyFile);
  int number = m_settings.PuzzleNumber;
  const std::string besideProgram = m_files.readPath(kReadymadeCollection);
  if (collection && *collection != m_settings.collectionPath) {
    number = 1;
  } else if (!collection && nonEmptyFile(besideProgram)) {
    collection = besideProgram;
    number = 1;
  }
  if (!collection) {
    m_puzzle.CollectionPath.clear();
    m_puzzle.PuzzleNumber = 0;
    result.status = "";
    m_startedUp = true;
    return result;
  }
  {
    const BusyScope busy(*this, Busy::StartingUp);
    m_puzzle.PuzzleCount = countPuzzles(*collection);
    if (number < 1) number = 1;
    if (showPuzzle(*collection, number, result)) {
      result.status = "Ready ...";
    } else if (number <= m_puzzle.PuzzleCount && !unreadableReason(*collection)) {
      // A damaged puzzle keeps its collection open: the arrows move past it.
      m_puzzle.CollectionPath = *collection;
      m_puzzle.PuzzleNumber = number;
      result.status = "Error reading puzzle";
      result.redraw |= Redraw::Puzzle;  // the counter and the file name show where it stands
    } else {
      // A stored number beyond the collection starts with an empty board.
      m_puzzle.PuzzleNumber = 0;
      m_puzzle.CollectionPath.clear();
      result.status = "";
    }
  }
  m_startedUp = true;
  return result;
}

CommandResult GameSession::saveOptions() {
  m_settings.collectionPath = m_puzzle.CollectionPath;
  m_settings.PuzzleNumber = m_puzzle.PuzzleNumber;
  m_settings.schemeName = m_scheme.name;
  m_settings.schemeColour13 = m_scheme[ColourScheme::kButtonOverride];
  CommandResult result;
  if (const Status saved = SavecfgFile(m_files.writeFolder(kConfigFile), m_settings); !saved.ok())
    result.status = saved.error;
  return result;
}

CommandResult GameSession::applyOptions(const OptionsChoice& choice) {
  combwise::applyOptions(choice, m_settings, m_scheme);
  m_fontSize = look().fontSize;
  CommandResult result;
  result.redraw = Redraw::Look;
  return result;
}

bool GameSession::outputReady() const { return m_busy == Busy::None && m_puzzle.PuzzleSize > 0; }

bool GameSession::printRangeReady() const {
  return outputReady() && m_puzzle.PuzzleCount > 0 && !m_puzzle.CollectionPath.empty();
}

ClueSource GameSession::clueSource() {
  return ClueSource{&m_meanings, meaningsPath(), [this] { m_host.pumpEvents(); }};
}

bool GameSession::showPuzzle(const std::string& path, int n, CommandResult& result) {
  keepShownEntries();  // while the board is still the puzzle they were typed on
  const PuzzleReadResult read = readPuzzle(path, n, m_board, m_puzzle, clueSource());
  if (read.outcome == ReadOutcome::NoPuzzles || read.outcome == ReadOutcome::Unreadable)
    result.messages.push_back({read.message, "vbok+vbcritical"});
  // The status line says that a read failed; its tip says where and why.
  if (read.outcome == ReadOutcome::Malformed)
    result.statusTip = path + ", line " + NumberText(read.number) + ": " + read.message;
  else
    result.statusTip = read.loaded() ? std::string() : read.message;
  if (!read.loaded()) return false;
  puzzleShown(read, result);
  tellMeaningsFault(read, result);
  return true;
}

void GameSession::tellMeaningsFault(const PuzzleReadResult& read, CommandResult& result) {
  // Said once: every later puzzle would only repeat it.
  if (m_meaningsFaultTold) return;
  std::string fault;
  if (!read.clues.ok())
    fault = read.clues.error + "\nThe clues stay empty.";
  else
    fault = m_meanings.warning();
  if (fault.empty()) return;
  m_meaningsFaultTold = true;
  result.messages.push_back({fault, "vbok+vbexclamation"});
}

void GameSession::puzzleShown(const PuzzleReadResult& read, CommandResult& result) {
  if (read.rebuilt || m_layout.CellX[1][1] == 0 || m_board.size() != m_laidOutSize) fitBoard(result);
  if (!read.clues.ok()) result.status = read.clues.error;
  m_sizeToCreate = m_puzzle.PuzzleSize;
  m_hasPuzzle = true;
  m_marks.clear();
  result.redraw |= Redraw::Puzzle | Redraw::Size;
  puzzleChanged(result);
}

void GameSession::fitBoard(CommandResult& result) {
  const ScreenMeasures screen = m_host.measures();
  const CellSize fit = fitCellSize(m_board.rows(), m_board.cols(), screen.frameWidth, screen.frameHeight);
  m_fitWidth = fit.width;
  m_fitHeight = fit.height;
  m_laidOutSize = m_board.size();
  relayout(fit.width, fit.height);
  result.redraw |= Redraw::Fitted;
}

void GameSession::relayout(int cellWidth, int cellHeight) {
  const ScreenMeasures screen = m_host.measures();
  m_layout = LayOutBoard({m_board.size(), m_board.rows(), m_board.cols(), cellWidth, cellHeight, screen.twipsPerPixelX,
                          screen.twipsPerPixelY});
}

}  // namespace combwise
