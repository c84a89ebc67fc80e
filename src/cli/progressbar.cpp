// The progress bar of long runs.
#include "cli/progressbar.h"

#include <cstdio>
#include <ostream>
#include <string>

namespace combwise::cli {

ProgressBar::ProgressBar(std::ostream& out, long long total, bool enabled)
    : m_out(out), m_total(total), m_enabled(enabled), m_start(std::chrono::steady_clock::now()), m_lastDraw() {}

void ProgressBar::update(long long done) {
  if (!m_enabled || m_total <= 0) return;
  const auto now = std::chrono::steady_clock::now();
  if (done < m_total && now - m_lastDraw < std::chrono::milliseconds(100)) return;
  m_lastDraw = now;
  constexpr int kWidth = 30;
  const double seconds = std::chrono::duration<double>(now - m_start).count();
  const double rate = seconds > 0 ? static_cast<double>(done) / seconds : 0.0;
  const long long left = rate > 0 ? static_cast<long long>(static_cast<double>(m_total - done) / rate + 0.5) : 0;
  const int filled = static_cast<int>(kWidth * done / m_total);
  char line[160];
  std::snprintf(line, sizeof line, "\r[%s%s] %lld/%lld  %.1f/s  %02lld:%02lld left ",
                std::string(static_cast<std::size_t>(filled), '#').c_str(),
                std::string(static_cast<std::size_t>(kWidth - filled), ' ').c_str(), done, m_total, rate, left / 60,
                left % 60);
  m_out << line << std::flush;
}

void ProgressBar::finish() {
  if (m_enabled) m_out << "\n" << std::flush;
}

}  // namespace combwise::cli
