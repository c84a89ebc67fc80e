// Lets files grow to a given size at most while it lives: writes beyond it
// fail ("File too large") the way they fail on a full disk, with no
// privileges needed.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace combwise {

class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &m_old);
    m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = m_old;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &m_old);
    std::signal(SIGXFSZ, m_oldHandler);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit m_old{};
  void (*m_oldHandler)(int) = nullptr;
};

}  // namespace combwise
