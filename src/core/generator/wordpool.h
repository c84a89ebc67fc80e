// One word pool of the generator in its current random order. The words
// themselves stay in the dictionary; the pool keeps an order over them that
// each shuffle replaces, and answers "the first word, in pool order, that
// holds these letters".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/model/random.h"

namespace combwise {

// How the generator does the work whose result it only partly uses. Both
// forms compute the same puzzles from the same draws; the straightforward
// one does every step in full and is kept as the reference.
enum class GeneratorForm { Fast, Straightforward };

class WordPool {
 public:
  // `words` must outlive the pool. The starting order is the words' order.
  explicit WordPool(const std::vector<std::string>* words);

  int count() const { return static_cast<int>(m_order.size()); }
  // The word at a position of the pool order (0-based).
  const std::string& at(int position) const {
    return (*m_words)[static_cast<std::size_t>(m_order[static_cast<std::size_t>(position)])];
  }
  // The same word, read from a compact copy of the words that stays in the
  // fastest cache (the generator reads a candidate every attempt).
  std::string_view candidate(int position) const {
    const auto index = static_cast<std::size_t>(m_order[static_cast<std::size_t>(position)]);
    if (m_compact.empty()) return (*m_words)[index];
    return std::string_view(m_compact.data() + index * kCompactStride, m_compactLength[index]);
  }
  // The words in pool order.
  std::vector<std::string> orderedWords() const;

  // Back to the words' own order, as when the pool was made.
  void resetOrder();

  // A fresh random order: every word, in current pool order, draws a key,
  // the integer part of random x 99988 + 1; the new order is by key, then
  // by the word with case ignored, then by the old order.
  void shuffle(RandomSource& random, GeneratorForm form);

  // The position of the first word, in pool order, that holds the first
  // `letterCount` letters of `letters`, each as often as it occurs there; -1 when
  // none does.
  int firstContaining(std::string_view letters, int letterCount, GeneratorForm form) const;

 private:
  void shuffleStraightforward(RandomSource& random);
  void shuffleFast(RandomSource& random);
  template <typename Value, unsigned kIndexBits>
  void sortByDrawnKeys(RandomSource& random, std::vector<Value>& scratch);
  const std::vector<int>& positions() const;

  static constexpr std::size_t kCompactStride = 8;
  static constexpr unsigned kNarrowIndexBits = 15;  // 17 bits left hold any key

  const std::vector<std::string>* m_words;
  std::vector<char> m_compact;  // the words at a fixed stride, when all are short enough
  std::vector<unsigned char> m_compactLength;
  std::vector<int> m_order;                                      // pool position -> word index
  std::vector<std::uint32_t> m_rank;                             // word index -> rank by case-ignoring order
  std::unordered_map<std::string, std::vector<int>> m_anagrams;  // sorted letters -> word indexes
  std::vector<std::uint32_t> m_narrow;                           // the shuffle's scratch, for up to 2^15 words
  std::vector<std::uint64_t> m_scratch;                          // the same for more words
  mutable std::vector<int> m_position;                           // word index -> pool position
  mutable bool m_positionsValid = false;
};

}  // namespace combwise
