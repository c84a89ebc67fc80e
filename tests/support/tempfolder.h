// A fresh folder under the system's temporary directory, removed with
// everything in it when the test ends.
#pragma once

#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace combwise {

class TempFolder {
 public:
  TempFolder() {
    static std::atomic<int> counter{0};
    m_path = std::filesystem::temp_directory_path() /
             ("combwise-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    std::filesystem::remove_all(m_path);
    std::filesystem::create_directories(m_path);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // The folder with a trailing separator, as the program folder is given.
  std::string folder() const { return m_path.string() + "/"; }
  std::string file(const std::string& name) const { return (m_path / name).string(); }
  // Writes `content` as it is to a file of the folder and returns its path.
  std::string write(const std::string& name, const std::string& content) const {
    std::ofstream(file(name), std::ios::binary) << content;
    return file(name);
  }
  // How many files and folders the folder holds: temporary files left behind show here.
  long entries() const { return static_cast<long>(std::distance(std::filesystem::directory_iterator(m_path), {})); }

  // A file's bytes as they are on disk, line ends included.
  static std::string contentOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }

 private:
  std::filesystem::path m_path;
};

}  // namespace combwise
