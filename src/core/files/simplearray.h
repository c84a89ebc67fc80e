// clsSimpleArray: the program's growable list of texts, each with a whole
// number beside it (its item data). It holds the dictionary pools and the
// meanings lines and offers the searches the generator and the clue lookup
// use. Index errors change nothing, read as empty, and go to the error log.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/files/errorlog.h"

namespace combwise {

class clsSimpleArray {
 public:
  // Index errors are appended to `log` when one is given.
  explicit clsSimpleArray(const ErrorLog* log = nullptr) : m_log(log) {}

  void setErrorLog(const ErrorLog* log) { m_log = log; }

  // Inserts the text: at `index` when it is 0 or more (at most the last
  // index), else in sorted position when Sorted is set, else at the end.
  // The new index becomes the text's position.
  void AddItem(std::string text, int index = -1);
  void Clear();

  // First item equal to the text ignoring case; sets and returns the new
  // index (-1 when none). Both settings of the flag compare ignoring case.
  int FindItem(std::string_view text, bool flag = false);
  // First item whose item data equals value; sets and returns the new index.
  int FindItemData(std::int32_t value);

  std::int32_t ItemData(int index) const;
  void setItemData(int index, std::int32_t value);
  std::string list(int index) const;
  void setList(int index, std::string text);

  int ListCount() const { return static_cast<int>(m_items.size()); }
  int NewIndex() const { return m_newIndex; }

  void RemoveDuplicates();
  void RemoveItem(int index);
  void RemoveItemsMatching(std::string_view text);
  void RemoveItemDataMatching(std::int32_t value);

  bool Sorted() const { return m_sorted; }
  void setSorted(bool sorted) { m_sorted = sorted; }

  // The item at the new index (empty when there is none).
  std::string Text() const;

  // Collects every item matching the wildcard pattern: the result is the
  // number of matches minus 1, and item data 0..result hold the matching
  // indexes in ascending order (the item data doubles as the result buffer).
  int FindString(std::string_view pattern);
  // First index whose item equals the text exactly, or -1.
  int FindStringOnce(std::string_view text) const;
  // First index whose item begins with the text (exact comparison), or -1.
  // The new index is set to -1 first.
  int FindStringLeftOne(std::string_view text);
  // First index whose item matches the wildcard pattern, or -1.
  int FindStringOnceWild(std::string_view pattern) const;
  // First index whose item contains the text, or -1.
  int FindStringOnceAny(std::string_view text) const;
  // First index whose item contains the first `count` letters of `letters`,
  // each as many times as it occurs there, or -1.
  int FindStringAll(std::string_view letters, int count) const;
  // Binary search over items in ascending binary order for one that begins
  // with the key; any such index, or -1.
  int FindWordInDict(std::string_view key) const;

  // Read-only view of the items, for callers that scan them in bulk.
  const std::vector<std::string>& items() const { return m_items; }

  static constexpr const char* kIndexError =
      "The selected index number exceeds the number of elements dimensioned in the array!";

 private:
  bool validIndex(int index) const { return index >= 0 && index < ListCount(); }
  void reportIndexError(const char* member) const;
  void reserveFor(std::size_t count);

  std::vector<std::string> m_items;
  std::vector<std::int32_t> m_itemData;
  int m_newIndex = -1;
  bool m_sorted = false;
  const ErrorLog* m_log = nullptr;
};

// True when `item` holds every character of `letters`, each as often as it
// occurs there (the test of FindStringAll).
bool containsAllLetters(std::string_view item, std::string_view letters);

// The wildcard match of the list's searches: "?" one character, "*" any
// run, "#" one digit, "[...]" one character of a set (ranges like a-z
// allowed), "[!...]" one character outside it. Characters compare exactly.
bool matchesWildcard(std::string_view text, std::string_view pattern);

}  // namespace combwise
