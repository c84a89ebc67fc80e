// The command-line tool's option parser.
#include "cli/args.h"

#include <charconv>

namespace combwise::cli {

std::optional<std::string> ParsedArgs::value(const std::string& option) const {
  const auto found = values.find(option);
  if (found == values.end()) return std::nullopt;
  return found->second;
}

std::optional<long long> ParsedArgs::number(const std::string& option, long long low, long long high) {
  const auto text = value(option);
  if (!text) return std::nullopt;
  long long result = 0;
  const auto [end, failure] = std::from_chars(text->data(), text->data() + text->size(), result);
  if (failure != std::errc() || end != text->data() + text->size() || result < low || result > high) {
    if (error.empty())
      error = option + " takes a whole number from " + std::to_string(low) + " to " + std::to_string(high) + ", not '" +
              *text + "'";
    return std::nullopt;
  }
  return result;
}

ParsedArgs parseArgs(const std::vector<std::string>& args, const std::set<std::string>& valueOptions,
                     const std::set<std::string>& flagOptions) {
  ParsedArgs parsed;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const auto fail = [&parsed](std::string message) {
      if (parsed.error.empty()) parsed.error = std::move(message);
    };
    if (arg.empty()) {
      fail("an empty argument names no file");
      continue;
    }
    if (arg.size() < 2 || arg.rfind("--", 0) != 0) {
      parsed.positional.push_back(arg);
      continue;
    }
    const auto equals = arg.find('=');
    const std::string name = arg.substr(0, equals);
    if (valueOptions.count(name)) {
      std::optional<std::string> value;
      if (equals != std::string::npos) {
        value = arg.substr(equals + 1);
      } else if (i + 1 < args.size()) {
        value = args[++i];
      }
      if (!value || value->empty()) {
        fail(name + " needs a value");
      } else if (parsed.values.count(name)) {
        fail(name + " is given more than once");
      } else {
        parsed.values[name] = *value;
      }
    } else if (flagOptions.count(name) && equals == std::string::npos) {
      if (parsed.flags.count(name)) fail(name + " is given more than once");
      parsed.flags.insert(name);
    } else if (parsed.error.empty()) {
      parsed.error = "unknown option '" + arg + "'";
    }
  }
  return parsed;
}

}  // namespace combwise::cli
