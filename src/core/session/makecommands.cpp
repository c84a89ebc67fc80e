// Making puzzles: the size to create, Create with its way out, reading a
// dictionary, and the collection tools (the randomized copy of a
// collection and the batch of puzzles).
#include "core/files/collectiontools.h"
#include "core/files/programfiles.h"
#include "core/model/text.h"
#include "core/session/gamesession.h"
#include "core/session/sessionscopes.h"

namespace combwise {

CommandResult GameSession::nextSize() {
  m_sizeToCreate = Board::nextSize(m_sizeToCreate);
  CommandResult result;
  result.redraw = Redraw::Size;
  return result;
}

CommandResult GameSession::create() {
  CommandResult result;
  if (!createEnabled()) return result;
  const int size = m_sizeToCreate;
  if (PuzzleMaker::refuses(m_settings.dictionaryPath, size)) {
    result.messages.push_back({kLargePuzzleRefusal, "vbcritical+vbok"});
    return result;
  }
  result.add(saveProgress());  // the letters belong to the puzzle still shown
  // The maker works on the shown board and puzzle; a creation that fails
  // or is cancelled puts them back as they were, so the screen and a later
  // Save keep showing one whole puzzle.
  const Board boardBefore = m_board;
  const PuzzleState puzzleBefore = m_puzzle;
  CreateResult made;
  {
    const PointerScope pointer(m_host);
    m_puzzle.SelRow = m_puzzle.SelCol = 0;
    m_cancelRequested = false;
    const BusyScope busy(*this, Busy::Creating);
    m_host.progress("Creating a puzzle ...");
    GeneratorHooks hooks;
    hooks.status = [this](const std::string& status) { m_host.progress(status); };
    hooks.events = [this] { m_host.pumpEvents(); };
    hooks.stop = [this] { return m_cancelRequested; };
    hooks.maxTries = kDefaultMaxTries;  // a dictionary that cannot make the size says so
    hooks.maxWork = kDefaultMaxWork;    // within seconds, however long the dictionary
    hooks.distinct = m_extraOptions.noWordTwice;
    // The temporary puzzle lies in the working folder, or in the user's
    // folder of an installed program.
    const std::string temporary =
        m_files.usesUserFolders() ? m_files.writePath(kTemporaryPuzzleFile) : std::string(kTemporaryPuzzleFile);
    made = m_maker.create(size, m_settings.dictionaryPath, meaningsPath(), m_random, hooks, temporary);
  }
  if (made.created()) {
    m_puzzle.PuzzleCount = 1;
    PuzzleReadResult shown;
    shown.outcome = ReadOutcome::Loaded;
    shown.number = 1;
    puzzleShown(shown, result);
    result.status = "Puzzle created ...";
    return result;
  }
  m_board = boardBefore;
  result.redraw |= Redraw::Board;
  m_puzzle = puzzleBefore;
  if (m_cancelRequested) {
    result.status = "Puzzle creation cancelled";
  } else {
    result.status = made.message;
    result.messages.push_back({made.message, "vbok+vbcritical"});
  }
  return result;
}

CommandResult GameSession::cancelCreation() {
  CommandResult result;
  if (!creating()) return result;
  m_cancelRequested = true;
  result.status = "Cancelling ...";
  return result;
}

CommandResult GameSession::chooseDictionary() {
  if (!createEnabled()) return {};
  const std::string path =
      m_host.chooseFile({"Select a Dictionary file", "*.txt;*.dic", "Combwise Files", m_programFolder, "OPEN"});
  if (path.empty()) return {};
  return readDictionary(path);
}

CommandResult GameSession::readDictionary(const std::string& path) {
  CommandResult result;
  const PointerScope pointer(m_host);
  const BusyScope busy(*this, Busy::ReadingDictionary);
  const Status read = m_maker.loadDictionary(
      path, [this](const std::string& text) { m_host.progress(text); }, [this] { m_host.pumpEvents(); });
  m_settings.dictionaryPath = path;
  result.redraw = Redraw::Dictionary;
  if (!read.ok()) result.status = read.error;
  return result;
}

CommandResult GameSession::randomize() {
  CommandResult result;
  const std::string source = m_puzzle.CollectionPath;
  if (m_busy != Busy::None || source.empty() || !randomizedPath(source)) return result;
  RandomizeResult made;
  {
    const BusyScope busy(*this, Busy::Randomizing);
    RandomSource random;
    made = randomizeCollection(
        source, random, [this](const std::string& progress) { m_host.progress(progress); },
        [this] { m_host.pumpEvents(); });
  }
  result.messages.push_back({made.message, ""});
  return result;
}

CommandResult GameSession::makeBatch(const std::function<void(int made)>& progress) {
  CommandResult result;
  if (m_busy != Busy::None) return result;
  const std::string output = m_files.writePath(kBatchFile);
  if (m_host.ask("Make " + NumberText(m_batchCount) + " puzzles of size 17 into " + output + "?",
                 "vbquestion+vbyesno") != kAnswerYes)
    return result;
  // The batch works on a board and word data of its own, so the puzzle on
  // the screen stays; afterwards its size and dictionary are the ones in use.
  ErrorLog log(m_files.writeFolder(kErrorLogFile));
  Board board;
  PuzzleState state;
  Dictionary dictionary(&log);
  Meanings meanings(&log);
  PuzzleMaker maker(board, state, dictionary, meanings);
  Status made;
  {
    const BusyScope busy(*this, Busy::Batch);
    if (progress) progress(0);
    LineRunOptions options;
    options.count = m_batchCount;
    options.distinct = m_extraOptions.noWordTwice;
    made = maker.runBatch(
        m_programFolder, options,
        [this, &progress](int count) {
          if (progress) progress(count);
          // Replaces the word files' reading status, which is long over.
          m_host.progress("Making a batch of puzzles ...");
          m_host.pumpEvents();
        },
        [this](const std::string& status) {
          m_host.progress(status);
          m_host.pumpEvents();
        },
        output);
  }
  m_sizeToCreate = kBatchSize;
  result.add(readDictionary(m_programFolder + kDefaultDictionaryFile));
  result.redraw |= Redraw::Size;
  result.messages.push_back({made.ok() ? std::string("done") : made.error, ""});
  return result;
}

}  // namespace combwise
