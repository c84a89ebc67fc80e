// Writing, counting and reading puzzle collection lines.
#include "core/files/puzzlefile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cmath>
#include <optional>
#include <utility>

#include "core/model/text.h"

namespace combwise {

namespace {

struct DotCode {
  char code;
  std::size_t run;
};
// Longest first: compaction depends on this order, expansion does not.
constexpr std::array<DotCode, 5> kDotCodes = {{{'#', 21}, {'%', 5}, {'^', 4}, {'&', 3}, {'*', 2}}};

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  out.reserve(text.size());
  std::size_t start = 0;
  for (std::size_t at; (at = text.find(from, start)) != std::string_view::npos; start = at + from.size()) {
    out.append(text.substr(start, at - start));
    out.append(to);
  }
  out.append(text.substr(start));
  return out;
}

// The characters a line has once its dot codes are expanded, counted
// without expanding it.
std::size_t expandedLength(std::string_view text) {
  std::size_t length = 0;
  for (const char c : text) {
    std::size_t run = 1;
    for (const auto& dot : kDotCodes) {
      if (dot.code == c) run = dot.run;
    }
    length += run;
  }
  return length;
}

// The leading number of a field as a 32-bit whole number; nothing when it
// does not fit.
std::optional<int> wholeNumber(std::string_view text) {
  const double value = leadingValue(text);
  if (!std::isfinite(value) || std::fabs(value) > static_cast<double>(INT_MAX)) return std::nullopt;
  return static_cast<int>(roundHalfEven(value));
}

PuzzleReadResult failed(ReadOutcome outcome, std::string message, int number = 0) {
  PuzzleReadResult result;
  result.outcome = outcome;
  result.message = std::move(message);
  result.number = number;
  return result;
}

// The grid of a size, without disturbing the board in use.
std::pair<int, int> gridOf(int size, const Board& board) {
  if (board.size() == size) return {board.rows(), board.cols()};
  Board scratch;
  scratch.setUp(size);
  return {scratch.rows(), scratch.cols()};
}

}  // namespace

std::string compactDots(std::string_view text) {
  std::string out(text);
  for (const auto& [code, run] : kDotCodes) out = replaceAll(out, std::string(run, '.'), std::string(1, code));
  return out;
}

std::string expandDots(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    std::size_t run = 0;
    for (const auto& dot : kDotCodes) {
      if (dot.code == c) run = dot.run;
    }
    if (run > 0) {
      out.append(run, '.');
    } else {
      out += c;
    }
  }
  return out;
}

std::string formatPuzzleLine(const PuzzleRecord& record) {
  std::string line = compactDots(NumberText(record.size) + ";" + record.letters) + ";";
  for (const auto& field : record.words) line += field.word + "," + NumberText(field.meaning) + ";";
  return line;
}

ParsedLine parsePuzzleLine(std::string_view line) {
  ParsedLine parsed;
  // The length is checked before anything is expanded, so a huge line costs
  // no more than reading it.
  if (expandedLength(line) > kMaxPuzzleLineLength) {
    parsed.error = "the line is too long for any puzzle";
    return parsed;
  }
  const std::string expanded = expandDots(line);
  const std::string_view text = expanded;
  // Fields are taken one at a time: a line of many empty fields keeps none
  // of them beyond the last possible word slot.
  std::size_t start = 0;
  const auto nextField = [&](std::string_view& field) {
    if (start > text.size()) return false;
    const std::size_t end = std::min(text.find(';', start), text.size());
    field = text.substr(start, end - start);
    start = end + 1;
    return true;
  };
  std::string_view field;
  nextField(field);
  const auto size = wholeNumber(field);
  if (!size) {
    parsed.error = "the size does not fit a whole number";
    return parsed;
  }
  parsed.record.size = *size;
  parsed.fieldCount = 1;
  if (nextField(field)) {
    parsed.record.letters = std::string(field);
    ++parsed.fieldCount;
  }
  // Fields 3 up to the last but one: the last is what follows the final ";".
  for (std::size_t i = 2; nextField(field); ++i) {
    ++parsed.fieldCount;
    if (start > text.size()) break;  // the field after the final ";"
    WordField word;
    if (!field.empty()) {
      const auto comma = field.find(',');
      if (comma == std::string_view::npos) {
        parsed.error = "word field " + NumberText(static_cast<long long>(i) - 1) + " has no \",\"";
        return parsed;
      }
      const auto meaning = wholeNumber(field.substr(comma + 1));
      if (!meaning) {
        parsed.error =
            "the meaning number of word field " + NumberText(static_cast<long long>(i) - 1) + " does not fit";
        return parsed;
      }
      word.word = std::string(field.substr(0, comma));
      word.meaning = *meaning;
    }
    if (parsed.record.words.size() >= static_cast<std::size_t>(PuzzleState::kMaxSlots)) {
      if (!word.word.empty() || word.meaning != 0) {
        parsed.error = "there are more words than the puzzle has slots";
        return parsed;
      }
      continue;
    }
    parsed.record.words.push_back(std::move(word));
  }
  return parsed;
}

PuzzleRecord recordOf(const PuzzleState& state) {
  PuzzleRecord record;
  record.size = state.PuzzleSize;
  for (int row = 1; row <= state.GridRows; ++row) {
    for (int col = 1; col <= state.GridCols; ++col) {
      const std::string& letter = state.Letters.at(row, col);
      record.letters += letter.empty() ? std::string(".") : letter;
    }
  }
  for (int slot = 1; slot <= state.WordCount && slot <= PuzzleState::kMaxSlots; ++slot)
    record.words.push_back({state.WordSlots[slot], state.MeaningNumbers[slot]});
  return record;
}

Status writePuzzle(const std::string& path, WriteMode mode, const PuzzleState& state) {
  if (!Board::isValidSize(state.PuzzleSize)) return Status::failure("There is no puzzle to save");
  if (mode == WriteMode::Append) return appendLines(path, {puzzleLine(state)});
  errno = 0;
  if (!writeLines(path, {puzzleLine(state)}, mode)) return Status::failure(fileErrorMessage("write", path, errno));
  return Status::success();
}

int countPuzzles(const std::string& path) {
  // A pipe or device could be read only once, or would block: the reader
  // refuses it, and it counts as no puzzles.
  if (unreadableReason(path)) return 0;
  const long long count = countLines(path);
  return count > INT_MAX ? INT_MAX : static_cast<int>(count);
}

PuzzleReadResult loadPuzzleLine(std::string_view line, Board& board, PuzzleState& state, const ClueSource& clues) {
  // Everything is checked before the state is touched, so a bad line leaves
  // the shown puzzle exactly as it was.
  if (line.empty()) return failed(ReadOutcome::Malformed, "blank line");
  ParsedLine parsed = parsePuzzleLine(line);
  if (!parsed.error.empty()) return failed(ReadOutcome::Malformed, parsed.error);
  const PuzzleRecord& record = parsed.record;
  if (parsed.fieldCount < 3) return failed(ReadOutcome::Malformed, "the line ends before its word fields");
  if (std::none_of(record.words.begin(), record.words.end(), [](const WordField& w) { return !w.word.empty(); }))
    return failed(ReadOutcome::Malformed, "the line holds no words");
  if (!Board::isValidSize(record.size))
    return failed(ReadOutcome::Malformed, "there is no puzzle size " + NumberText(record.size));
  const auto [rows, cols] = gridOf(record.size, board);
  if (record.letters.size() > static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols))
    return failed(ReadOutcome::Malformed, "the letters do not fit the grid of size " + NumberText(record.size));
  const int wordCount = 2 * record.size;
  for (std::size_t i = static_cast<std::size_t>(wordCount); i < record.words.size(); ++i) {
    if (!record.words[i].word.empty() || record.words[i].meaning != 0)
      return failed(ReadOutcome::Malformed, "there are more words than the puzzle has slots");
  }

  PuzzleReadResult result;
  result.outcome = ReadOutcome::Loaded;
  if (record.size != state.PuzzleSize || board.size() != record.size) {
    setUpPuzzle(board, state, record.size);
    result.rebuilt = true;
  }
  state.clearSlots();
  std::size_t k = 0;
  for (int row = 1; row <= rows; ++row) {
    for (int col = 1; col <= cols; ++col, ++k) {
      const char c = k < record.letters.size() ? record.letters[k] : '.';
      state.Letters.at(row, col) = c == '.' ? std::string() : std::string(1, c);
    }
  }
  for (std::size_t i = 0; i < record.words.size() && i < static_cast<std::size_t>(wordCount); ++i) {
    state.WordSlots[i + 1] = record.words[i].word;
    state.MeaningNumbers[i + 1] = record.words[i].meaning;
  }
  if (clues.meanings) {
    result.clues = clues.meanings->read(clues.path, clues.events);
    for (int slot = 1; slot <= state.WordCount; ++slot)
      state.ClueTexts[slot] = clues.meanings->clue(state.WordSlots[slot], state.MeaningNumbers[slot]);
  }
  state.resetPlay();
  return result;
}

PuzzleReadResult readPuzzle(const std::string& path, int n, Board& board, PuzzleState& state, const ClueSource& clues) {
  // A file that cannot be read says why, rather than that it holds no puzzles.
  if (auto reason = unreadableReason(path)) return failed(ReadOutcome::Unreadable, *reason, n);
  const int count = state.PuzzleCount;
  if (count <= 0) return failed(ReadOutcome::NoPuzzles, noPuzzlesMessage(path), n);
  if (n > count || n == 0 || n < -1) return failed(ReadOutcome::BeyondCount, beyondCountMessage(n, count), n);
  if (n == -1) n = count;

  // Only the lines up to n are read: collections can be long.
  LineReader reader(path);
  if (!reader.isOpen()) return failed(ReadOutcome::Unreadable, reader.error(), n);
  reader.setMaxLineLength(kMaxPuzzleLineLength);
  for (int skipped = 1; skipped < n; ++skipped) {
    if (!reader.skip()) return failed(ReadOutcome::Unreadable, path + " has fewer than " + NumberText(n) + " lines", n);
  }
  const auto line = reader.next();
  if (!line) return failed(ReadOutcome::Unreadable, path + " has fewer than " + NumberText(n) + " lines", n);

  PuzzleReadResult result = loadPuzzleLine(*line, board, state, clues);
  result.number = n;
  if (result.loaded()) {
    state.CollectionPath = path;
    state.PuzzleNumber = n;
  }
  return result;
}

WordListLines wordListLines(const PuzzleState& state) {
  WordListLines lists{{" WORDS INSIDE:"}, {" WORDS OUTSIDE:"}};
  for (int slot = 1; slot <= PuzzleState::kMaxSlots; ++slot) {
    const std::string& word = state.WordSlots[slot];
    if (word.empty()) continue;
    auto& list = slot % 2 == 0 ? lists.inside : lists.outside;
    list.push_back(" " + Format00((slot + 1) / 2) + ". " + word);
  }
  return lists;
}

std::string positionText(int number, int count) { return "p# " + NumberText(number) + " of " + NumberText(count); }

std::string noPuzzlesMessage(const std::string& path) { return path + " does not appear to have any puzzles"; }

std::string beyondCountMessage(int n, int count) {
  return "there is no puzzle " + NumberText(n) + ": N must be from 1 to " + NumberText(count) + ", or -1 for the last";
}

std::string withDefaultExtension(const std::string& path, std::string_view extension) {
  return path.find('.') == std::string::npos ? path + std::string(extension) : path;
}

}  // namespace combwise
