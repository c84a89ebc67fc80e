// The generator's word pools: shuffling and searching in pool order.
#include "core/generator/wordpool.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "core/files/dictionary.h"
#include "core/files/simplearray.h"
#include "core/files/sortedkeylist.h"
#include "core/model/text.h"

namespace combwise {
namespace {

constexpr double kKeySpan = 99988.0;

}  // namespace

WordPool::WordPool(const std::vector<std::string>* words) : m_words(words) {
  const int n = static_cast<int>(words->size());
  m_order.resize(static_cast<std::size_t>(n));
  std::iota(m_order.begin(), m_order.end(), 0);

  // Ranks by the case-ignoring order; words equal but for case share one.
  // The upper-cased texts are made once, not in every comparison.
  std::vector<std::string> upper;
  upper.reserve(words->size());
  for (const std::string& word : *words) upper.push_back(toUpper(word));
  std::vector<int> byWord = m_order;
  std::stable_sort(byWord.begin(), byWord.end(), [&upper](int a, int b) {
    return upper[static_cast<std::size_t>(a)] < upper[static_cast<std::size_t>(b)];
  });
  m_rank.assign(static_cast<std::size_t>(n), 0);
  std::uint32_t rank = 0;
  for (int i = 0; i < n; ++i) {
    if (i > 0 && upper[static_cast<std::size_t>(byWord[i - 1])] != upper[static_cast<std::size_t>(byWord[i])]) ++rank;
    m_rank[static_cast<std::size_t>(byWord[i])] = rank;
  }
  if (std::all_of(words->begin(), words->end(), [](const std::string& w) { return w.size() <= kCompactStride; })) {
    m_compact.assign(words->size() * kCompactStride, 0);
    m_compactLength.resize(words->size());
    for (std::size_t i = 0; i < words->size(); ++i) {
      std::copy((*words)[i].begin(), (*words)[i].end(),
                m_compact.begin() + static_cast<std::ptrdiff_t>(i * kCompactStride));
      m_compactLength[i] = static_cast<unsigned char>((*words)[i].size());
    }
  }
  for (int i = 0; i < n; ++i) m_anagrams[sortedLetters((*words)[static_cast<std::size_t>(i)])].push_back(i);
}

std::vector<std::string> WordPool::orderedWords() const {
  std::vector<std::string> out;
  out.reserve(m_order.size());
  for (int i = 0; i < count(); ++i) out.push_back(at(i));
  return out;
}

void WordPool::resetOrder() {
  std::iota(m_order.begin(), m_order.end(), 0);
  m_positionsValid = false;
}

void WordPool::shuffle(RandomSource& random, GeneratorForm form) {
  if (form == GeneratorForm::Straightforward) {
    shuffleStraightforward(random);
  } else {
    shuffleFast(random);
  }
  m_positionsValid = false;
}

// Exactly the sorted scratch list: "00042WORD" texts in a list sorted with
// case ignored, equal texts kept in the order they were added.
void WordPool::shuffleStraightforward(RandomSource& random) {
  std::vector<std::pair<std::string, int>> scratch;
  scratch.reserve(m_order.size());
  for (int index : m_order) {
    const long long key = floorWhole(random.next() * kKeySpan + 1);
    scratch.emplace_back(zeroPadded(key, 5) + (*m_words)[static_cast<std::size_t>(index)], index);
  }
  std::stable_sort(scratch.begin(), scratch.end(),
                   [](const auto& a, const auto& b) { return SortedKeyList::less(a.first, b.first); });
  for (std::size_t i = 0; i < scratch.size(); ++i) m_order[i] = scratch[i].second;
}

// The same order from integer keys. The words are taken in pool order, so
// a stable sort by key alone orders them by key, then old position; two
// counting passes over the key's low and high bits do that in linear time
// without a single unpredictable branch. Only words that drew the same key
// (a few dozen in thousands) are then put in word order, stably, since the
// old position comes last.
//
// Each value holds the drawn key above the word's index. When the indexes
// fit in 15 bits, key and index share 32 bits: half the memory traffic, and
// a pool's scratch stays in the first-level cache.
void WordPool::shuffleFast(RandomSource& random) {
  if (m_order.empty()) return;
  if (m_order.size() <= (std::size_t{1} << kNarrowIndexBits)) {
    sortByDrawnKeys<std::uint32_t, kNarrowIndexBits>(random, m_narrow);
  } else {
    sortByDrawnKeys<std::uint64_t, 32>(random, m_scratch);
  }
}

template <typename Value, unsigned kIndexBits>
void WordPool::sortByDrawnKeys(RandomSource& random, std::vector<Value>& scratch) {
  const std::size_t n = m_order.size();
  constexpr unsigned kLowBits = 9;
  constexpr std::uint32_t kLowMask = (1u << kLowBits) - 1;
  constexpr std::size_t kHighBuckets = (static_cast<std::size_t>(kKeySpan) >> kLowBits) + 1;
  constexpr Value kIndexMask = (Value{1} << kIndexBits) - 1;

  std::array<std::uint32_t, kLowMask + 2> low{};
  std::array<std::uint32_t, kHighBuckets + 1> high{};
  scratch.resize(2 * n);
  Value* values = scratch.data();
  Value* byLow = values + n;
  const int* order = m_order.data();
  std::size_t i = 0;
  random.forEachDraw(n, [&](double draw) {
    const auto key = static_cast<std::uint32_t>(draw * kKeySpan + 1);  // positive, so truncation is the floor
    values[i] = (static_cast<Value>(key) << kIndexBits) | static_cast<Value>(order[i]);
    ++i;
    ++low[(key & kLowMask) + 1];
    ++high[(key >> kLowBits) + 1];
  });
  for (std::size_t b = 1; b < low.size(); ++b) low[b] += low[b - 1];
  for (std::size_t b = 1; b < high.size(); ++b) high[b] += high[b - 1];
  for (std::size_t k = 0; k < n; ++k) byLow[low[(values[k] >> kIndexBits) & kLowMask]++] = values[k];
  for (std::size_t k = 0; k < n; ++k) values[high[byLow[k] >> (kIndexBits + kLowBits)]++] = byLow[k];

  int* out = m_order.data();
  out[0] = static_cast<int>(values[0] & kIndexMask);
  for (std::size_t k = 1; k < n; ++k) {
    out[k] = static_cast<int>(values[k] & kIndexMask);
    if ((values[k] ^ values[k - 1]) > kIndexMask) continue;
    // Words k-1 and k drew the same key: insert word k among the earlier
    // words of that key by rank; equal ranks keep their old order.
    const int word = out[k];
    const std::uint32_t rank = m_rank[static_cast<std::size_t>(word)];
    std::size_t at = k;
    for (; at > 0 && (values[at - 1] >> kIndexBits) == (values[k] >> kIndexBits) &&
           m_rank[static_cast<std::size_t>(out[at - 1])] > rank;
         --at)
      out[at] = out[at - 1];
    out[at] = word;
  }
}

const std::vector<int>& WordPool::positions() const {
  if (!m_positionsValid) {
    m_position.resize(m_order.size());
    for (std::size_t i = 0; i < m_order.size(); ++i)
      m_position[static_cast<std::size_t>(m_order[i])] = static_cast<int>(i);
    m_positionsValid = true;
  }
  return m_position;
}

int WordPool::firstContaining(std::string_view letters, int letterCount, GeneratorForm form) const {
  // Letters past the end of `letters` are empty and always held.
  const std::string_view wanted = letters.substr(0, static_cast<std::size_t>(std::max(letterCount, 0)));
  if (form == GeneratorForm::Fast && !m_order.empty() && wanted.size() == (*m_words)[0].size()) {
    // As many letters as a pool word has: only its anagrams qualify.
    const auto found = m_anagrams.find(sortedLetters(wanted));
    if (found == m_anagrams.end()) return -1;
    const auto& position = positions();
    int best = -1;
    for (int index : found->second) {
      if (const int p = position[static_cast<std::size_t>(index)]; best < 0 || p < best) best = p;
    }
    return best;
  }
  for (int i = 0; i < count(); ++i) {
    if (containsAllLetters(at(i), wanted)) return i;
  }
  return -1;
}

}  // namespace combwise
