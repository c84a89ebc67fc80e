// What the session keeps of the player between runs and while a puzzle is
// shown: the letters typed on each puzzle and the puzzles solved (the
// progress file), the time spent on the puzzle shown, and the two play
// options (their own file).
#include "core/files/programfiles.h"
#include "core/model/text.h"
#include "core/play/history.h"
#include "core/play/verify.h"
#include "core/session/gamesession.h"

namespace combwise {
namespace {

// Whether any cell of the puzzle still to be filled in holds a letter.
bool hasLetters(const Board& board, const PuzzleState& state) {
  for (int row = 1; row <= board.rows(); ++row) {
    for (int col = 1; col <= board.cols(); ++col) {
      if (board.HexAt(row, col) > 0 && board.FreeCell(row, col) == 0 && !state.Entries.at(row, col).empty())
        return true;
    }
  }
  return false;
}

// The problems of a file read at start-up, as one notice.
void reportProblems(const std::vector<std::string>& problems, CommandResult& result) {
  if (problems.empty()) return;
  std::string text;
  constexpr std::size_t kShown = 5;
  for (std::size_t i = 0; i < problems.size() && i < kShown; ++i) text += (i ? "\n" : "") + problems[i];
  if (problems.size() > kShown) text += "\n(" + std::to_string(problems.size() - kShown) + " more)";
  result.messages.push_back({text, "vbok+vbexclamation"});
}

}  // namespace

void GameSession::loadPlayerFiles(CommandResult& result) {
  ProgressRead progress = readProgressFile(playerFilePath(kProgressFileName));
  m_progress = std::move(progress.store);
  reportProblems(progress.problems, result);
  ExtraOptionsRead options = readExtraOptions(playerFilePath(kExtraOptionsFileName));
  m_extraOptions = std::move(options.options);
  reportProblems(options.problems, result);
}

std::string GameSession::playerFilePath(std::string_view name) const {
  // Nothing of the player's ships with the program, so the place it is
  // written is also the place to read it from.
  return m_files.writePath(name);
}

bool GameSession::keepsProgress() const {
  return !m_shownCollection.empty() && fileNameOf(m_shownCollection) != kTemporaryPuzzleFile;
}

void GameSession::keepShownEntries() {
  const bool lettersChanged = m_lettersChanged;
  m_lettersChanged = false;
  if (!keepsProgress()) return;
  if (lettersChanged) {
    m_progress.keepEntries(m_shownCollection, m_shownNumber, m_board, m_puzzle, m_timer.elapsedSeconds());
    m_timeKept = true;
    m_progressUnsaved = true;
  } else if (m_timeKept && m_progress.keepSeconds(m_shownCollection, m_shownNumber, m_timer.elapsedSeconds())) {
    m_progressUnsaved = true;  // the letters stand, the time moved on
  }
}

void GameSession::puzzleChanged(CommandResult& result) {
  const bool startingUp = m_busy == Busy::StartingUp;
  const bool made = fileNameOf(m_puzzle.CollectionPath) == kTemporaryPuzzleFile;
  // Reading the same puzzle again (reset) keeps its letters and its time.
  if (!startingUp && !made && m_puzzle.CollectionPath == m_shownCollection && m_puzzle.PuzzleNumber == m_shownNumber)
    return;
  m_shownCollection = m_puzzle.CollectionPath;
  m_shownNumber = m_puzzle.PuzzleNumber;
  m_lettersChanged = false;
  m_timeKept = false;
  if (m_extraOptions.cleanBoardEachPuzzle && !startingUp) {
    m_puzzle.Entries.clear();
    m_puzzle.UndoList.clear();
  }
  // A puzzle that comes up without the player's letters gets back those
  // kept for it, and its timer goes on from the time spent on them; letters
  // carried over from the puzzle before stay, and the time starts afresh.
  std::optional<long long> keptSeconds;
  if (keepsProgress() && (startingUp || !hasLetters(m_board, m_puzzle)))
    keptSeconds = m_progress.restoreEntries(m_shownCollection, m_shownNumber, m_board, m_puzzle);
  m_timeKept = keptSeconds.has_value();
  m_timer.start(std::chrono::seconds(keptSeconds.value_or(0)), !m_windowActive);
  // Letters kept at a solve come back solved: the time stays at the solve,
  // and verifying them again records nothing new.
  if (keptSeconds && solvedRecord() && unfinishedHexagons(m_board, m_puzzle).empty()) m_timer.stop();
  result.redraw |= Redraw::Record | Redraw::Board;
  if (m_progressUnsaved) result.add(saveProgress());
}

void GameSession::puzzleSolved(CommandResult& result) {
  if (!m_timer.started() || m_timer.stopped()) return;
  m_timer.stop();
  result.redraw |= Redraw::Record;
  if (!keepsProgress()) return;
  m_progress.recordSolved(m_shownCollection, m_shownNumber, m_timer.elapsedSeconds());
  m_lettersChanged = true;  // the solved letters are kept with the record
  keepShownEntries();
  result.add(saveProgress());
}

CommandResult GameSession::saveProgress() {
  CommandResult result;
  // A puzzle being made fills the board as it goes: it is not the player's.
  if (m_busy != Busy::None && m_busy != Busy::Randomizing) return result;
  keepShownEntries();
  if (!m_progressUnsaved) return result;
  const std::string path = playerFilePath(kProgressFileName);
  if (const Status written = writeProgressFile(path, m_progress); !written.ok()) {
    if (!m_progressErrorShown) {
      result.messages.push_back(
          {written.error + "\nYour letters stay on the board while the program runs.", "vbok+vbexclamation"});
      m_progressErrorShown = true;
    }
    return result;
  }
  m_progressUnsaved = false;
  m_progressErrorShown = false;
  return result;
}

void GameSession::windowActive(bool active) {
  m_windowActive = active;
  if (active)
    m_timer.resume();
  else
    m_timer.pause();
}

std::optional<SolvedRecord> GameSession::solvedRecord() const {
  if (!keepsProgress()) return std::nullopt;
  return m_progress.solved(m_shownCollection, m_shownNumber);
}

CommandResult GameSession::setExtraOptions(bool cleanBoardEachPuzzle, bool noWordTwice) {
  CommandResult result;
  if (m_extraOptions.cleanBoardEachPuzzle == cleanBoardEachPuzzle && m_extraOptions.noWordTwice == noWordTwice)
    return result;
  m_extraOptions.cleanBoardEachPuzzle = cleanBoardEachPuzzle;
  m_extraOptions.noWordTwice = noWordTwice;
  const std::string path = playerFilePath(kExtraOptionsFileName);
  if (const Status written = writeExtraOptions(path, m_extraOptions); !written.ok())
    result.messages.push_back({written.error + "\nThe options hold until the program ends.", "vbok+vbexclamation"});
  return result;
}

}  // namespace combwise
