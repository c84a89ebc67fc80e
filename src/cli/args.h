// The command-line tool's option parser: positional arguments, options
// that take a value ("--size 17" or "--size=17") and plain flags.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace combwise::cli {

struct ParsedArgs {
  std::vector<std::string> positional;
  std::map<std::string, std::string> values;
  std::set<std::string> flags;
  std::string error;  // the first thing wrong, empty when all is well

  bool has(const std::string& flag) const { return flags.count(flag) > 0; }
  std::optional<std::string> value(const std::string& option) const;
  // The option as a whole number within [low, high]; sets `error` and
  // returns nothing when it is not one.
  std::optional<long long> number(const std::string& option, long long low, long long high);
};

ParsedArgs parseArgs(const std::vector<std::string>& args, const std::set<std::string>& valueOptions,
                     const std::set<std::string>& flagOptions);

}  // namespace combwise::cli
