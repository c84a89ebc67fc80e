// Plain-text files the program's way: lines are read accepting CR LF or LF
// (a last line without an end still counts), and written with CR LF.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace combwise {

// Reads a file line by line without loading it whole.
class LineReader {
 public:
  explicit LineReader(const std::string& path);
  bool isOpen() const { return m_file != nullptr; }
  // The next line without its CR LF or LF; nullopt at the end of the file
  // (or when the file could not be opened or read).
  std::optional<std::string> next();
  // Skips one line; false at the end of the file.
  bool skip();
  // True when reading stopped on an error rather than at the end.
  bool failed() const { return m_error || !m_file; }

 private:
  // Refills the buffer; false at the end of the file or on an error.
  bool fill();

  struct Closer {
    void operator()(std::FILE* f) const { std::fclose(f); }
  };
  std::unique_ptr<std::FILE, Closer> m_file;
  std::vector<char> m_buffer;
  std::size_t m_begin = 0;  // unread part of the buffer: [m_begin, m_end)
  std::size_t m_end = 0;
  bool m_error = false;
};

// All lines of a file; nullopt when it cannot be opened or read.
std::optional<std::vector<std::string>> readLines(const std::string& path);

// Number of lines of a file; 0 for a missing, empty or unreadable file.
long long countLines(const std::string& path);

enum class WriteMode { Truncate, Append };

// Writes each line followed by CR LF. False when the file cannot be written.
bool writeLines(const std::string& path, const std::vector<std::string>& lines, WriteMode mode);

// Replaces a file's content by writing a sibling file and renaming it over
// the old one, so an interrupted save never leaves a truncated file.
bool replaceFileContent(const std::string& path, std::string_view content);

// A file counts as existing when it can be opened and its length is not 0.
bool fileHasContent(const std::string& path);

}  // namespace combwise
