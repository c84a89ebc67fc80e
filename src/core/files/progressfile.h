// The player's progress between runs, in "combwise-progress.txt" beside the
// configuration file: the letters typed on each puzzle (per collection and
// puzzle number, only on the puzzle's cells to be filled in) and the
// puzzles solved with their last and best times.
//
// The file is plain text with CR LF lines (LF read as well):
//
//   combwise progress 1
//   entries 7 64 3.8=A,3.9=B,4.10=@ /home/me/puzzles.txt
//   solved 7 125 98 /home/me/puzzles.txt
//
// "entries NUMBER SECONDS CELLS COLLECTION": SECONDS is the time spent on
// the puzzle so far, so its timer goes on from there; CELLS lists
// ROW.COL=LETTER for each cell holding a letter (rows 1..12, columns 1..18,
// letters A..Z and @). Files of earlier versions have no SECONDS ("entries
// NUMBER CELLS COLLECTION"): such a line reads with no time spent, told
// apart by its third field, which holds a "=" only when it is CELLS.
// "solved NUMBER SECONDS BEST COLLECTION": the time of the last solve and
// the best time, in whole seconds. COLLECTION, an absolute path, is the
// rest of the line, blanks included. Newest records come first; a line
// starting with "#" and an empty line are ignored. A damaged line is left
// out and reported; the file stays bounded by keeping at most
// kMaxEntryRecords puzzles with letters and kMaxSolvedRecords solved ones,
// the oldest going first.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/files/programfiles.h"
#include "core/model/board.h"
#include "core/model/callbacks.h"
#include "core/model/puzzlestate.h"

namespace combwise {

inline constexpr std::string_view kProgressFileName = "combwise-progress.txt";
inline constexpr std::string_view kProgressHeader = "combwise progress 1";
inline constexpr std::size_t kMaxEntryRecords = 300;
inline constexpr std::size_t kMaxSolvedRecords = 5000;
inline constexpr std::size_t kMaxProgressLine = 8192;

// The progress file of a program folder (which ends with a separator).
std::string progressPath(const std::string& programFolder);
// The progress file where the program keeps the player's files (the user's
// folder of an installed program); it is read and written there.
std::string progressPath(const ProgramFiles& files);

// A collection's path as the progress file keys it: absolute and without
// "." or ".." parts.
std::string progressKey(const std::string& collection);

struct ProgressCell {
  int row = 0;
  int col = 0;
  char letter = 0;
  friend bool operator==(const ProgressCell&, const ProgressCell&) = default;
};

struct PuzzleEntries {
  std::string collection;  // as progressKey gives it
  int number = 0;
  std::vector<ProgressCell> cells;
  long long seconds = 0;  // the time spent on the puzzle up to these letters
  friend bool operator==(const PuzzleEntries&, const PuzzleEntries&) = default;
};

struct SolvedRecord {
  std::string collection;
  int number = 0;
  long long seconds = 0;      // the last solve
  long long bestSeconds = 0;  // the fastest solve
  friend bool operator==(const SolvedRecord&, const SolvedRecord&) = default;
};

class ProgressStore {
 public:
  // Keeps the letters on the puzzle's non-given cells as the player's
  // letters for that puzzle, with the `seconds` spent on it, newest first;
  // a puzzle without any letters is forgotten. Collection paths with a line
  // break cannot be kept.
  void keepEntries(const std::string& collection, int number, const Board& board, const PuzzleState& state,
                   long long seconds);
  // Sets the time spent on a puzzle whose letters are kept, leaving the
  // letters and the order as they are. True when the time changed.
  bool keepSeconds(const std::string& collection, int number, long long seconds);
  // Puts the kept letters back: every non-given cell of the puzzle gets its
  // kept letter or none. Returns the time kept with them; nothing, changing
  // nothing, when none are kept.
  std::optional<long long> restoreEntries(const std::string& collection, int number, const Board& board,
                                          PuzzleState& state) const;
  const PuzzleEntries* entriesOf(const std::string& collection, int number) const;

  // Records a solve in `seconds`; returns the record with the best time
  // so far.
  SolvedRecord recordSolved(const std::string& collection, int number, long long seconds);
  std::optional<SolvedRecord> solved(const std::string& collection, int number) const;

  const std::vector<PuzzleEntries>& entries() const { return m_entries; }
  const std::vector<SolvedRecord>& solvedRecords() const { return m_solved; }

  // The file's text, and the reading of one; `problems` gets a text for
  // each line left out, naming `fileName` and the line.
  std::string text() const;
  // Reads one line of the file (after the header) into the store, as the
  // oldest record so far. Returns why it was left out, nothing when kept.
  std::optional<std::string> addLine(std::string_view line);
  static ProgressStore parse(std::string_view text, const std::string& fileName, std::vector<std::string>& problems);

  friend bool operator==(const ProgressStore&, const ProgressStore&) = default;

 private:
  std::vector<PuzzleEntries> m_entries;  // newest first
  std::vector<SolvedRecord> m_solved;    // newest first
};

struct ProgressRead {
  ProgressStore store;
  std::vector<std::string> problems;  // empty when the file read cleanly or is missing
};

// Reads a progress file. A missing file is an empty store without
// problems; an unreadable one is an empty store with the cause.
ProgressRead readProgressFile(const std::string& path);

// Writes a whole progress file through a temporary file renamed over the
// old one, so a failed or interrupted save leaves the old file whole. The
// error names the file and the cause.
Status writeProgressFile(const std::string& path, const ProgressStore& store);

}  // namespace combwise
