// A progress bar with rate and time left, drawn on a terminal's line.
#pragma once

#include <chrono>
#include <iosfwd>

namespace combwise::cli {

class ProgressBar {
 public:
  // Draws only when `enabled` (the stream is a terminal).
  ProgressBar(std::ostream& out, long long total, bool enabled);
  void update(long long done);
  void finish();

 private:
  std::ostream& m_out;
  long long m_total;
  bool m_enabled;
  std::chrono::steady_clock::time_point m_start;
  std::chrono::steady_clock::time_point m_lastDraw;
};

}  // namespace combwise::cli
