// combwise-cli: the headless tool for puzzle makers. runCli takes the
// arguments after the program name and returns the exit status.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace combwise::cli {

int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace combwise::cli
