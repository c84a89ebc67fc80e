// A sorted list of texts, ascending with case ignored, that finds the first
// entry beginning with a text: the anagram keys and the scratch lists of
// the shuffles are kept in one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace combwise {

class SortedKeyList {
 public:
  // Inserts after any entries that compare equal, so equal entries keep
  // their order of insertion.
  void insert(std::string text);
  void clear() { m_items.clear(); }
  void reserve(std::size_t count) { m_items.reserve(count); }

  // Index of the first entry that begins with the prefix (case ignored), -1
  // when none does.
  int firstWithPrefix(std::string_view prefix) const;
  bool containsPrefix(std::string_view prefix) const { return firstWithPrefix(prefix) >= 0; }

  int size() const { return static_cast<int>(m_items.size()); }
  bool empty() const { return m_items.empty(); }
  const std::string& at(int index) const { return m_items[static_cast<std::size_t>(index)]; }
  const std::vector<std::string>& items() const { return m_items; }

  // The list's order: by character code after upper-casing.
  static bool less(std::string_view a, std::string_view b);

 private:
  std::vector<std::string> m_items;
};

}  // namespace combwise
