// clsSimpleArray: list upkeep, searches, and index errors to the error log.
#include "core/files/simplearray.h"

#include <algorithm>
#include <cctype>

#include "core/model/text.h"

namespace combwise {

void clsSimpleArray::reportIndexError(const char* member) const {
  if (m_log) m_log->LogError(false, "-1", kIndexError, "clsSimpleArray", member);
}

// Room for at least 100 more items whenever the list is full, and at least
// as many again as it holds, so that filling a list of n items copies them
// a logarithmic number of times rather than n / 100 times.
void clsSimpleArray::reserveFor(std::size_t count) {
  if (count > m_items.capacity()) {
    const std::size_t capacity = std::max(count - 1 + 101, 2 * m_items.capacity());
    m_items.reserve(capacity);
    m_itemData.reserve(capacity);
  }
}

void clsSimpleArray::AddItem(std::string text, int index) {
  std::size_t position = m_items.size();
  if (m_items.empty()) {
    if (index > 0) {
      reportIndexError("AddItem");
      return;
    }
    position = 0;
  } else if (index >= 0) {
    if (index >= ListCount()) {
      reportIndexError("AddItem");
      return;
    }
    position = static_cast<std::size_t>(index);
  } else if (m_sorted) {
    // The first item not less than the text, scanning from the start: on a
    // list filled while unsorted this is not a binary search's answer.
    position = 0;
    while (position < m_items.size() && m_items[position] < text) ++position;
  }
  reserveFor(m_items.size() + 1);
  m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(position), std::move(text));
  m_itemData.insert(m_itemData.begin() + static_cast<std::ptrdiff_t>(position), 0);
  m_newIndex = static_cast<int>(position);
}

void clsSimpleArray::Clear() {
  std::vector<std::string>().swap(m_items);
  std::vector<std::int32_t>().swap(m_itemData);
  m_newIndex = -1;
}

int clsSimpleArray::FindItem(std::string_view text, bool /*flag*/) {
  m_newIndex = -1;
  for (int i = 0; i < ListCount(); ++i) {
    if (equalsIgnoreCase(m_items[i], text)) {
      m_newIndex = i;
      break;
    }
  }
  return m_newIndex;
}

int clsSimpleArray::FindItemData(std::int32_t value) {
  const auto found = std::find(m_itemData.begin(), m_itemData.end(), value);
  m_newIndex = found == m_itemData.end() ? -1 : static_cast<int>(found - m_itemData.begin());
  return m_newIndex;
}

std::int32_t clsSimpleArray::ItemData(int index) const {
  if (!validIndex(index)) {
    reportIndexError("Get ItemData");
    return 0;
  }
  return m_itemData[index];
}

void clsSimpleArray::setItemData(int index, std::int32_t value) {
  if (!validIndex(index)) {
    reportIndexError("Let ItemData");
    return;
  }
  m_itemData[index] = value;
}

std::string clsSimpleArray::list(int index) const {
  if (!validIndex(index)) {
    reportIndexError("Get AddItem");
    return {};
  }
  return m_items[index];
}

void clsSimpleArray::setList(int index, std::string text) {
  if (!validIndex(index)) {
    reportIndexError("Let AddItem");
    return;
  }
  m_items[index] = std::move(text);
}

void clsSimpleArray::RemoveItem(int index) {
  if (!validIndex(index)) {
    reportIndexError("RemoveItem");
    return;
  }
  m_items.erase(m_items.begin() + index);
  m_itemData.erase(m_itemData.begin() + index);
}

void clsSimpleArray::RemoveDuplicates() {
  if (ListCount() < 2) return;
  for (int i = 0; i < ListCount(); ++i) {
    const std::string key = toUpper(m_items[i]);
    for (int j = ListCount() - 1; j > i; --j) {
      if (equalsIgnoreCase(m_items[j], key)) RemoveItem(j);
    }
  }
}

void clsSimpleArray::RemoveItemsMatching(std::string_view text) {
  for (int i = ListCount() - 1; i >= 0; --i) {
    if (equalsIgnoreCase(m_items[i], text)) RemoveItem(i);
  }
}

void clsSimpleArray::RemoveItemDataMatching(std::int32_t value) {
  for (int i = ListCount() - 1; i >= 0; --i) {
    if (m_itemData[i] == value) RemoveItem(i);
  }
}

std::string clsSimpleArray::Text() const { return validIndex(m_newIndex) ? m_items[m_newIndex] : std::string(); }

int clsSimpleArray::FindString(std::string_view pattern) {
  int result = -1;
  for (int i = 0; i < ListCount(); ++i) {
    if (matchesWildcard(m_items[i], pattern)) {
      ++result;
      m_itemData[result] = i;  // result <= i, always inside the list
    }
  }
  return result;
}

int clsSimpleArray::FindStringOnce(std::string_view text) const {
  for (int i = 0; i < ListCount(); ++i) {
    if (m_items[i] == text) return i;
  }
  return -1;
}

int clsSimpleArray::FindStringLeftOne(std::string_view text) {
  m_newIndex = -1;
  for (int i = 0; i < ListCount(); ++i) {
    if (std::string_view(m_items[i]).starts_with(text)) return i;
  }
  return -1;
}

int clsSimpleArray::FindStringOnceWild(std::string_view pattern) const {
  for (int i = 0; i < ListCount(); ++i) {
    if (matchesWildcard(m_items[i], pattern)) return i;
  }
  return -1;
}

int clsSimpleArray::FindStringOnceAny(std::string_view text) const {
  for (int i = 0; i < ListCount(); ++i) {
    if (m_items[i].find(text) != std::string::npos) return i;
  }
  return -1;
}

int clsSimpleArray::FindStringAll(std::string_view letters, int count) const {
  // Letters past the end of `letters` are empty and always "contained".
  const std::string_view wanted = letters.substr(0, static_cast<std::size_t>(std::max(count, 0)));
  for (int i = 0; i < ListCount(); ++i) {
    if (containsAllLetters(m_items[i], wanted)) return i;
  }
  return -1;
}

bool containsAllLetters(std::string_view item, std::string_view letters) {
  std::string copy(item);
  for (char letter : letters) {
    const auto at = copy.find(letter);
    if (at == std::string::npos) return false;
    copy.erase(at, 1);
  }
  return true;
}

int clsSimpleArray::FindWordInDict(std::string_view key) const {
  int low = 0;
  int high = ListCount() - 1;
  while (low <= high) {
    const int sum = low + high;
    int middle = sum / 2;                           // sum >= 0, so this is the lower middle
    if (sum % 2 != 0 && middle % 2 != 0) ++middle;  // a half rounds to the even neighbour
    const std::string_view head = std::string_view(m_items[middle]).substr(0, key.size());
    const int order = head.compare(key);
    if (order == 0) return middle;
    if (order < 0) {
      low = middle + 1;
    } else {
      high = middle - 1;
    }
  }
  return -1;
}

namespace {

// Matches one "[...]" set at pattern[p] (just after "["); advances p past
// the closing "]". A set without its "]" matches nothing.
bool matchSet(char c, std::string_view pattern, std::size_t& p) {
  bool negate = false;
  if (p < pattern.size() && pattern[p] == '!') {
    negate = true;
    ++p;
  }
  bool hit = false;
  bool first = true;
  while (p < pattern.size() && (pattern[p] != ']' || first)) {
    first = false;
    const char low = pattern[p];
    if (p + 2 < pattern.size() && pattern[p + 1] == '-' && pattern[p + 2] != ']') {
      const char high = pattern[p + 2];
      if (static_cast<unsigned char>(c) >= static_cast<unsigned char>(low) &&
          static_cast<unsigned char>(c) <= static_cast<unsigned char>(high))
        hit = true;
      p += 3;
    } else {
      if (c == low) hit = true;
      ++p;
    }
  }
  if (p >= pattern.size()) return false;  // no closing bracket
  ++p;
  return hit != negate;
}

// One pattern token against one character: "?", "#", "[...]" or a literal.
// `next` receives the position after the token.
bool matchToken(char c, std::string_view pattern, std::size_t p, std::size_t& next) {
  const char token = pattern[p];
  next = p + 1;
  if (token == '?') return true;
  if (token == '#') return std::isdigit(static_cast<unsigned char>(c)) != 0;
  if (token == '[') return matchSet(c, pattern, next);
  return c == token;
}

// Every token but "*" takes exactly one character, so the greedy form is
// exact: on a mismatch only the latest "*" needs to take one more
// character, since an earlier "*" taking more could only leave less room
// for what follows. Linear in practice, at worst text length times pattern
// length, where trying every split of every "*" was exponential.
bool matchFrom(std::string_view text, std::string_view pattern) {
  std::size_t t = 0;
  std::size_t p = 0;
  std::size_t starP = std::string_view::npos;  // the pattern after the latest "*"
  std::size_t starT = 0;                       // where that "*" stopped taking characters
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      while (p < pattern.size() && pattern[p] == '*') ++p;
      if (p == pattern.size()) return true;
      starP = p;
      starT = t;
      continue;
    }
    std::size_t next = 0;
    if (p < pattern.size() && matchToken(text[t], pattern, p, next)) {
      p = next;
      ++t;
      continue;
    }
    if (starP == std::string_view::npos) return false;
    p = starP;
    t = ++starT;
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace

bool matchesWildcard(std::string_view text, std::string_view pattern) { return matchFrom(text, pattern); }

}  // namespace combwise
