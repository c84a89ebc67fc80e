// combwise-cli's command dispatch and its general options.
#include "cli/cli.h"

#include <functional>
#include <map>
#include <new>
#include <optional>
#include <ostream>

#include "cli/commands.h"
#include "core/files/programfiles.h"
#include "core/files/programfolder.h"

namespace combwise::cli {
namespace {

constexpr const char* kUsage =
    "Usage: combwise-cli [--home DIR] COMMAND [ARGS]\n"
    "\n"
    "The headless tool for Combwise puzzle makers.\n"
    "\n"
    "Commands:\n"
    "  create     append new puzzles to a collection\n"
    "  batch      append 2000 puzzles of size 17 to the program folder's batch file\n"
    "  randomize  write a collection without duplicates, in random order\n"
    "  show       draw a puzzle and its clues in the terminal\n"
    "  clues      write a puzzle's clue listing to a text file\n"
    "  check      report the puzzles of a collection that are broken\n"
#ifdef COMBWISE_CLI_PDF
    "  pdf        print a range of puzzles, solutions and clues to a PDF file\n"
#endif
    "\n"
    "Options:\n"
    "  --home DIR   the program folder (dictionary, meanings); default: the\n"
    "               COMBWISE_HOME environment variable, else the tool's folder\n"
    "               or, installed, /usr/share/combwise\n"
    "  --help       show this help; COMMAND --help shows a command's\n"
    "  --version    show the version\n";

using Command = std::function<int(Context&, const Arguments&)>;

const std::map<std::string, Command>& commands() {
  static const std::map<std::string, Command> table = {
      {"create", runCreate}, {"batch", runBatch}, {"randomize", runRandomize},
      {"show", runShow},     {"clues", runClues}, {"check", runCheck},
#ifdef COMBWISE_CLI_PDF
      {"pdf", runPdf},
#endif
  };
  return table;
}

}  // namespace

int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err, bool progressOnTerminal) {
  std::optional<std::string> home;
  std::size_t at = 0;
  for (; at < args.size(); ++at) {
    const std::string& arg = args[at];
    if (arg == "--help" || arg == "-h" || arg == "help") {
      out << kUsage;
      return 0;
    }
    if (arg == "--version" || arg == "-V") {
      out << "combwise-cli " << COMBWISE_VERSION_MAJOR << "." << COMBWISE_VERSION_MINOR << "." << COMBWISE_VERSION_PATCH
          << "\n";
      return 0;
    }
    if (arg == "--home" || arg.rfind("--home=", 0) == 0) {
      std::optional<std::string> folder;
      if (arg != "--home") {
        folder = arg.substr(7);
      } else if (at + 1 < args.size()) {
        folder = args[++at];
      }
      if (!folder || folder->empty()) {
        err << "combwise-cli: --home needs a folder\n";
        return 2;
      }
      if (home) {
        err << "combwise-cli: --home is given more than once\n";
        return 2;
      }
      home = folder;
    } else if (arg.size() > 1 && arg.front() == '-') {
      err << "combwise-cli: unknown option '" << arg << "'\nTry 'combwise-cli --help' for the commands and options.\n";
      return 2;
    } else {
      break;
    }
  }
  if (at >= args.size()) {
    err << kUsage;
    return 2;
  }
  const auto command = commands().find(args[at]);
  if (command == commands().end()) {
    err << "combwise-cli: unknown command '" << args[at] << "'\n\n" << kUsage;
    return 2;
  }
  Context context{ProgramFiles(programFolder(home), userFolders()), out, err, progressOnTerminal};
  // Running out of memory is an error like any other: appends are whole
  // lines, so nothing written is lost.
  try {
    return command->second(context, Arguments(args.begin() + static_cast<std::ptrdiff_t>(at) + 1, args.end()));
  } catch (const std::bad_alloc&) {
    err << "combwise-cli " << args[at] << ": there is not enough memory\n";
    return 1;
  }
}

}  // namespace combwise::cli
