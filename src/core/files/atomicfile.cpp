// Files written in full before they replace their target.
#include "core/files/atomicfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <random>

#include "core/files/regularfile.h"
#include "core/files/textfile.h"

namespace combwise {

namespace {

constexpr std::size_t kBufferSize = 1 << 16;

// Writes go to the file the path resolves to, so a link keeps pointing at it.
std::string resolvedTarget(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_symlink(path, error)) return path;
  const auto resolved = std::filesystem::weakly_canonical(path, error);
  return error ? path : resolved.string();
}

std::string temporaryName(const std::string& target, std::mt19937_64& random) {
  const std::filesystem::path path(target);
  std::string name = "." + path.filename().string() + ".";
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
  for (int i = 0; i < 8; ++i) name += kLetters[random() % kLetters.size()];
  return (path.parent_path() / name).string();
}

}  // namespace

AtomicFile::AtomicFile(std::string path, WriteFunction write) : m_path(std::move(path)), m_write(std::move(write)) {
  if (!m_write) m_write = [](int fd, const char* data, std::size_t size) { return ::write(fd, data, size); };
}

AtomicFile::~AtomicFile() {
  if (!m_committed) discard();
}

bool AtomicFile::fail(int errorNumber) {
  if (m_error.empty()) {
    m_errorNumber = errorNumber;
    m_error = fileErrorMessage("write", m_path, errorNumber);
  }
  return false;
}

bool AtomicFile::failWith(std::string message) {
  if (m_error.empty()) m_error = std::move(message);
  return false;
}

Status AtomicFile::open() {
  if (m_fd >= 0 || failed()) return Status::failure(m_error);
  if (m_path.empty()) return Status::failure("Cannot write a file without a name");
  m_target = resolvedTarget(m_path);
  struct stat info {};
  const bool exists = ::stat(m_target.c_str(), &info) == 0;
  if (exists && S_ISDIR(info.st_mode)) fail(EISDIR);
  if (exists && !S_ISREG(info.st_mode)) failWith(notRegularMessage("write", m_path));
  // A file marked read-only stays so, although its folder would let a new
  // file take its place.
  if (exists && !failed() && ::access(m_target.c_str(), W_OK) != 0) fail(errno);
  if (failed()) return Status::failure(m_error);

  std::mt19937_64 random(std::random_device{}());
  for (int attempt = 0; attempt < 100 && m_fd < 0; ++attempt) {
    m_temporary = temporaryName(m_target, random);
    m_fd = ::open(m_temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (m_fd < 0 && errno != EEXIST) break;
  }
  if (m_fd < 0) {
    fail(errno);
    m_temporary.clear();
    return Status::failure(m_error);
  }
  // A replaced file keeps who may read it.
  if (exists) ::fchmod(m_fd, info.st_mode & 07777);
  m_buffer.reserve(kBufferSize);
  return Status::success();
}

bool AtomicFile::writeOut(std::string_view bytes) {
  while (!bytes.empty()) {
    errno = 0;
    const ssize_t wrote = m_write(m_fd, bytes.data(), bytes.size());
    if (wrote < 0 && errno == EINTR) continue;
    // A write that takes nothing without a cause is a full disk as well.
    if (wrote <= 0) return fail(wrote < 0 && errno != 0 ? errno : ENOSPC);
    bytes.remove_prefix(static_cast<std::size_t>(wrote));
  }
  return true;
}

bool AtomicFile::flush() {
  const bool written = writeOut(m_buffer);
  m_buffer.clear();
  return written;
}

bool AtomicFile::write(std::string_view bytes) {
  if (failed()) return false;
  if (m_fd < 0 && !open().ok()) return false;
  if (m_buffer.size() + bytes.size() > kBufferSize && !flush()) return false;
  if (bytes.size() >= kBufferSize) return writeOut(bytes);
  m_buffer.append(bytes);
  return true;
}

Status AtomicFile::commit() {
  if (m_fd < 0 && !failed()) open();
  if (!failed() && flush()) {
    // The data is on disk before the name points at it; file systems that
    // cannot sync (EINVAL) have nothing to lose by it.
    if (::fsync(m_fd) != 0 && errno != EINVAL) fail(errno);
  }
  if (m_fd >= 0) {
    if (::close(m_fd) != 0) fail(errno);
    m_fd = -1;
  }
  if (!failed() && ::rename(m_temporary.c_str(), m_target.c_str()) != 0) fail(errno);
  if (failed()) {
    discard();
    return Status::failure(m_error);
  }
  m_committed = true;
  m_temporary.clear();
  return Status::success();
}

void AtomicFile::discard() {
  if (m_fd >= 0) {
    ::close(m_fd);
    m_fd = -1;
  }
  if (!m_temporary.empty()) {
    ::unlink(m_temporary.c_str());
    m_temporary.clear();
  }
  m_buffer.clear();
}

Status writeFileAtomically(const std::string& path, std::string_view content) {
  AtomicFile file(path);
  if (Status opened = file.open(); !opened.ok()) return opened;
  file.write(content);
  return file.commit();
}

}  // namespace combwise
