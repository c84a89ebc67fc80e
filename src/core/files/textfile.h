// Plain-text files the program's way: lines are read accepting CR LF or LF
// (a last line without an end still counts), and written with CR LF.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/files/regularfile.h"
#include "core/model/callbacks.h"

namespace combwise {

// Reads a file line by line without loading it whole.
class LineReader {
 public:
  // Only a regular file is opened: a pipe or a device is refused without
  // waiting on it (see error()).
  explicit LineReader(const std::string& path);
  bool isOpen() const { return m_file != nullptr; }
  // The next line without its CR LF or LF; nullopt at the end of the file
  // (or when the file could not be opened or read).
  std::optional<std::string> next();
  // Skips one line; false at the end of the file.
  bool skip();
  // True when reading stopped on an error rather than at the end.
  bool failed() const { return m_error || !m_file; }
  // The system's error number of the failed open or read (0 when none).
  int errorNumber() const { return m_errno; }
  // Why the file could not be opened or read, naming it and the cause
  // ("Cannot open P: it is not a regular file"); empty when nothing failed.
  std::string error() const;
  // Lines longer than this are cut to this length plus one character (so
  // the caller sees they are too long); the rest of the line is skipped
  // without being kept in memory. 0 keeps lines whole.
  void setMaxLineLength(std::size_t length) { m_maxLine = length; }

 private:
  // Refills the buffer; false at the end of the file or on an error.
  bool fill();

  std::string m_path;
  FilePtr m_file;
  std::string m_openError;
  std::vector<char> m_buffer;
  std::size_t m_begin = 0;  // unread part of the buffer: [m_begin, m_end)
  std::size_t m_end = 0;
  bool m_error = false;
  int m_errno = 0;
  std::size_t m_maxLine = 0;
};

// All lines of a file; nullopt when it cannot be opened or read.
std::optional<std::vector<std::string>> readLines(const std::string& path);

// Number of lines of a file; 0 for a missing, empty or unreadable file.
long long countLines(const std::string& path);

enum class WriteMode { Truncate, Append };

// "Cannot VERB PATH: cause", the cause the way the system says it ("No such
// file or directory", "Permission denied", "No space left on device").
std::string fileErrorMessage(std::string_view verb, const std::string& path, int errorNumber);

// Why a path cannot be read as a file: nullopt when it can. Names the file
// and the cause: missing, a folder, not a regular file (a pipe or a
// device, which could block or be read only once), permission denied.
std::optional<std::string> unreadableReason(const std::string& path);

// Appends lines (each followed by CR LF) to a regular file, creating it
// when needed. A file whose last line lacks its line end gets one first, so
// the new lines stand on their own. A write that fails midway (a full disk)
// cuts the file back to its earlier length, and a file that this call
// created and could not fill is removed: the file is as it was. The error
// names the file and the cause.
Status appendLines(const std::string& path, const std::vector<std::string>& lines);

// The same, one line at a time, for long runs: each line is in the file
// when add() returns, so an interrupted run keeps the lines made so far.
// A failed write takes back every line of the run, as appendLines does.
class LineAppender {
 public:
  explicit LineAppender(std::string path) : m_path(std::move(path)) {}
  ~LineAppender();
  LineAppender(const LineAppender&) = delete;
  LineAppender& operator=(const LineAppender&) = delete;

  // Opens the file (on the first add when not called before).
  Status open();
  Status add(std::string_view line);
  // Closes the file; a file this appender created and never wrote to is
  // removed, so a failed run leaves no empty file behind.
  Status close();
  long long added() const { return m_added; }

 private:
  Status fail(int errorNumber);

  std::string m_path;
  FilePtr m_file;
  bool m_created = false;
  bool m_needsLineEnd = false;
  long long m_startLength = 0;
  long long m_added = 0;
};

// Writes each line followed by CR LF. False (with errno set) when the file
// cannot be written; a pipe without a reader fails at once.
bool writeLines(const std::string& path, const std::vector<std::string>& lines, WriteMode mode);

// Replaces a file's content by writing a sibling file and renaming it over
// the old one (see AtomicFile), so a failed or interrupted save never
// leaves a truncated file. False, with errno set to the cause, on failure.
bool replaceFileContent(const std::string& path, std::string_view content);

// True when both paths name one existing file (through links, "..", or
// other spellings of the same path).
bool sameFile(const std::string& a, const std::string& b);

// True when `output` is one of `inputs` as sameFile sees it: a command
// never writes over a file it reads, however the path is spelt.
bool outputIsAnInput(const std::string& output, const std::vector<std::string>& inputs);

// A file counts as existing when it can be opened and its length is not 0.
bool fileHasContent(const std::string& path);

}  // namespace combwise
