// The dictionary and the meanings file. A dictionary is a text file of one
// word a line; words of 3 to 6 letters A-Z go into the four pools (lower
// case taken as upper case, so that every reader finds the same clue
// lines), and every six-letter word also into the anagram keys (its letters
// sorted, then the word). Every other line is skipped and counted. The meanings file holds "WORD:clue" lines
// in binary order; a word's clue is chosen by its 1-based meaning number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/files/errorlog.h"
#include "core/files/simplearray.h"
#include "core/files/sortedkeylist.h"
#include "core/model/callbacks.h"

namespace combwise {

struct Dictionary {
  explicit Dictionary(const ErrorLog* log = nullptr);

  clsSimpleArray Words3;
  clsSimpleArray Words4;
  clsSimpleArray Words5;
  clsSimpleArray Words6;
  SortedKeyList SixLetterKeys;  // sorted letters followed by the word, 12 characters
  std::string path;             // the dictionary file last read
  long long skippedLines = 0;   // non-blank lines that are not words of 3 to 6 letters A-Z

  // The pool of words of `length` letters (3..6); nullptr for another length.
  clsSimpleArray* pool(int length);
  const clsSimpleArray* pool(int length) const;
  bool empty() const {
    return Words3.ListCount() == 0 && Words4.ListCount() == 0 && Words5.ListCount() == 0 && Words6.ListCount() == 0;
  }
  void clear();
};

// The letters of a word sorted by character code: "TEARS" -> "AERST".
std::string sortedLetters(std::string_view word);

// Reads a dictionary file into `dictionary`, replacing what it held; the
// events run after every line. On failure (the file cannot be opened or
// read, or memory runs out) the dictionary is left empty and the error
// names the file and the cause.
Status readDictionary(const std::string& path, Dictionary& dictionary, const PumpEvents& events = {});

// The word of a dictionary line: the line in upper case when it is 3 to 6
// letters A-Z in either case; nothing otherwise.
std::optional<std::string> dictionaryWord(std::string_view line);

// One notice for the lines a read skipped ("12 lines of PATH are not words
// of 3 to 6 letters A-Z and were skipped"); empty when none were.
std::string skippedLinesWarning(const Dictionary& dictionary);

class Meanings {
 public:
  explicit Meanings(const ErrorLog* log = nullptr) : m_lines(log) {}

  // Reads the meanings file unless lines are already held (it is read once
  // per run). On failure nothing is held and the error names the file.
  Status read(const std::string& path, const PumpEvents& events = {});
  // Reads the file again even when lines are held.
  Status reload(const std::string& path, const PumpEvents& events = {});
  // What makes the file read unfit for clues, said once: it is empty, has
  // no "WORD:clue" lines, or is not in ascending order (the lookup is a
  // binary search). Empty when the file is fit or none was read.
  const std::string& warning() const { return m_warning; }
  bool loaded() const { return m_lines.ListCount() > 0; }
  int lineCount() const { return m_lines.ListCount(); }
  const clsSimpleArray& lines() const { return m_lines; }

  // Index of the first line beginning with `key` (the word and ":"), -1
  // when none does.
  int firstLine(std::string_view key) const;
  // How many lines from `first` on begin with `key`, looking at no more
  // than `limit` lines after the first.
  int countLines(std::string_view key, int first, int limit = 1000) const;
  // The clue of meaning number m of a word: the text after "WORD:" of the
  // word's m-th line. Empty when the word has no lines or fewer than m.
  std::string clue(std::string_view word, int meaningNumber) const;

 private:
  void checkFitness(const std::string& path);

  clsSimpleArray m_lines;
  std::string m_warning;
};

}  // namespace combwise
