// A named pipe to hand to readers and writers: each use runs on a thread of
// its own under a deadline, and one that blocks fails its test instead of
// hanging the suite.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <future>
#include <string>

namespace combwise {

class Fifo {
 public:
  explicit Fifo(std::string path) : m_path(std::move(path)) { m_made = ::mkfifo(m_path.c_str(), 0600) == 0; }
  bool made() const { return m_made; }
  const std::string& path() const { return m_path; }

  // True when `work` returned within the deadline without waiting for the
  // pipe's other end.
  bool returnsWithoutWaiting(const std::function<void()>& work,
                             std::chrono::milliseconds deadline = std::chrono::seconds(5)) const {
    auto done = std::async(std::launch::async, work);
    if (done.wait_for(deadline) == std::future_status::ready) return true;
    // Both ends opened and closed: a reader stuck in open or read sees the
    // end of the file, a writer stuck in open gets its reader (and a
    // broken pipe rather than a signal when it writes).
    std::signal(SIGPIPE, SIG_IGN);
    while (done.wait_for(std::chrono::milliseconds(50)) != std::future_status::ready) {
      const int reader = ::open(m_path.c_str(), O_RDONLY | O_NONBLOCK);
      const int writer = ::open(m_path.c_str(), O_WRONLY | O_NONBLOCK);
      if (writer >= 0) ::close(writer);
      if (reader >= 0) ::close(reader);
    }
    return false;
  }

 private:
  std::string m_path;
  bool m_made = false;
};

}  // namespace combwise
