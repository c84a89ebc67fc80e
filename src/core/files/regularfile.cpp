// Opening regular files without waiting on pipes and devices.
#include "core/files/regularfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string_view>

#include "core/files/textfile.h"

namespace combwise {

namespace {

OpenedFile refused(std::string message, int errorNumber = 0) {
  OpenedFile opened;
  opened.errorNumber = errorNumber;
  opened.error = std::move(message);
  return opened;
}

// The message for an errno of a look or an open.
OpenedFile failedWith(std::string_view verb, const std::string& path, int errorNumber) {
  return refused(fileErrorMessage(verb, path, errorNumber), errorNumber);
}

// A file that is not regular is refused whether it was seen before opening
// or only by the open descriptor (it was replaced in between).
std::optional<std::string> kindProblem(std::string_view verb, const std::string& path, const struct stat& info) {
  if (S_ISDIR(info.st_mode)) return fileErrorMessage(verb, path, EISDIR);
  if (!S_ISREG(info.st_mode)) return notRegularMessage(verb, path);
  return std::nullopt;
}

}  // namespace

std::string notRegularMessage(std::string_view verb, const std::string& path) {
  return "Cannot " + std::string(verb) + " " + path + ": it is not a regular file";
}

OpenedFile openRegularFile(const std::string& path, OpenFor purpose) {
  const bool reading = purpose == OpenFor::Reading;
  const std::string_view verb = reading ? "open" : "write";
  if (path.empty()) return refused("Cannot " + std::string(verb) + " a file without a name");

  struct stat info {};
  if (::stat(path.c_str(), &info) == 0) {
    if (auto problem = kindProblem(verb, path, info)) return refused(std::move(*problem));
  } else if (reading || errno != ENOENT) {
    return failedWith(verb, path, errno);
  }

  // O_NONBLOCK only matters if a pipe took the file's place since the look
  // above: the open then returns at once and the check below refuses it.
  constexpr int kCommon = O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  bool created = false;
  int fd = -1;
  if (reading) {
    fd = ::open(path.c_str(), O_RDONLY | kCommon);
  } else {
    fd = ::open(path.c_str(), O_RDWR | O_APPEND | O_CREAT | O_EXCL | kCommon, 0666);
    created = fd >= 0;
    if (fd < 0 && errno == EEXIST) fd = ::open(path.c_str(), O_RDWR | O_APPEND | kCommon);
  }
  if (fd < 0) return failedWith(verb, path, errno);

  if (::fstat(fd, &info) != 0) {
    const int cause = errno;
    ::close(fd);
    return failedWith(verb, path, cause);
  }
  if (auto problem = kindProblem(verb, path, info)) {
    ::close(fd);
    return refused(std::move(*problem));
  }
  const int flags = ::fcntl(fd, F_GETFL);
  if (flags >= 0) ::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK);

  OpenedFile opened;
  opened.file.reset(::fdopen(fd, reading ? "rb" : "a+b"));
  if (!opened.file) {
    const int cause = errno;
    ::close(fd);
    return failedWith(verb, path, cause);
  }
  opened.created = created;
  return opened;
}

}  // namespace combwise
