// Puzzle collection files: one puzzle a line, "size;letters;WORD,m;...;",
// with runs of empty cells ("." each) compacted into short codes. Writing
// appends or writes the current puzzle; reading loads puzzle n into the
// puzzle state, looking the clue texts up in the meanings file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/files/dictionary.h"
#include "core/files/textfile.h"
#include "core/model/board.h"
#include "core/model/callbacks.h"
#include "core/model/puzzlestate.h"

namespace combwise {

// Runs of dots written as "#" (21), "%" (5), "^" (4), "&" (3) and "*" (2),
// the longest first, so 27 dots become "#%.".
std::string compactDots(std::string_view text);
// The codes turned back into dots; every other character is kept.
std::string expandDots(std::string_view text);

struct WordField {
  std::string word;
  int meaning = 0;
  friend bool operator==(const WordField&, const WordField&) = default;
};

// One puzzle line taken apart: the size, the letter string with "." for an
// empty cell, and one field per word slot from slot 1 (an empty word leaves
// its slot empty). It knows nothing of board geometry; loadPuzzleLine checks
// it against the size's grid.
struct PuzzleRecord {
  int size = 0;
  std::string letters;
  std::vector<WordField> words;
  friend bool operator==(const PuzzleRecord&, const PuzzleRecord&) = default;
};

// The line of a record, without its line end.
std::string formatPuzzleLine(const PuzzleRecord& record);
// A line taken apart. An error names what is wrong: a line too long for
// any puzzle, a word field without a ",", a number that does not fit, or
// more words than any puzzle has slots. Empty fields past the fiftieth
// word are not kept. The size is not checked here.
struct ParsedLine {
  PuzzleRecord record;
  std::string error;
  std::size_t fieldCount = 0;  // ";"-separated fields, the one after the final ";" included
};

// No puzzle line is longer once its dot codes are expanded: the largest
// grid and fifty word fields take a small part of it. A longer line is
// rejected before it is expanded.
inline constexpr std::size_t kMaxPuzzleLineLength = 1 << 16;
ParsedLine parsePuzzleLine(std::string_view line);

// The record of the current puzzle: its grid row by row and its word slots
// 1 to WordCount.
PuzzleRecord recordOf(const PuzzleState& state);
// The collection line of the current puzzle.
inline std::string puzzleLine(const PuzzleState& state) { return formatPuzzleLine(recordOf(state)); }

// Writes the current puzzle as one CR LF line: Truncate creates or empties
// the file first, Append adds to its end (creating it when needed).
Status writePuzzle(const std::string& path, WriteMode mode, const PuzzleState& state);

// The number of puzzles (lines, blank ones included) of a collection; 0 for
// an empty, missing or unreadable file.
int countPuzzles(const std::string& path);

// Where the clue texts come from: the meanings list, read from `path` the
// first time a puzzle needs it. Without a list the clues stay empty.
struct ClueSource {
  Meanings* meanings = nullptr;
  std::string path;
  PumpEvents events;
};

enum class ReadOutcome {
  Loaded,
  NoPuzzles,    // the stored count is 0; message says so
  BeyondCount,  // n is past the count (or below 1): nothing loaded
  Malformed,    // the line does not make a puzzle: nothing changed
  Unreadable,   // the file cannot be opened or holds fewer lines than counted
};

struct PuzzleReadResult {
  ReadOutcome outcome = ReadOutcome::Unreadable;
  int number = 0;        // the puzzle number asked for, -1 resolved to the last
  bool rebuilt = false;  // the board was set up for a new size
  std::string message;   // why nothing was loaded
  Status clues;          // a failure to read the meanings file; the clues are then empty
  bool loaded() const { return outcome == ReadOutcome::Loaded; }
};

// Loads puzzle n (1-based; -1 for the last) of a collection into the state.
// state.PuzzleCount must hold countPuzzles(path). What is not a regular file
// (a folder, a pipe, a device) is refused with its cause, since it cannot
// be counted and then read. The file is read up to
// line n only. On success the board is set up again only if the size
// changed, all 50 slots are refilled, the clues looked up, CollectionPath
// and PuzzleNumber set and the selection and undo list cleared; the
// player's Entries stay as they are. On any failure the state is untouched.
PuzzleReadResult readPuzzle(const std::string& path, int n, Board& board, PuzzleState& state, const ClueSource& clues);

// Loads one line as readPuzzle does once it has found the line. A blank
// line, a line that ends before its word fields ("7;", "22;;") or holds no
// word is malformed, not an empty puzzle.
PuzzleReadResult loadPuzzleLine(std::string_view line, Board& board, PuzzleState& state, const ClueSource& clues);

// The word lists beside the board: a heading, then " 03. TEARS" for each
// non-empty slot in slot order, inside words from even slots, outside words
// from odd ones.
struct WordListLines {
  std::vector<std::string> inside;
  std::vector<std::string> outside;
};
WordListLines wordListLines(const PuzzleState& state);

// "p# 7 of 120".
std::string positionText(int number, int count);
// "<path> does not appear to have any puzzles".
std::string noPuzzlesMessage(const std::string& path);
// "there is no puzzle 900: N must be from 1 to 800, or -1 for the last".
std::string beyondCountMessage(int n, int count);
inline constexpr std::string_view kTextExtension = ".txt";
inline constexpr std::string_view kPdfExtension = ".pdf";

// A save name with no "." anywhere in its path gets the extension (".txt"
// or ".pdf"); any other name is kept as it is, even when its only dot is
// in a folder name.
std::string withDefaultExtension(const std::string& path, std::string_view extension = kTextExtension);

}  // namespace combwise
