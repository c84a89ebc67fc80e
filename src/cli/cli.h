// combwise-cli: the headless tool for puzzle makers. runCli takes the
// arguments after the program name and returns the exit status.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace combwise::cli {

// `progressOnTerminal` draws progress bars on `err` (when it is a terminal).
int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err, bool progressOnTerminal = false);

}  // namespace combwise::cli
