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
  std::vector<int> byWord = m_order;
  std::stable_sort(byWord.begin(), byWord.end(),
                   [words](int a, int b) { return SortedKeyList::less((*words)[a], (*words)[b]); });
  m_rank.assign(static_cast<std::size_t>(n), 0);
  std::uint32_t rank = 0;
  for (int i = 0; i < n; ++i) {
    if (i > 0 && SortedKeyList::less((*words)[byWord[i - 1]], (*words)[byWord[i]])) ++rank;
    m_rank[static_cast<std::size_t>(byWord[i])] = rank;
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

// The same order from integer keys: key, then word rank, then old
// position, packed into one 64-bit value each (all three together are
// distinct, so there is only one order). The keys are uniform, so the values
// are scattered into buckets by their top part and a final insertion pass
// puts the few out of place right: linear time instead of a full sort.
void WordPool::shuffleFast(RandomSource& random) {
  const std::size_t n = m_order.size();
  if (n == 0) return;
  m_scratch.resize(n);
  constexpr std::uint64_t kKeyShift = 44;
  for (std::size_t i = 0; i < n; ++i) {
    const auto key = static_cast<std::uint64_t>(floorWhole(random.next() * kKeySpan + 1));
    m_scratch[i] =
        (key << kKeyShift) | (static_cast<std::uint64_t>(m_rank[static_cast<std::size_t>(m_order[i])]) << 22) | i;
  }

  // About two buckets per value, chosen by the key's top bits.
  int shift = 0;
  while ((static_cast<std::size_t>(kKeySpan) >> (shift + 1)) >= 2 * n) ++shift;
  const std::size_t buckets = (static_cast<std::size_t>(kKeySpan) >> shift) + 1;
  const auto bucketOf = [shift](std::uint64_t value) {
    return static_cast<std::size_t>(value >> (kKeyShift + static_cast<unsigned>(shift)));
  };
  m_bucketStart.assign(buckets + 1, 0);
  for (std::uint64_t value : m_scratch) ++m_bucketStart[bucketOf(value) + 1];
  for (std::size_t b = 1; b <= buckets; ++b) m_bucketStart[b] += m_bucketStart[b - 1];
  m_sorted.resize(n);
  for (std::uint64_t value : m_scratch) m_sorted[m_bucketStart[bucketOf(value)]++] = value;
  for (std::size_t i = 1; i < n; ++i) {
    const std::uint64_t value = m_sorted[i];
    std::size_t j = i;
    for (; j > 0 && m_sorted[j - 1] > value; --j) m_sorted[j] = m_sorted[j - 1];
    m_sorted[j] = value;
  }

  std::vector<int> next(n);
  for (std::size_t i = 0; i < n; ++i) next[i] = m_order[m_sorted[i] & ((1u << 22) - 1)];
  m_order.swap(next);
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
