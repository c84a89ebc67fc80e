// The sorted key list: ordered by character code with case ignored.
#include "core/files/sortedkeylist.h"

#include <algorithm>
#include <cctype>

#include "core/model/text.h"

namespace combwise {

bool SortedKeyList::less(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return std::toupper(static_cast<unsigned char>(x)) < std::toupper(static_cast<unsigned char>(y));
  });
}

void SortedKeyList::insert(std::string text) {
  const auto at = std::upper_bound(m_items.begin(), m_items.end(), text,
                                   [](const std::string& a, const std::string& b) { return less(a, b); });
  m_items.insert(at, std::move(text));
}

int SortedKeyList::firstWithPrefix(std::string_view prefix) const {
  // Entries beginning with the prefix stand together, from the first entry
  // not less than the prefix itself.
  const auto at = std::lower_bound(m_items.begin(), m_items.end(), prefix,
                                   [](const std::string& a, std::string_view b) { return less(a, b); });
  if (at == m_items.end() || !startsWithIgnoreCase(*at, prefix)) return -1;
  return static_cast<int>(at - m_items.begin());
}

}  // namespace combwise
