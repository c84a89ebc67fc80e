// Whole-file reading and CR LF writing for the word converter, which runs
// at build time and so keeps to the standard library alone.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace combwise::wordconv {

// The bytes of a file; nullopt when it cannot be opened or read.
std::optional<std::string> readWholeFile(const std::string& path);

// Writes each line followed by CR LF into a sibling file, then renames it
// over `path`, so a failed run never leaves a half-written data file.
bool writeCrLfLines(const std::string& path, const std::vector<std::string>& lines);

}  // namespace combwise::wordconv
