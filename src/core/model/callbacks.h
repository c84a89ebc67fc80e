// The callbacks through which core work talks to whoever runs it: letting
// pending interface events run during long loops, and reporting a status
// text or progress. Empty callbacks do nothing.
#pragma once

#include <functional>
#include <string>

namespace combwise {

// Lets pending interface events run (the GUI processes its event queue).
using PumpEvents = std::function<void()>;
// Shows a status text ("Reading Dictionary ...", "Solve hex 3 - 5 not verified").
using StatusReport = std::function<void(const std::string&)>;

inline void pump(const PumpEvents& events) {
  if (events) events();
}
inline void report(const StatusReport& status, const std::string& text) {
  if (status) status(text);
}

// The outcome of an operation that can fail: empty error text means success.
struct Status {
  std::string error;
  bool ok() const { return error.empty(); }
  static Status success() { return {}; }
  static Status failure(std::string message) { return {std::move(message)}; }
};

}  // namespace combwise
