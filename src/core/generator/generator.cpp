// The puzzle generator: tries, placement with verification, completion.
#include "core/generator/generator.h"

#include <algorithm>
#include <cctype>

#include "core/generator/distinct.h"
#include "core/generator/letters.h"
#include "core/model/text.h"

namespace combwise {
namespace {

constexpr int kMaxAttempts = 500;
constexpr std::size_t kStride = Board::kMaxCol + 1;

std::size_t cellIndex(const Board& board, int cell) {
  return static_cast<std::size_t>(board.CellRow(cell)) * kStride + static_cast<std::size_t>(board.CellCol(cell));
}

// Up to six characters, upper-cased, packed with their count into one value.
std::uint64_t packUpper(std::string_view letters) {
  std::uint64_t packed = static_cast<std::uint64_t>(letters.size()) << 56;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const auto c = static_cast<unsigned char>(letters[i]);
    const auto upper = static_cast<std::uint64_t>(c >= 'a' && c <= 'z' ? c - ('a' - 'A') : c);
    packed |= upper << (8 * i);
  }
  return packed;
}

// The first 256 primes: 1619^6 still fits in 64 bits, so the product of up
// to six letters' primes never overflows, and it names their multiset.
std::array<std::uint64_t, 256> firstPrimes() {
  std::array<std::uint64_t, 256> primes{};
  std::size_t found = 0;
  for (std::uint64_t candidate = 2; found < primes.size(); ++candidate) {
    bool prime = true;
    for (std::uint64_t d = 2; d * d <= candidate && prime; ++d) prime = candidate % d != 0;
    if (prime) primes[found++] = candidate;
  }
  return primes;
}

// Upper-casing keeps the order of these bytes when no lower-case letter
// shares them with a byte from 'A' to '`': then sorting and upper-casing may
// be done in either order, and sorted letters are told apart by their
// multiset alone.
bool upperCasingKeepsOrder(const std::array<WordPool, 4>& pools) {
  bool lower = false;
  bool between = false;
  for (const WordPool& pool : pools) {
    for (int i = 0; i < pool.count(); ++i) {
      for (const char ch : pool.at(i)) {
        const auto c = static_cast<unsigned char>(ch);
        lower = lower || (c >= 'a' && c <= 'z');
        between = between || (c >= 'A' && c <= '`');
      }
    }
  }
  return !(lower && between);
}

}  // namespace

// One try's scratch: the letter grid and the spare letters for free cells
// (0 for an empty cell), the pool cursors and the attempt counter; and the
// board's cells as grid indexes, looked up once per puzzle, since the tries
// read them millions of times. Index 0 (row 0, column 0) never holds a
// letter and stands for "no cell".
struct PuzzleGenerator::Work {
  std::array<char, (Board::kMaxRow + 1) * kStride> letters{};
  std::array<char, (Board::kMaxRow + 1) * kStride> spare{};
  std::array<int, 4> cursor{};
  int attempts = 0;

  int hexCount = 0;
  std::array<std::array<std::size_t, Board::kRing>, Board::kMaxHex + 1> inside{};
  std::array<std::array<std::size_t, Board::kRing>, Board::kMaxHex + 1> outside{};
  std::array<int, Board::kMaxHex + 1> outsideCount{};
  // The hexagons whose inside cells a hexagon's outside cells are, ascending.
  std::array<std::array<int, Board::kRing>, Board::kMaxHex + 1> touched{};
  std::array<int, Board::kMaxHex + 1> touchedCount{};

  explicit Work(const Board& board) : hexCount(board.hexCount()) {
    for (int hex = 1; hex <= hexCount; ++hex) {
      outsideCount[hex] = board.outsideCount(hex);
      for (int k = 1; k <= Board::kRing; ++k) {
        inside[hex][k - 1] = cellIndex(board, board.InsideCells(hex, k));
        const int cell = board.OutsideCells(hex, k);
        outside[hex][k - 1] = cell ? cellIndex(board, cell) : 0;
        if (!cell) continue;
        const int other = board.HexAt(board.CellRow(cell), board.CellCol(cell));
        auto& list = touched[hex];
        int& count = touchedCount[hex];
        if (std::find(list.begin(), list.begin() + count, other) != list.begin() + count) continue;
        list[static_cast<std::size_t>(count++)] = other;
        std::sort(list.begin(), list.begin() + count);
      }
    }
  }

  // The non-empty inside letters in ring order; returns how many.
  int insideLetters(int hex, char* out) const {
    int n = 0;
    for (std::size_t at : inside[hex]) {
      if (const char c = letters[at]) out[n++] = c;
    }
    return n;
  }
  std::string insideLetters(int hex) const {
    char buffer[Board::kRing];
    return std::string(buffer, static_cast<std::size_t>(insideLetters(hex, buffer)));
  }

  // Positions that are 0, empty or hold a hexagon number are skipped.
  std::string outsideLetters(int hex) const {
    std::string out;
    for (std::size_t at : outside[hex]) {
      const char c = letters[at];
      if (c != 0 && !(c >= '1' && c <= '9')) out += c;
    }
    return out;
  }
};

PuzzleGenerator::PuzzleGenerator(const Dictionary& dictionary, const Meanings& meanings, GeneratorForm form)
    : m_dictionary(dictionary),
      m_meanings(meanings),
      m_form(form),
      m_pools{WordPool(&dictionary.Words3.items()), WordPool(&dictionary.Words4.items()),
              WordPool(&dictionary.Words5.items()), WordPool(&dictionary.Words6.items())} {
  // Every prefix (1 to 6 letters) of every key's sorted letters: a hexagon
  // passes when its sorted inside letters are one of them.
  std::vector<std::uint64_t> prefixes;
  for (const auto& key : dictionary.SixLetterKeys.items()) {
    for (std::size_t length = 1; length <= std::min<std::size_t>(6, key.size()); ++length)
      prefixes.push_back(packUpper(std::string_view(key).substr(0, length)));
  }
  m_prefixSet.assign(prefixes);

  // Where it is exact, a hexagon's inside letters are checked by the
  // product of their primes: no sorting, no branches.
  if (upperCasingKeepsOrder(m_pools)) {
    const auto primes = firstPrimes();
    m_primeOf[0] = 1;  // an empty cell
    for (int c = 1; c < 256; ++c)
      m_primeOf[static_cast<std::size_t>(c)] =
          primes[static_cast<std::size_t>(c >= 'a' && c <= 'z' ? c - ('a' - 'A') : c)];
    std::vector<std::uint64_t> products;
    for (const auto& key : dictionary.SixLetterKeys.items()) {
      std::uint64_t product = 1;
      for (std::size_t i = 0; i < std::min<std::size_t>(6, key.size()); ++i) {
        product *= m_primeOf[static_cast<unsigned char>(key[i])];
        products.push_back(product);
      }
    }
    m_productSet.assign(products);
    m_byProduct = true;
  }
}

bool PuzzleGenerator::canGenerate(const Dictionary& dictionary) {
  for (int length = 3; length <= 6; ++length) {
    const clsSimpleArray* pool = dictionary.pool(length);
    if (!pool || pool->ListCount() < 2) return false;
  }
  return true;
}

bool PuzzleGenerator::canGenerate() const {
  return std::all_of(m_pools.begin(), m_pools.end(), [](const WordPool& pool) { return pool.count() >= 2; });
}

void PuzzleGenerator::resetPools() {
  for (auto& pool : m_pools) pool.resetOrder();
}

bool PuzzleGenerator::generate(const Board& board, PuzzleState& state, RandomSource& random,
                               const GeneratorHooks& hooks) {
  m_lastEnd = GenerateEnd::CannotGenerate;
  if (!canGenerate() || board.hexCount() == 0) return false;
  Work work(board);
  long long poolWords = 0;
  for (const WordPool& pool : m_pools) poolWords += pool.count();
  long long workDone = 0;
  m_stats.lastTries = 0;
  for (long long tries = 1;; ++tries) {
    if (hooks.stop && hooks.stop()) {
      m_lastEnd = GenerateEnd::Stopped;
      return false;
    }
    if ((hooks.maxTries > 0 && tries > hooks.maxTries) || (hooks.maxWork > 0 && workDone >= hooks.maxWork)) {
      m_lastEnd = GenerateEnd::GaveUp;
      return false;
    }
    ++m_stats.tries;
    m_stats.lastTries = tries;
    workDone += poolWords + kMaxAttempts;
    if (hooks.status) hooks.status("Reset ... " + NumberText(tries));
    if (!tryOnce(board, work, random, hooks) || !complete(board, work, state)) continue;
    if (!hooks.distinct) {
      attachClues(state, m_meanings, random);
      break;
    }
    // A puzzle with a repeat counts as a failed try.
    if (!hasRepeatedWord(state) && attachDistinctClues(state, m_meanings, random)) break;
  }
  m_lastEnd = GenerateEnd::Made;
  return true;
}

bool PuzzleGenerator::tryOnce(const Board& board, Work& work, RandomSource& random, const GeneratorHooks& hooks) {
  work.attempts = 0;
  pump(hooks.events);
  work.cursor.fill(-1);
  work.letters.fill(0);
  work.spare.fill(0);
  for (auto& pool : m_pools) pool.shuffle(random, m_form);

  for (int hex = 1; hex <= board.hexCount(); ++hex) {
    pump(hooks.events);
    for (;;) {
      // A pool's last word is never a candidate: the try ends when the next
      // candidate of any pool would be its last word or beyond.
      for (std::size_t p = 0; p < m_pools.size(); ++p) {
        if (work.cursor[p] + 1 >= m_pools[p].count() - 1) return false;
      }
      if (++work.attempts > kMaxAttempts) return false;
      ++m_stats.attempts;

      int n = work.outsideCount[hex];
      const std::size_t p = static_cast<std::size_t>(n - 3);
      char shuffled[kShuffleCapacity];
      shuffleLettersInto(m_pools[p].candidate(++work.cursor[p]), random, shuffled);
      // The shuffled word is laid from its last letter to its first.
      for (std::size_t k = 0; k < Board::kRing && n > 0; ++k) {
        if (const std::size_t at = work.outside[hex][k]) work.letters[at] = shuffled[--n];
      }

      int failed = 0;
      if (verifyAfterPlacing(work, hex, failed)) break;
      if (hooks.status) hooks.status("Solve hex" + Str(hex) + " -" + Str(failed) + " not verified");
    }
  }
  return true;
}

// Every hexagon with inside letters must have them, sorted, as the start of
// some six-letter word's sorted letters. Placing a hexagon's outside word
// changes only the hexagons it borders, and all others passed before, so
// the fast form checks just those (in ascending order, so the first failure
// reported is the same).
bool PuzzleGenerator::verifyAfterPlacing(const Work& work, int placed, int& failed) const {
  const bool fast = m_form == GeneratorForm::Fast;
  const int total = fast ? work.touchedCount[placed] : work.hexCount;
  for (int i = 0; i < total; ++i) {
    const int hex = fast ? work.touched[placed][static_cast<std::size_t>(i)] : i + 1;
    if (fast && m_byProduct) {
      // Multiplied as a tree: three short chains instead of one long one.
      const auto& cells = work.inside[hex];
      const auto prime = [&](std::size_t k) { return m_primeOf[static_cast<unsigned char>(work.letters[cells[k]])]; };
      static_assert(Board::kRing == 6);
      const std::uint64_t product = (prime(0) * prime(1)) * (prime(2) * prime(3)) * (prime(4) * prime(5));
      if (product == 1 || m_productSet.contains(product)) continue;
      failed = hex;
      return false;
    }
    char letters[Board::kRing];
    const int n = work.insideLetters(hex, letters);
    if (n == 0) continue;
    // Sorted by character code, as the keys' letters are.
    for (int j = 1; j < n; ++j) {
      const char c = letters[j];
      int k = j;
      for (; k > 0 && static_cast<unsigned char>(letters[k - 1]) > static_cast<unsigned char>(c); --k)
        letters[k] = letters[k - 1];
      letters[k] = c;
    }
    const std::string_view key(letters, static_cast<std::size_t>(n));
    const bool found = fast ? m_prefixSet.contains(packUpper(key)) : m_dictionary.SixLetterKeys.containsPrefix(key);
    if (!found) {
      failed = hex;
      return false;
    }
  }
  return true;
}

bool PuzzleGenerator::complete(const Board& board, Work& work, PuzzleState& state) {
  m_summary.clear();
  const WordPool& six = m_pools[3];
  for (int hex = 1; hex <= board.hexCount(); ++hex) {
    const std::string inside = work.insideLetters(hex);
    const int found = six.firstContaining(inside, 6, m_form);
    if (found < 0) return false;  // only with keys and pools that disagree on case
    const std::string& word = six.at(found);
    m_summary.push_back(Format00(hex) + "I " + inside + " " + word);
    if (inside.size() < 6) {
      const std::string rest = remainingLetters(word, inside);
      std::size_t next = 0;
      for (int k = 1; k <= Board::kRing && next < rest.size(); ++k) {
        const std::size_t at = work.inside[hex][static_cast<std::size_t>(k - 1)];
        if (work.letters[at] == 0) work.spare[at] = rest[next++];
      }
    }
  }

  std::string word;
  for (int hex = 1; hex <= board.hexCount(); ++hex) {
    const std::string outside = work.outsideLetters(hex);
    const int n = static_cast<int>(outside.size());
    if (n >= 3 && n <= 6) {
      const WordPool& pool = m_pools[static_cast<std::size_t>(n - 3)];
      const int found = pool.firstContaining(outside, n, m_form);
      if (found < 0) return false;
      word = pool.at(found);
    }
    m_summary.push_back(Format00(hex) + "E " + outside + " " + word);
  }

  for (int hex = 1; hex <= board.hexCount(); ++hex) {
    for (int k = 1; k <= Board::kRing; ++k) {
      const std::size_t at = work.inside[hex][static_cast<std::size_t>(k - 1)];
      if (work.letters[at] == 0) work.letters[at] = work.spare[at];
    }
  }

  std::stable_sort(m_summary.begin(), m_summary.end(),
                   [](const std::string& a, const std::string& b) { return SortedKeyList::less(a, b); });

  state.Letters.clear();
  for (int row = 1; row <= board.rows(); ++row) {
    for (int col = 1; col <= board.cols(); ++col) {
      if (const char c = work.letters[static_cast<std::size_t>(row) * kStride + static_cast<std::size_t>(col)])
        state.Letters.at(row, col) = std::string(1, c);
    }
  }
  state.clearSlots();
  for (std::size_t i = 0; i < m_summary.size() && i < PuzzleState::kMaxSlots; ++i) {
    // The third blank-separated field of a summary line is its word.
    const std::string& line = m_summary[i];
    const auto first = line.find(' ');
    const auto second = line.find(' ', first + 1);
    state.WordSlots[i + 1] = line.substr(second + 1);
  }
  return true;
}

std::string gaveUpMessage(const std::string& dictionaryPath, int size, long long tries) {
  return "The dictionary " + dictionaryPath + " cannot make puzzles of size " + NumberText(size) +
         ": no puzzle after " + NumberText(tries) + " tries";
}

void attachClues(PuzzleState& state, const Meanings& meanings, RandomSource& random) {
  const auto& lines = meanings.lines().items();
  for (int slot = 1; slot <= state.WordCount && slot <= PuzzleState::kMaxSlots; ++slot) {
    const std::string key = toUpper(state.WordSlots[slot]) + ":";
    const int first = meanings.firstLine(key);
    if (first < 0) {
      state.MeaningNumbers[slot] = 0;
      state.ClueTexts[slot].clear();
      continue;
    }
    const int count = meanings.countLines(key, first);
    const int number = count == 1 ? 1 : static_cast<int>(floorWhole(random.next() * count + 1));
    state.MeaningNumbers[slot] = number;
    state.ClueTexts[slot] = lines[static_cast<std::size_t>(first + number - 1)].substr(key.size());
  }
}

}  // namespace combwise
