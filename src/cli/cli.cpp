// combwise-cli's command dispatch and its general options.
#include "cli/cli.h"

#include <ostream>

namespace combwise::cli {
namespace {

constexpr const char* kUsage =
    "Usage: combwise-cli [--home DIR] COMMAND [ARGS]\n"
    "\n"
    "The headless tool for Combwise puzzle makers.\n"
    "\n"
    "Options:\n"
    "  --help       show this help\n"
    "  --version    show the version\n"
    "  --home DIR   use DIR as the program folder (dictionary, meanings)\n";

}  // namespace

int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  if (args.empty()) {
    err << kUsage;
    return 2;
  }
  const std::string& first = args.front();
  if (first == "--help" || first == "-h" || first == "help") {
    out << kUsage;
    return 0;
  }
  if (first == "--version" || first == "-V") {
    out << "combwise-cli " << COMBWISE_VERSION_MAJOR << "." << COMBWISE_VERSION_MINOR << "." << COMBWISE_VERSION_PATCH
        << "\n";
    return 0;
  }
  err << "combwise-cli: unknown command '" << first << "'\n\n" << kUsage;
  return 2;
}

}  // namespace combwise::cli
