// What the fuzz targets share: a scratch file per process for readers that
// take a path, and a check that stops the run with a message when a rule
// that must hold is broken.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace combwise::fuzz {

// A folder of this process's own under the temporary directory, with a
// trailing separator.
inline const std::string& scratchFolder() {
  static const std::string folder = [] {
    const auto path = std::filesystem::temp_directory_path() / ("combwise-fuzz-" + std::to_string(::getpid()));
    std::filesystem::create_directories(path);
    return path.string() + "/";
  }();
  return folder;
}

// Writes the input as the file `name` of the scratch folder.
inline std::string scratchFile(const std::string& name, std::string_view content) {
  const std::string path = scratchFolder() + name;
  std::ofstream(path, std::ios::binary | std::ios::trunc)
      .write(content.data(), static_cast<std::streamsize>(content.size()));
  return path;
}

inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// A broken rule ends the run: libFuzzer keeps the input that broke it.
inline void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

}  // namespace combwise::fuzz
