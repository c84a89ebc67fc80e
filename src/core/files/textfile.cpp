// Plain-text files: lines accepted with CR LF or LF, written with CR LF.
#include "core/files/textfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "core/files/atomicfile.h"
#include "core/files/regularfile.h"
#include "core/model/text.h"

namespace combwise {

namespace {
constexpr std::size_t kChunk = 1 << 16;
}  // namespace

LineReader::LineReader(const std::string& path) : m_path(path) {
  OpenedFile opened = openRegularFile(path, OpenFor::Reading);
  m_file = std::move(opened.file);
  m_errno = opened.errorNumber;
  m_openError = std::move(opened.error);
}

std::string LineReader::error() const {
  if (!m_openError.empty()) return m_openError;
  if (m_error) return fileErrorMessage("read", m_path, m_errno);
  return {};
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
  const OpenedFile opened = openRegularFile(path, OpenFor::Reading);
  if (!opened) return 0;
  std::FILE* file = opened.file.get();
  long long count = 0;
  char last = '\n';  // an empty file has no unfinished last line
  std::vector<char> buffer(kChunk);
  std::size_t got;
  while ((got = std::fread(buffer.data(), 1, buffer.size(), file)) > 0) {
    count += std::count(buffer.data(), buffer.data() + got, '\n');
    last = buffer[got - 1];
  }
  if (std::ferror(file) != 0) return 0;
  return count + (last != '\n' ? 1 : 0);  // a last line without its end still counts
}

bool writeLines(const std::string& path, const std::vector<std::string>& lines, WriteMode mode) {
  // Opened without waiting, so a pipe with no reader fails at once (ENXIO)
  // instead of blocking; one that has its reader is written as usual.
  const int fd = ::open(
      path.c_str(),
      O_WRONLY | O_CREAT | (mode == WriteMode::Append ? O_APPEND : O_TRUNC) | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
  if (fd < 0) return false;
  if (const int flags = ::fcntl(fd, F_GETFL); flags >= 0) ::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK);
  std::FILE* file = ::fdopen(fd, mode == WriteMode::Append ? "ab" : "wb");
  if (!file) {
    const int cause = errno;
    ::close(fd);
    errno = cause;
    return false;
  }
  bool ok = true;
  for (const auto& line : lines) {
    ok = ok && std::fwrite(line.data(), 1, line.size(), file) == line.size();
    ok = ok && std::fwrite("\r\n", 1, 2, file) == 2;
  }
  ok = (std::fclose(file) == 0) && ok;
  return ok;
}

bool replaceFileContent(const std::string& path, std::string_view content) {
  AtomicFile file(path);
  file.write(content);
  if (file.commit().ok()) return true;
  errno = file.errorNumber() != 0 ? file.errorNumber() : EINVAL;  // kept for the caller's message
  return false;
}

std::string fileErrorMessage(std::string_view verb, const std::string& path, int errorNumber) {
  std::string message = "Cannot " + std::string(verb) + " " + path;
  if (errorNumber == EISDIR) return message + ": it is a folder";
  if (errorNumber != 0) message += std::string(": ") + std::strerror(errorNumber);
  return message;
}

std::optional<std::string> unreadableReason(const std::string& path) {
  if (path.empty()) return std::string("Cannot open a file without a name");
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0) return fileErrorMessage("open", path, errno);
  if (S_ISDIR(info.st_mode)) return fileErrorMessage("open", path, EISDIR);
  if (!S_ISREG(info.st_mode)) return notRegularMessage("open", path);
  if (::access(path.c_str(), R_OK) != 0) return fileErrorMessage("open", path, errno);
  return std::nullopt;
}

LineAppender::~LineAppender() { close(); }

Status LineAppender::fail(int errorNumber) {
  // Back to the length the file had before this appender wrote to it.
  if (m_file) {
    std::clearerr(m_file.get());
    if (::ftruncate(::fileno(m_file.get()), static_cast<off_t>(m_startLength)) != 0) {
      // Nothing more can be done; the error below still says what failed.
    }
    m_file.reset();
    if (m_created) ::unlink(m_path.c_str());
  }
  std::string message = fileErrorMessage("write", m_path, errorNumber);
  if (m_added == 1) message += "; the line added before it was taken back";
  if (m_added > 1) message += "; the " + NumberText(m_added) + " lines added before it were taken back";
  m_added = 0;
  return Status::failure(std::move(message));
}

Status LineAppender::open() {
  if (m_file) return Status::success();
  OpenedFile opened = openRegularFile(m_path, OpenFor::Appending);
  if (!opened) return Status::failure(std::move(opened.error));
  m_file = std::move(opened.file);
  m_created = opened.created;
  // Unbuffered: a failed write must leave nothing pending that closing the
  // file would write after the cut.
  std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
  if (std::fseek(m_file.get(), 0, SEEK_END) != 0) return fail(errno);
  m_startLength = std::ftell(m_file.get());
  if (m_startLength < 0) return fail(errno);
  if (m_startLength > 0) {
    char last = '\n';
    if (std::fseek(m_file.get(), -1, SEEK_END) == 0 && std::fread(&last, 1, 1, m_file.get()) == 1)
      m_needsLineEnd = last != '\n';
    std::fseek(m_file.get(), 0, SEEK_END);
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
  if (std::fwrite(text.data(), 1, text.size(), m_file.get()) != text.size()) return fail(errno != 0 ? errno : EIO);
  m_needsLineEnd = false;
  ++m_added;
  return Status::success();
}

Status LineAppender::close() {
  if (!m_file) return Status::success();
  // A file system that reports a full disk only when the data goes out
  // (over a network) still gets the file cut back.
  if (m_added > 0 && ::fsync(::fileno(m_file.get())) != 0 && errno != EINVAL) return fail(errno);
  errno = 0;
  const int closed = std::fclose(m_file.release());
  if (closed != 0) return Status::failure(fileErrorMessage("write", m_path, errno != 0 ? errno : EIO));
  if (m_created && m_added == 0) ::unlink(m_path.c_str());
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
