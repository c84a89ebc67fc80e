// Opening the program's files without ever blocking on a pipe or a device.
// Opening a FIFO for reading waits for a writer (and for writing, for a
// reader) for as long as none comes, so every file is looked at first and
// opened without waiting; what is not a regular file is refused with its
// cause before a byte is read or written.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace combwise {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

enum class OpenFor {
  Reading,    // an existing regular file, read from its start
  Appending,  // read and append; created when missing
};

struct OpenedFile {
  FilePtr file;          // null when refused
  int errorNumber = 0;   // the system's cause, 0 when there is none to give
  std::string error;     // "Cannot open PATH: cause" or "Cannot write PATH: cause"
  bool created = false;  // Appending: the file did not exist before
  explicit operator bool() const { return file != nullptr; }
};

// Opens `path` when it is a regular file (or, when appending, when it does
// not exist yet). A folder, a pipe, a socket or a device is refused with
// "it is a folder" or "it is not a regular file".
OpenedFile openRegularFile(const std::string& path, OpenFor purpose);

// The message for a path that exists but is not a regular file.
std::string notRegularMessage(std::string_view verb, const std::string& path);

}  // namespace combwise
