// Plain-text files: lines accepted with CR LF or LF, written with CR LF.
#include "core/files/textfile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace combwise {

namespace {
constexpr std::size_t kChunk = 1 << 16;
}  // namespace

LineReader::LineReader(const std::string& path) : m_file(std::fopen(path.c_str(), "rb")) {
  if (!m_file) m_errno = errno;
}

bool LineReader::fill() {
  if (!m_file || m_error) return false;
  m_buffer.resize(kChunk);
  errno = 0;
  const std::size_t got = std::fread(m_buffer.data(), 1, m_buffer.size(), m_file.get());
  if (got == 0 && std::ferror(m_file.get())) {
    m_error = true;
    m_errno = errno != 0 ? errno : EIO;
  }
  m_begin = 0;
  m_end = got;
  return got > 0;
}

std::optional<std::string> LineReader::next() {
  std::string line;
  bool any = false;
  // A cut line keeps one character past the limit, and never a CR that
  // only stood before its line end.
  const auto keep = [this, &line](const char* from, const char* to) {
    if (m_maxLine == 0) {
      line.append(from, to);
      return;
    }
    const std::size_t room = m_maxLine + 2 > line.size() ? m_maxLine + 2 - line.size() : 0;
    line.append(from, std::min(static_cast<std::size_t>(to - from), room));
  };
  for (;;) {
    if (m_begin == m_end && !fill()) break;
    any = true;
    const char* start = m_buffer.data() + m_begin;
    const auto* newline = static_cast<const char*>(std::memchr(start, '\n', m_end - m_begin));
    if (newline) {
      keep(start, newline);
      m_begin += static_cast<std::size_t>(newline - start) + 1;
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (m_maxLine > 0 && line.size() > m_maxLine + 1) line.resize(m_maxLine + 1);
      return line;
    }
    keep(start, m_buffer.data() + m_end);
    m_begin = m_end;
  }
  if (!any || m_error) return std::nullopt;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  if (m_maxLine > 0 && line.size() > m_maxLine + 1) line.resize(m_maxLine + 1);
  return line;
}

bool LineReader::skip() {
  bool any = false;
  for (;;) {
    if (m_begin == m_end && !fill()) return any && !m_error;
    any = true;
    const char* start = m_buffer.data() + m_begin;
    const auto* newline = static_cast<const char*>(std::memchr(start, '\n', m_end - m_begin));
    if (newline) {
      m_begin += static_cast<std::size_t>(newline - start) + 1;
      return true;
    }
    m_begin = m_end;
  }
}

std::optional<std::vector<std::string>> readLines(const std::string& path) {
  LineReader reader(path);
  if (!reader.isOpen()) return std::nullopt;
  std::vector<std::string> lines;
  while (auto line = reader.next()) lines.push_back(std::move(*line));
  if (reader.failed()) return std::nullopt;
  return lines;
}

long long countLines(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) return 0;
  long long count = 0;
  char last = '\n';  // an empty file has no unfinished last line
  std::vector<char> buffer(kChunk);
  std::size_t got;
  while ((got = std::fread(buffer.data(), 1, buffer.size(), file)) > 0) {
    count += std::count(buffer.data(), buffer.data() + got, '\n');
    last = buffer[got - 1];
  }
  const bool error = std::ferror(file) != 0;
  std::fclose(file);
  if (error) return 0;
  return count + (last != '\n' ? 1 : 0);  // a last line without its end still counts
}

bool writeLines(const std::string& path, const std::vector<std::string>& lines, WriteMode mode) {
  std::FILE* file = std::fopen(path.c_str(), mode == WriteMode::Append ? "ab" : "wb");
  if (!file) return false;
  bool ok = true;
  for (const auto& line : lines) {
    ok = ok && std::fwrite(line.data(), 1, line.size(), file) == line.size();
    ok = ok && std::fwrite("\r\n", 1, 2, file) == 2;
  }
  ok = (std::fclose(file) == 0) && ok;
  return ok;
}

bool replaceFileContent(const std::string& path, std::string_view content) {
  const std::string temporary = path + ".new";
  std::FILE* file = std::fopen(temporary.c_str(), "wb");
  if (!file) return false;
  bool ok = std::fwrite(content.data(), 1, content.size(), file) == content.size();
  ok = (std::fflush(file) == 0) && ok;
  ok = (std::fclose(file) == 0) && ok;
  std::error_code error;
  if (ok) std::filesystem::rename(temporary, path, error);
  if (!ok || error) {
    const int cause = error ? error.value() : errno;  // kept for the caller's message
    std::filesystem::remove(temporary, error);
    errno = cause;
    return false;
  }
  return true;
}

std::string fileErrorMessage(std::string_view verb, const std::string& path, int errorNumber) {
  std::string message = "Cannot " + std::string(verb) + " " + path;
  if (errorNumber == EISDIR) return message + ": it is a folder";
  if (errorNumber != 0) message += std::string(": ") + std::strerror(errorNumber);
  return message;
}

std::optional<std::string> unreadableReason(const std::string& path, bool regularOnly) {
  if (path.empty()) return std::string("Cannot open a file without a name");
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0) return fileErrorMessage("open", path, errno);
  if (S_ISDIR(info.st_mode)) return fileErrorMessage("open", path, EISDIR);
  if (regularOnly && !S_ISREG(info.st_mode)) return "Cannot open " + path + ": it is not a regular file";
  if (::access(path.c_str(), R_OK) != 0) return fileErrorMessage("open", path, errno);
  return std::nullopt;
}

LineAppender::~LineAppender() { close(); }

Status LineAppender::fail(int errorNumber) {
  // Back to the length the file had, so no part of a line stays behind.
  if (m_file) {
    std::clearerr(m_file);
    if (::ftruncate(::fileno(m_file), static_cast<off_t>(m_startLength)) != 0) {
      // Nothing more can be done; the error below still says what failed.
    }
    std::fclose(m_file);
    m_file = nullptr;
    if (m_created && m_startLength == 0) {
      std::error_code ignored;
      std::filesystem::remove(m_path, ignored);
    }
  }
  return Status::failure(fileErrorMessage("write", m_path, errorNumber));
}

Status LineAppender::open() {
  if (m_file) return Status::success();
  if (m_path.empty()) return Status::failure("Cannot write a file without a name");
  struct stat info {};
  const bool existed = ::stat(m_path.c_str(), &info) == 0;
  if (existed && S_ISDIR(info.st_mode)) return Status::failure(fileErrorMessage("write", m_path, EISDIR));
  m_file = std::fopen(m_path.c_str(), "a+b");
  if (!m_file) return Status::failure(fileErrorMessage("write", m_path, errno));
  m_created = !existed;
  // Unbuffered: a failed write must leave nothing pending that closing the
  // file would write after the cut.
  std::setvbuf(m_file, nullptr, _IONBF, 0);
  if (std::fseek(m_file, 0, SEEK_END) != 0) return fail(errno);
  m_startLength = std::ftell(m_file);
  if (m_startLength < 0) m_startLength = 0;
  if (m_startLength > 0 && S_ISREG(info.st_mode)) {
    char last = '\n';
    if (std::fseek(m_file, -1, SEEK_END) == 0 && std::fread(&last, 1, 1, m_file) == 1) m_needsLineEnd = last != '\n';
    std::fseek(m_file, 0, SEEK_END);
  }
  return Status::success();
}

Status LineAppender::add(std::string_view line) {
  if (Status opened = open(); !opened.ok()) return opened;
  std::string text;
  text.reserve(line.size() + 4);
  if (m_needsLineEnd) text += "\r\n";
  text += line;
  text += "\r\n";
  errno = 0;
  if (std::fwrite(text.data(), 1, text.size(), m_file) != text.size()) return fail(errno != 0 ? errno : EIO);
  m_needsLineEnd = false;
  // From here on the lines written stay, whatever happens later.
  m_startLength += static_cast<long long>(text.size());
  m_created = false;
  ++m_added;
  return Status::success();
}

Status LineAppender::close() {
  if (!m_file) return Status::success();
  errno = 0;
  if (std::fclose(m_file) != 0) {
    m_file = nullptr;
    return Status::failure(fileErrorMessage("write", m_path, errno != 0 ? errno : EIO));
  }
  m_file = nullptr;
  if (m_created && m_added == 0) {
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
  }
  return Status::success();
}

Status appendLines(const std::string& path, const std::vector<std::string>& lines) {
  LineAppender appender(path);
  if (Status opened = appender.open(); !opened.ok()) return opened;
  // All lines go in one write, so a failure cuts back every one of them.
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    text += lines[i];
    if (i + 1 < lines.size()) text += "\r\n";
  }
  if (Status added = appender.add(text); !added.ok()) return added;
  return appender.close();
}

bool sameFile(const std::string& a, const std::string& b) {
  std::error_code error;
  const bool same = std::filesystem::equivalent(a, b, error);
  return !error && same;
}

bool outputIsAnInput(const std::string& output, const std::vector<std::string>& inputs) {
  return std::any_of(inputs.begin(), inputs.end(), [&](const std::string& input) { return sameFile(output, input); });
}

bool fileHasContent(const std::string& path) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  return !error && size > 0;
}

}  // namespace combwise
