// Reading and writing the progress file.
#include "core/files/progressfile.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <filesystem>

#include "core/files/textfile.h"

namespace combwise {

namespace {

constexpr std::size_t kMaxReportedProblems = 20;
constexpr long long kMaxSeconds = 100LL * 365 * 24 * 3600;

bool validLetter(char c) { return (c >= 'A' && c <= 'Z') || c == '@'; }
bool storableCollection(const std::string& path) {
  return !path.empty() && path.find_first_of("\r\n") == std::string::npos;
}

template <typename T>
std::optional<T> wholeNumber(std::string_view text, T low, T high) {
  T value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || error != std::errc() || end != text.data() + text.size() || value < low || value > high)
    return std::nullopt;
  return value;
}

// Splits off the next blank-separated field; the rest stays in `line`.
std::string_view nextField(std::string_view& line) {
  const std::size_t blank = line.find(' ');
  const std::string_view field = line.substr(0, blank);
  line = blank == std::string_view::npos ? std::string_view{} : line.substr(blank + 1);
  return field;
}

std::optional<std::vector<ProgressCell>> parseCells(std::string_view text) {
  std::vector<ProgressCell> cells;
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    const std::string_view item = text.substr(0, comma);
    text = comma == std::string_view::npos ? std::string_view{} : text.substr(comma + 1);
    const std::size_t dot = item.find('.');
    const std::size_t equals = item.find('=');
    if (dot == std::string_view::npos || equals == std::string_view::npos || dot > equals || equals + 2 != item.size())
      return std::nullopt;
    const auto row = wholeNumber(item.substr(0, dot), 1, Board::kMaxRow);
    const auto col = wholeNumber(item.substr(dot + 1, equals - dot - 1), 1, Board::kMaxCol);
    const char letter = item[equals + 1];
    if (!row || !col || !validLetter(letter)) return std::nullopt;
    const bool repeated =
        std::any_of(cells.begin(), cells.end(), [&](const ProgressCell& c) { return c.row == *row && c.col == *col; });
    if (repeated) return std::nullopt;
    cells.push_back({*row, *col, letter});
  }
  if (cells.empty()) return std::nullopt;
  return cells;
}

template <typename Record>
auto findRecord(std::vector<Record>& records, const std::string& key, int number) {
  return std::find_if(records.begin(), records.end(),
                      [&](const Record& r) { return r.number == number && r.collection == key; });
}

// Moves `record` to the front, dropping the oldest beyond `limit`.
template <typename Record>
void putFirst(std::vector<Record>& records, Record record, std::size_t limit) {
  records.insert(records.begin(), std::move(record));
  if (records.size() > limit) records.resize(limit);
}

}  // namespace

std::string progressPath(const std::string& programFolder) { return programFolder + std::string(kProgressFileName); }

std::string progressPath(const ProgramFiles& files) { return files.writePath(kProgressFileName); }

std::string progressKey(const std::string& collection) {
  if (collection.empty()) return {};
  std::error_code error;
  const auto absolute = std::filesystem::absolute(collection, error);
  if (error) return collection;
  return absolute.lexically_normal().string();
}

void ProgressStore::keepEntries(const std::string& collection, int number, const Board& board, const PuzzleState& state,
                                long long seconds) {
  const std::string key = progressKey(collection);
  if (!storableCollection(key) || number < 1) return;
  PuzzleEntries kept{key, number, {}, std::clamp(seconds, 0LL, kMaxSeconds)};
  for (int r = 1; r <= board.rows(); ++r) {
    for (int c = 1; c <= board.cols(); ++c) {
      if (board.HexAt(r, c) == 0 || board.FreeCell(r, c) == 1) continue;
      const std::string& entry = state.Entries.at(r, c);
      if (entry.size() == 1 && validLetter(entry[0])) kept.cells.push_back({r, c, entry[0]});
    }
  }
  if (const auto old = findRecord(m_entries, key, number); old != m_entries.end()) m_entries.erase(old);
  if (!kept.cells.empty()) putFirst(m_entries, std::move(kept), kMaxEntryRecords);
}

bool ProgressStore::keepSeconds(const std::string& collection, int number, long long seconds) {
  const auto kept = findRecord(m_entries, progressKey(collection), number);
  seconds = std::clamp(seconds, 0LL, kMaxSeconds);
  if (kept == m_entries.end() || kept->seconds == seconds) return false;
  kept->seconds = seconds;
  return true;
}

std::optional<long long> ProgressStore::restoreEntries(const std::string& collection, int number, const Board& board,
                                                       PuzzleState& state) const {
  const PuzzleEntries* kept = entriesOf(collection, number);
  if (!kept) return std::nullopt;
  for (int r = 1; r <= board.rows(); ++r) {
    for (int c = 1; c <= board.cols(); ++c) {
      if (board.HexAt(r, c) != 0 && board.FreeCell(r, c) == 0) state.Entries.at(r, c).clear();
    }
  }
  for (const auto& cell : kept->cells) {
    if (board.HexAt(cell.row, cell.col) != 0 && board.FreeCell(cell.row, cell.col) == 0)
      state.Entries.at(cell.row, cell.col) = std::string(1, cell.letter);
  }
  return kept->seconds;
}

const PuzzleEntries* ProgressStore::entriesOf(const std::string& collection, int number) const {
  const std::string key = progressKey(collection);
  const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                  [&](const PuzzleEntries& e) { return e.number == number && e.collection == key; });
  return found == m_entries.end() ? nullptr : &*found;
}

SolvedRecord ProgressStore::recordSolved(const std::string& collection, int number, long long seconds) {
  const std::string key = progressKey(collection);
  seconds = std::clamp(seconds, 0LL, kMaxSeconds);
  SolvedRecord record{key, number, seconds, seconds};
  if (const auto old = findRecord(m_solved, key, number); old != m_solved.end()) {
    record.bestSeconds = std::min(old->bestSeconds, seconds);
    m_solved.erase(old);
  }
  if (storableCollection(key) && number >= 1) putFirst(m_solved, record, kMaxSolvedRecords);
  return record;
}

std::optional<SolvedRecord> ProgressStore::solved(const std::string& collection, int number) const {
  const std::string key = progressKey(collection);
  for (const auto& record : m_solved) {
    if (record.number == number && record.collection == key) return record;
  }
  return std::nullopt;
}

std::string ProgressStore::text() const {
  std::string text = std::string(kProgressHeader) + "\r\n";
  for (const auto& kept : m_entries) {
    text += "entries " + std::to_string(kept.number) + " " + std::to_string(kept.seconds) + " ";
    for (std::size_t i = 0; i < kept.cells.size(); ++i) {
      const auto& cell = kept.cells[i];
      if (i > 0) text += ",";
      text += std::to_string(cell.row) + "." + std::to_string(cell.col) + "=" + cell.letter;
    }
    text += " " + kept.collection + "\r\n";
  }
  for (const auto& record : m_solved) {
    text += "solved " + std::to_string(record.number) + " " + std::to_string(record.seconds) + " " +
            std::to_string(record.bestSeconds) + " " + record.collection + "\r\n";
  }
  return text;
}

std::optional<std::string> ProgressStore::addLine(std::string_view line) {
  if (line.empty() || line.front() == '#') return std::nullopt;
  if (line.size() > kMaxProgressLine) return "the line is too long";
  const std::string_view kind = nextField(line);
  const auto number = wholeNumber(nextField(line), 1, 1'000'000'000);
  if (kind == "entries") {
    // Lines from before the time was kept go straight on to the letters.
    std::string_view field = nextField(line);
    std::optional<long long> seconds = 0;
    if (field.find('=') == std::string_view::npos) {
      seconds = wholeNumber(field, 0LL, kMaxSeconds);
      field = nextField(line);
    }
    const auto cells = parseCells(field);
    if (!number || !seconds || !cells) return "the puzzle number, the time or the letters cannot be read";
    const std::string collection(line);
    if (collection.empty() || collection.front() != '/') return "the collection is not an absolute path";
    if (findRecord(m_entries, collection, *number) != m_entries.end()) return "the puzzle is listed twice";
    if (m_entries.size() >= kMaxEntryRecords) return "more puzzles with letters than are kept";
    m_entries.push_back({collection, *number, *cells, *seconds});
    return std::nullopt;
  }
  if (kind == "solved") {
    const auto seconds = wholeNumber(nextField(line), 0LL, kMaxSeconds);
    const auto best = wholeNumber(nextField(line), 0LL, kMaxSeconds);
    if (!number || !seconds || !best || *best > *seconds) return "the puzzle number or the times cannot be read";
    const std::string collection(line);
    if (collection.empty() || collection.front() != '/') return "the collection is not an absolute path";
    if (findRecord(m_solved, collection, *number) != m_solved.end()) return "the puzzle is listed twice";
    if (m_solved.size() >= kMaxSolvedRecords) return "more solved puzzles than are kept";
    m_solved.push_back({collection, *number, *seconds, *best});
    return std::nullopt;
  }
  return "not a progress record";
}

namespace {

// Feeds lines to the store, collecting at most a few problem texts.
class ProgressReader {
 public:
  ProgressReader(ProgressStore& store, const std::string& fileName, std::vector<std::string>& problems)
      : m_store(store), m_fileName(fileName), m_problems(problems) {}
  ~ProgressReader() {
    if (m_hidden > 0)
      m_problems.push_back(m_fileName + ": " + std::to_string(m_hidden) + " more damaged lines left out");
  }
  ProgressReader(const ProgressReader&) = delete;
  ProgressReader& operator=(const ProgressReader&) = delete;

  void line(std::string_view text) {
    ++m_number;
    if (m_number == 1 && text == kProgressHeader) return;
    const auto problem = m_store.addLine(text);
    if (!problem) return;
    if (m_problems.size() < kMaxReportedProblems) {
      m_problems.push_back(m_fileName + " line " + std::to_string(m_number) + " left out: " + *problem);
    } else {
      ++m_hidden;
    }
  }

 private:
  ProgressStore& m_store;
  const std::string& m_fileName;
  std::vector<std::string>& m_problems;
  long long m_number = 0;
  long long m_hidden = 0;
};

}  // namespace

ProgressStore ProgressStore::parse(std::string_view text, const std::string& fileName,
                                   std::vector<std::string>& problems) {
  ProgressStore store;
  ProgressReader reader(store, fileName, problems);
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    reader.line(line);
    text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
  }
  return store;
}

ProgressRead readProgressFile(const std::string& path) {
  ProgressRead read;
  std::error_code error;
  if (!std::filesystem::exists(path, error) && !error) return read;
  if (auto reason = unreadableReason(path)) {
    read.problems.push_back(*reason);
    return read;
  }
  LineReader lines(path);
  lines.setMaxLineLength(kMaxProgressLine);
  {
    ProgressReader reader(read.store, path, read.problems);
    // A file far beyond what the writer makes is read no further than that.
    const std::size_t lineLimit = 2 * (kMaxEntryRecords + kMaxSolvedRecords) + 1;
    std::size_t count = 0;
    while (auto line = lines.next()) {
      if (++count > lineLimit) {
        read.problems.push_back(path + ": the file is longer than a progress file can be; the rest is left out");
        break;
      }
      reader.line(*line);
    }
  }
  if (lines.failed() && lines.errorNumber() != 0)
    read.problems.push_back(fileErrorMessage("read", path, lines.errorNumber()));
  return read;
}

Status writeProgressFile(const std::string& path, const ProgressStore& store) {
  if (!replaceFileContent(path, store.text())) return Status::failure(fileErrorMessage("save", path, errno));
  return Status::success();
}

}  // namespace combwise
