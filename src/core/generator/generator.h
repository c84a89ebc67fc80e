// The puzzle generator: lays random dictionary words of the right length as
// the outside words of all hexagons, one hexagon after another, checking
// after each placement that every hexagon's inside letters can still become
// a six-letter dictionary word; then completes the inside words, fills the
// free cells, fills the word slots and attaches a random meaning to each.
//
// It works on the board and puzzle state it is given, draws only from the
// random source it is given and keeps no globals, so several generators can
// run side by side, each with its own state.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/files/dictionary.h"
#include "core/generator/packedset.h"
#include "core/generator/wordpool.h"
#include "core/model/board.h"
#include "core/model/callbacks.h"
#include "core/model/puzzlestate.h"
#include "core/model/random.h"

namespace combwise {

struct GeneratorHooks {
  StatusReport status;  // "Reset ... 12" (the try count), "Solve hex 3 - 5 not verified"
  PumpEvents events;    // at the start of every try and every hexagon
  // Asked at the start of every try; true ends generation without a puzzle.
  std::function<bool()> stop;
  // Tries for one puzzle before giving up (0: no bound). A dictionary whose
  // pools all hold two words or more can still never make a puzzle of a
  // size; the bound turns that endless search into an answer.
  long long maxTries = 0;
  // Work for one puzzle before giving up (0: no bound), counted as pool
  // words shuffled plus candidates laid. Tries of a huge dictionary cost
  // far more than tries of the game's, so the try bound alone can leave a
  // hopeless search running for hours; this one ends it in seconds.
  long long maxWork = 0;
  // No word twice and no clue text twice in a puzzle: the puzzles made are
  // those made without this, less the ones with a repeat. A repeated clue
  // takes another meaning of its word first.
  bool distinct = false;
};

// Tries that the game's own dictionary never needs for one puzzle of any
// size, with a wide margin, so reaching them says the dictionary cannot make
// puzzles of that size.
inline constexpr long long kDefaultMaxTries = 20000;
// Work that the game's dictionary never needs for one puzzle either (about
// 5,000 of its tries at size 22, where a puzzle takes a few dozen); a few
// seconds on a slow machine.
inline constexpr long long kDefaultMaxWork = 50'000'000;

// How the last generate() ended.
enum class GenerateEnd { Made, CannotGenerate, Stopped, GaveUp };

// "The dictionary PATH cannot make puzzles of size N: no puzzle after M tries".
std::string gaveUpMessage(const std::string& dictionaryPath, int size, long long tries);

struct GenerationStats {
  long long tries = 0;      // tries started
  long long attempts = 0;   // candidates laid, over all tries
  long long lastTries = 0;  // tries of the last generate()
};

class PuzzleGenerator {
 public:
  // The dictionary and the meanings must outlive the generator; the pools
  // start in the dictionary's order and keep their shuffled order from one
  // puzzle to the next.
  PuzzleGenerator(const Dictionary& dictionary, const Meanings& meanings, GeneratorForm form = GeneratorForm::Fast);

  // True when every pool holds at least two words. Otherwise no try can
  // ever succeed (a pool's last word is never a candidate, and the pools
  // are all checked before every hexagon), so generate() refuses at once.
  bool canGenerate() const;
  // The same answer for a dictionary, without building a generator.
  static bool canGenerate(const Dictionary& dictionary);

  // Makes a new puzzle on a board already set up for its size: on success
  // the letters, word slots, meaning numbers and clue texts of `state` hold
  // it. False when the pools cannot make puzzles or the stop hook ended it;
  // the state's letters are then undefined but its slots untouched.
  bool generate(const Board& board, PuzzleState& state, RandomSource& random, const GeneratorHooks& hooks = {});

  // Puts the pools back in the dictionary's order, so the next puzzle
  // depends only on the draws it is given.
  void resetPools();

  // The word summary of the last puzzle: "01E ABC CAB", "01I ..." lines in
  // sorted order (each hexagon's outside line before its inside line).
  const std::vector<std::string>& summaryLines() const { return m_summary; }
  const GenerationStats& stats() const { return m_stats; }
  GenerateEnd lastEnd() const { return m_lastEnd; }
  const WordPool& pool(int length) const { return m_pools[static_cast<std::size_t>(length - 3)]; }

 private:
  struct Work;
  bool tryOnce(const Board& board, Work& work, RandomSource& random, const GeneratorHooks& hooks);
  bool verifyAfterPlacing(const Work& work, int placed, int& failed) const;
  bool complete(const Board& board, Work& work, PuzzleState& state);

  const Dictionary& m_dictionary;
  const Meanings& m_meanings;
  GeneratorForm m_form;
  std::array<WordPool, 4> m_pools;
  PackedSet m_prefixSet;  // packed upper-case prefixes of the anagram keys
  // The same prefixes as products of their letters' primes, when that is exact.
  bool m_byProduct = false;
  std::array<std::uint64_t, 256> m_primeOf{};
  PackedSet m_productSet;
  std::vector<std::string> m_summary;
  GenerationStats m_stats;
  GenerateEnd m_lastEnd = GenerateEnd::Made;
};

// Looks a meaning up for every word slot 1..WordCount: the slot's clue is
// one of its word's meaning lines, chosen at random when there are several
// (meaning number 1 when there is one, 0 and an empty clue when none).
void attachClues(PuzzleState& state, const Meanings& meanings, RandomSource& random);

}  // namespace combwise
