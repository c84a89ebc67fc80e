// The create-puzzle flow.
#include "core/generator/puzzlemaker.h"

#include "core/model/text.h"

namespace combwise {

PuzzleMaker::PuzzleMaker(Board& board, PuzzleState& state, Dictionary& dictionary, Meanings& meanings)
    : m_board(board), m_state(state), m_dictionary(dictionary), m_meanings(meanings) {}

PuzzleMaker::~PuzzleMaker() = default;

Status PuzzleMaker::loadDictionary(const std::string& path, const StatusReport& status, const PumpEvents& events) {
  m_generator.reset();  // its pools point into the words being replaced
  report(status, "Reading Dictionary ...");
  Status read = readDictionary(path, m_dictionary, events);
  if (!read.ok()) {
    report(status, read.error);
  } else if (const std::string skipped = skippedLinesWarning(m_dictionary); !skipped.empty()) {
    report(status, "Dictionary read: " + skipped);
  } else {
    report(status, "Dictionary read");
  }
  return read;
}

Status PuzzleMaker::loadMeanings(const std::string& path, const StatusReport& status, const PumpEvents& events) {
  m_meaningsPath = path;
  if (m_meanings.loaded()) return Status::success();
  report(status, "Reading Meanings file ...");
  Status read = m_meanings.read(path, events);
  if (!read.ok()) report(status, read.error);
  if (read.ok() && !m_meanings.warning().empty()) report(status, m_meanings.warning());
  return read;
}

bool PuzzleMaker::refuses(const std::string& dictionaryPath, int size) {
  const std::string upper = toUpper(dictionaryPath);
  return size == 22 && (upper.find("ENGLISH2") != std::string::npos || upper.find("ENGLISH1") != std::string::npos);
}

void PuzzleMaker::useSize(int size) {
  if (size != m_state.PuzzleSize) setUpPuzzle(m_board, m_state, size);
}

PuzzleGenerator& PuzzleMaker::generator() {
  if (!m_generator) m_generator = std::make_unique<PuzzleGenerator>(m_dictionary, m_meanings);
  return *m_generator;
}

Status PuzzleMaker::runBatch(const std::string& programFolder, const LineRunOptions& options,
                             const std::function<void(int)>& progress, const StatusReport& status,
                             const std::string& outputPath) {
  useSize(kBatchSize);
  if (Status read = loadDictionary(programFolder + kDefaultDictionaryFile, status); !read.ok()) return read;
  if (Status read = loadMeanings(programFolder + kMeaningsFile, status); !read.ok()) return read;
  LineRunOptions batch = options;
  batch.size = kBatchSize;
  return appendPuzzleLines(outputPath.empty() ? programFolder + kBatchFile : outputPath, m_dictionary, m_meanings,
                           batch, progress);
}

CreateResult PuzzleMaker::create(int size, const std::string& dictionaryPath, const std::string& meaningsPath,
                                 RandomSource& random, const GeneratorHooks& hooks, const std::string& outputPath) {
  if (refuses(dictionaryPath, size)) return {CreateOutcome::Refused, kLargePuzzleRefusal};
  if (!Board::isValidSize(size)) return {CreateOutcome::CannotGenerate, "There is no puzzle size " + NumberText(size)};
  useSize(size);
  report(hooks.status, "Creating a puzzle ...");

  if (m_dictionary.Words3.ListCount() == 0) {
    if (Status read = loadDictionary(dictionaryPath, hooks.status, hooks.events); !read.ok())
      return {CreateOutcome::NoDictionary, read.error};
  }
  if (Status read = loadMeanings(meaningsPath, hooks.status, hooks.events); !read.ok())
    return {CreateOutcome::NoDictionary, read.error};

  PuzzleGenerator& engine = generator();
  if (!engine.canGenerate())
    return {CreateOutcome::CannotGenerate,
            "The dictionary " + dictionaryPath + " needs at least two words of each length from 3 to 6 letters"};
  if (!engine.generate(m_board, m_state, random, hooks)) {
    if (engine.lastEnd() == GenerateEnd::GaveUp)
      return {CreateOutcome::CannotGenerate, gaveUpMessage(dictionaryPath, size, engine.stats().lastTries)};
    return {CreateOutcome::CannotGenerate, "Puzzle creation stopped"};
  }

  if (Status written = writePuzzle(outputPath, WriteMode::Truncate, m_state); !written.ok())
    return {CreateOutcome::NotSaved, written.error};
  m_state.PuzzleCount = 1;
  const PuzzleReadResult read =
      readPuzzle(outputPath, 1, m_board, m_state, ClueSource{&m_meanings, meaningsPath, hooks.events});
  if (!read.loaded()) return {CreateOutcome::NotSaved, read.message.empty() ? "Error reading puzzle" : read.message};
  report(hooks.status, "Puzzle created ...");
  return {CreateOutcome::Created, {}};
}

}  // namespace combwise
