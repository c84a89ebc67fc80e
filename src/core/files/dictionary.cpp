// Reading the dictionary and meanings files, and looking clues up.
#include "core/files/dictionary.h"

#include <algorithm>

#include "core/files/textfile.h"

namespace combwise {

Dictionary::Dictionary(const ErrorLog* log) : Words3(log), Words4(log), Words5(log), Words6(log) {}

clsSimpleArray* Dictionary::pool(int length) {
  switch (length) {
    case 3:
      return &Words3;
    case 4:
      return &Words4;
    case 5:
      return &Words5;
    case 6:
      return &Words6;
    default:
      return nullptr;
  }
}

const clsSimpleArray* Dictionary::pool(int length) const { return const_cast<Dictionary*>(this)->pool(length); }

void Dictionary::clear() {
  Words3.Clear();
  Words4.Clear();
  Words5.Clear();
  Words6.Clear();
  SixLetterKeys.clear();
}

std::string sortedLetters(std::string_view word) {
  std::string letters(word);
  std::sort(letters.begin(), letters.end(),
            [](char a, char b) { return static_cast<unsigned char>(a) < static_cast<unsigned char>(b); });
  return letters;
}

Status readDictionary(const std::string& path, Dictionary& dictionary, const PumpEvents& events) {
  dictionary.clear();
  LineReader reader(path);
  if (!reader.isOpen()) return Status::failure("Cannot open dictionary " + path);
  std::vector<std::string> keys;
  while (auto line = reader.next()) {
    pump(events);
    if (clsSimpleArray* pool = dictionary.pool(static_cast<int>(line->size()))) {
      if (line->size() == 6) keys.push_back(sortedLetters(*line) + *line);
      pool->AddItem(std::move(*line));
    }
  }
  if (reader.failed()) {
    dictionary.clear();
    return Status::failure("Cannot read dictionary " + path);
  }
  // Inserting one by one into the sorted list gives the same order as a
  // stable sort of the keys in file order.
  std::stable_sort(keys.begin(), keys.end(),
                   [](const std::string& a, const std::string& b) { return SortedKeyList::less(a, b); });
  dictionary.SixLetterKeys.reserve(keys.size());
  for (auto& key : keys) dictionary.SixLetterKeys.insert(std::move(key));
  dictionary.path = path;
  return Status::success();
}

Status Meanings::read(const std::string& path, const PumpEvents& events) {
  if (loaded()) return Status::success();
  return reload(path, events);
}

Status Meanings::reload(const std::string& path, const PumpEvents& events) {
  m_lines.Clear();
  LineReader reader(path);
  if (!reader.isOpen()) return Status::failure("Cannot open meanings file " + path);
  while (auto line = reader.next()) {
    pump(events);
    m_lines.AddItem(std::move(*line));
  }
  if (reader.failed()) {
    m_lines.Clear();
    return Status::failure("Cannot read meanings file " + path);
  }
  return Status::success();
}

int Meanings::firstLine(std::string_view key) const {
  int index = m_lines.FindWordInDict(key);
  if (index < 0) return -1;
  const auto& items = m_lines.items();
  while (index > 0 && std::string_view(items[index - 1]).starts_with(key)) --index;
  return index;
}

int Meanings::countLines(std::string_view key, int first, int limit) const {
  if (first < 0) return 0;
  const auto& items = m_lines.items();
  int count = 0;
  for (int i = first; i < static_cast<int>(items.size()) && i <= first + limit; ++i) {
    if (!std::string_view(items[i]).starts_with(key)) break;
    ++count;
  }
  return count;
}

std::string Meanings::clue(std::string_view word, int meaningNumber) const {
  if (meaningNumber < 1 || word.empty()) return {};
  const std::string key = std::string(word) + ":";
  const int first = firstLine(key);
  if (first < 0) return {};
  const long long index = static_cast<long long>(first) + meaningNumber - 1;
  if (index >= m_lines.ListCount()) return {};
  const std::string& line = m_lines.items()[static_cast<std::size_t>(index)];
  if (!std::string_view(line).starts_with(key)) return {};
  return line.substr(key.size());
}

}  // namespace combwise
