// Reading the dictionary and meanings files, and looking clues up.
#include "core/files/dictionary.h"

#include <algorithm>
#include <new>

#include "core/files/textfile.h"
#include "core/model/text.h"

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

std::optional<std::string> dictionaryWord(std::string_view line) {
  if (line.size() < 3 || line.size() > 6) return std::nullopt;
  std::string word(line);
  for (char& c : word) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
    if (c < 'A' || c > 'Z') return std::nullopt;
  }
  return word;
}

std::string skippedLinesWarning(const Dictionary& dictionary) {
  if (dictionary.skippedLines == 0) return {};
  const bool one = dictionary.skippedLines == 1;
  return NumberText(dictionary.skippedLines) + (one ? " line of " : " lines of ") + dictionary.path +
         (one ? " is not a word" : " are not words") + " of 3 to 6 letters A-Z and " + (one ? "was" : "were") +
         " skipped";
}

Status readDictionary(const std::string& path, Dictionary& dictionary, const PumpEvents& events) {
  dictionary.clear();
  dictionary.skippedLines = 0;
  LineReader reader(path);
  if (!reader.isOpen()) return Status::failure(reader.error());
  // No word is longer than six letters: longer lines need not be kept whole.
  reader.setMaxLineLength(64);
  try {
    std::vector<std::string> keys;
    while (auto line = reader.next()) {
      pump(events);
      auto word = dictionaryWord(*line);
      if (!word) {
        if (!trimmed(*line).empty()) ++dictionary.skippedLines;
        continue;
      }
      clsSimpleArray* pool = dictionary.pool(static_cast<int>(word->size()));
      if (word->size() == 6) keys.push_back(sortedLetters(*word) + *word);
      pool->AddItem(std::move(*word));
    }
    if (reader.failed()) {
      dictionary.clear();
      return Status::failure(reader.error());
    }
    // Inserting one by one into the sorted list gives the same order as a
    // stable sort of the keys in file order.
    std::stable_sort(keys.begin(), keys.end(),
                     [](const std::string& a, const std::string& b) { return SortedKeyList::less(a, b); });
    dictionary.SixLetterKeys.reserve(keys.size());
    for (auto& key : keys) dictionary.SixLetterKeys.insert(std::move(key));
  } catch (const std::bad_alloc&) {
    dictionary.clear();
    return Status::failure("Cannot read " + path + ": there is not enough memory");
  }
  dictionary.path = path;
  return Status::success();
}

Status Meanings::read(const std::string& path, const PumpEvents& events) {
  if (loaded()) return Status::success();
  return reload(path, events);
}

Status Meanings::reload(const std::string& path, const PumpEvents& events) {
  m_lines.Clear();
  m_warning.clear();
  LineReader reader(path);
  if (!reader.isOpen()) return Status::failure(reader.error());
  try {
    while (auto line = reader.next()) {
      pump(events);
      m_lines.AddItem(std::move(*line));
    }
  } catch (const std::bad_alloc&) {
    m_lines.Clear();
    return Status::failure("Cannot read " + path + ": there is not enough memory");
  }
  if (reader.failed()) {
    m_lines.Clear();
    return Status::failure(reader.error());
  }
  checkFitness(path);
  return Status::success();
}

void Meanings::checkFitness(const std::string& path) {
  const auto& items = m_lines.items();
  if (items.empty()) {
    m_warning = path + " holds no meanings: every clue will be empty";
    return;
  }
  bool anyClue = false;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::string_view line = items[i];
    const auto colon = line.find(':');
    if (colon != std::string_view::npos && colon > 0) anyClue = true;
    if (i > 0 && line < std::string_view(items[i - 1])) {
      m_warning = path + " is not sorted (line " + NumberText(static_cast<long long>(i) + 1) + " belongs before line " +
                  NumberText(static_cast<long long>(i)) + "): clues may not be found";
      return;
    }
  }
  if (!anyClue) m_warning = path + " holds no WORD:clue lines: every clue will be empty";
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
