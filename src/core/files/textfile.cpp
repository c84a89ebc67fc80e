// Plain-text files: lines accepted with CR LF or LF, written with CR LF.
#include "core/files/textfile.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace combwise {

LineReader::LineReader(const std::string& path) : m_file(std::fopen(path.c_str(), "rb")) {}

std::optional<std::string> LineReader::next() {
  if (!m_file) return std::nullopt;
  std::string line;
  bool any = false;
  char buffer[4096];
  while (std::fgets(buffer, sizeof buffer, m_file.get())) {
    any = true;
    line += buffer;
    if (!line.empty() && line.back() == '\n') {
      line.pop_back();
      if (!line.empty() && line.back() == '\r') line.pop_back();
      return line;
    }
  }
  if (!any) return std::nullopt;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

bool LineReader::skip() {
  if (!m_file) return false;
  bool any = false;
  char buffer[4096];
  while (std::fgets(buffer, sizeof buffer, m_file.get())) {
    any = true;
    const auto length = std::char_traits<char>::length(buffer);
    if (length > 0 && buffer[length - 1] == '\n') return true;
  }
  return any;
}

bool LineReader::failed() const { return !m_file || std::ferror(m_file.get()) != 0; }

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
  bool pending = false;  // characters after the last line end
  char buffer[1 << 16];
  std::size_t got;
  while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
    for (std::size_t i = 0; i < got; ++i) {
      if (buffer[i] == '\n') {
        ++count;
        pending = false;
      } else {
        pending = true;
      }
    }
  }
  const bool error = std::ferror(file) != 0;
  std::fclose(file);
  if (error) return 0;
  return count + (pending ? 1 : 0);
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
