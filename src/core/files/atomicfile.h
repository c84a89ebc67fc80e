// Writing a file so that it appears whole or not at all. The bytes go to a
// temporary file beside the target; every write, the flush to disk and the
// close are checked, and only a complete file is renamed over the target.
// Any failure (a full disk, a folder that cannot be written) removes the
// temporary file, leaves the target as it was and says why.
#pragma once

#include <sys/types.h>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "core/model/callbacks.h"

namespace combwise {

class AtomicFile {
 public:
  // Writes bytes to a descriptor the way ::write does: the count written,
  // or -1 with errno set. Tests hand in one that fails as a full disk does.
  using WriteFunction = std::function<ssize_t(int fd, const char* data, std::size_t size)>;

  explicit AtomicFile(std::string path, WriteFunction write = {});
  ~AtomicFile();  // a file never committed is discarded
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  // Creates the temporary file. Refuses a target that is a folder, a pipe
  // or a device, and says why a folder cannot be written.
  Status open();
  // Adds bytes; false once anything has failed (the first cause is kept).
  bool write(std::string_view bytes);
  // Puts the whole file in the target's place.
  Status commit();
  // Drops the temporary file; the target is untouched.
  void discard();

  bool failed() const { return !m_error.empty(); }
  // "Cannot write PATH: cause", naming the target, never the temporary file.
  const std::string& error() const { return m_error; }
  int errorNumber() const { return m_errorNumber; }
  const std::string& path() const { return m_path; }

 private:
  bool writeOut(std::string_view bytes);
  bool flush();
  bool fail(int errorNumber);
  bool failWith(std::string message);

  std::string m_path;       // as given, for messages
  std::string m_temporary;  // beside the file the target resolves to
  std::string m_target;
  WriteFunction m_write;
  int m_fd = -1;
  std::string m_buffer;
  std::string m_error;
  int m_errorNumber = 0;
  bool m_committed = false;
};

// Replaces a file's whole content through an AtomicFile.
Status writeFileAtomically(const std::string& path, std::string_view content);

}  // namespace combwise
