// The create-puzzle flow: the chosen size, the board set up when the size
// changes, the dictionary and meanings read on first need, a new puzzle
// generated, written as the only line of "tempcombwisepuzzle.txt" and read
// back through the collection reader, so a generated puzzle always passes
// through the file format. The maker keeps the generator, whose pools carry
// their order from one puzzle to the next, for the dictionary it read.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/files/dictionary.h"
#include "core/files/programfiles.h"
#include "core/files/puzzlefile.h"
#include "core/generator/batch.h"
#include "core/generator/generator.h"
#include "core/model/board.h"
#include "core/model/callbacks.h"
#include "core/model/puzzlestate.h"
#include "core/model/random.h"

namespace combwise {

inline constexpr const char* kLargePuzzleRefusal =
    "Creating a large puzzle with english1/2 dictionaries will take long time";

enum class CreateOutcome {
  Created,
  Refused,         // the size-22 refusal for the english1/english2 dictionaries
  NoDictionary,    // the dictionary or the meanings file could not be read
  CannotGenerate,  // the dictionary's pools cannot make a puzzle, or generation was stopped
  NotSaved,        // the temporary file could not be written or read back
};

struct CreateResult {
  CreateOutcome outcome = CreateOutcome::CannotGenerate;
  std::string message;  // for the user when not created
  bool created() const { return outcome == CreateOutcome::Created; }
};

class PuzzleMaker {
 public:
  // Everything passed in belongs to the caller and must outlive the maker.
  PuzzleMaker(Board& board, PuzzleState& state, Dictionary& dictionary, Meanings& meanings);
  ~PuzzleMaker();

  // Reads a dictionary, replacing the pools ("Reading Dictionary ...", then
  // "Dictionary read").
  Status loadDictionary(const std::string& path, const StatusReport& status = {}, const PumpEvents& events = {});
  // Reads the meanings file unless it was read ("Reading Meanings file ...").
  Status loadMeanings(const std::string& path, const StatusReport& status = {}, const PumpEvents& events = {});

  // Whether a dictionary path with this size is refused.
  static bool refuses(const std::string& dictionaryPath, int size);

  // Creates a puzzle of `size` into the state and shows it as puzzle 1 of
  // the temporary collection `outputPath`.
  CreateResult create(int size, const std::string& dictionaryPath, const std::string& meaningsPath,
                      RandomSource& random, const GeneratorHooks& hooks = {},
                      const std::string& outputPath = kTemporaryPuzzleFile);

  // The batch: puzzles of size 17 from the program folder's "english3.txt"
  // (and its "mean3456.txt"), appended one by one to the program folder's
  // "puz-18sepsize17D.txt", which is extended, never truncated. The size
  // and the dictionary stay set afterwards. `progress` hears each appended
  // puzzle's number. An `outputPath` other than empty takes the place of
  // the program folder's output file (an installed program writes its
  // batch into the user's folder).
  Status runBatch(const std::string& programFolder, const LineRunOptions& options,
                  const std::function<void(int)>& progress = {}, const StatusReport& status = {},
                  const std::string& outputPath = {});

  // The board is set up for the size when it differs from the current one.
  void useSize(int size);

  // The generator of the current dictionary (made on first use).
  PuzzleGenerator& generator();

 private:
  Board& m_board;
  PuzzleState& m_state;
  Dictionary& m_dictionary;
  Meanings& m_meanings;
  std::string m_meaningsPath;
  std::unique_ptr<PuzzleGenerator> m_generator;
};

}  // namespace combwise
