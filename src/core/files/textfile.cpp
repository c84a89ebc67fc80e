// Plain-text files: lines accepted with CR LF or LF, written with CR LF.
#include "core/files/textfile.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace combwise {

namespace {
constexpr std::size_t kChunk = 1 << 16;
}  // namespace

LineReader::LineReader(const std::string& path) : m_file(std::fopen(path.c_str(), "rb")) {}

bool LineReader::fill() {
  if (!m_file || m_error) return false;
  m_buffer.resize(kChunk);
  const std::size_t got = std::fread(m_buffer.data(), 1, m_buffer.size(), m_file.get());
  if (got == 0 && std::ferror(m_file.get())) m_error = true;
  m_begin = 0;
  m_end = got;
  return got > 0;
}

std::optional<std::string> LineReader::next() {
  std::string line;
  bool any = false;
  for (;;) {
    if (m_begin == m_end && !fill()) break;
    any = true;
    const char* start = m_buffer.data() + m_begin;
    const auto* newline = static_cast<const char*>(std::memchr(start, '\n', m_end - m_begin));
    if (newline) {
      line.append(start, newline);
      m_begin += static_cast<std::size_t>(newline - start) + 1;
      if (!line.empty() && line.back() == '\r') line.pop_back();
      return line;
    }
    line.append(start, m_end - m_begin);
    m_begin = m_end;
  }
  if (!any || m_error) return std::nullopt;
  if (!line.empty() && line.back() == '\r') line.pop_back();
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
    std::filesystem::remove(temporary, error);
    return false;
  }
  return true;
}

bool fileHasContent(const std::string& path) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  return !error && size > 0;
}

}  // namespace combwise
