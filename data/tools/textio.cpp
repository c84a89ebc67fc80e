// Whole-file reading and CR LF writing.
#include "data/tools/textio.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace combwise::wordconv {

std::optional<std::string> readWholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return std::nullopt;
  return text;
}

bool writeCrLfLines(const std::string& path, const std::vector<std::string>& lines) {
  const std::string temporary = path + ".new";
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    for (const std::string& line : lines) {
      out << line << "\r\n";
    }
    out.flush();
    if (!out) {
      std::error_code ignored;
      std::filesystem::remove(temporary, ignored);
      return false;
    }
  }
  std::error_code error;
  std::filesystem::rename(temporary, path, error);
  return !error;
}

}  // namespace combwise::wordconv
