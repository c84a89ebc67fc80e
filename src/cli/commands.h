// The command-line tool's commands. Each takes its own arguments (after the
// command's name) and returns the exit status: 0 success, 1 a failure of
// the work (an unreadable file, a bad puzzle), 2 bad arguments.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "core/files/programfiles.h"
#include "core/files/puzzlefile.h"

namespace combwise::cli {

struct Context {
  // The program folder for reading; batch output and the error log go to
  // the user's folders when it cannot be written.
  ProgramFiles files;
  std::ostream& out;
  std::ostream& err;
  bool progressOnTerminal = false;  // err is a terminal: draw progress bars

  std::string dictionaryPath() const { return files.readPath(kDefaultDictionaryFile); }
  std::string meaningsPath() const { return files.readPath(kMeaningsFile); }
  std::string errorLogFolder() const { return files.writeFolder(kErrorLogFile); }
};

using Arguments = std::vector<std::string>;

// How show and check name a puzzle that cannot be read: "FILE:N: cause"
// for a line that does not load, the reader's own message otherwise.
std::string readFailure(const std::string& path, const PuzzleReadResult& read);

int runCreate(Context& context, const Arguments& args);
int runBatch(Context& context, const Arguments& args);
int runRandomize(Context& context, const Arguments& args);
int runShow(Context& context, const Arguments& args);
int runClues(Context& context, const Arguments& args);
int runCheck(Context& context, const Arguments& args);
int runPdf(Context& context, const Arguments& args);  // built with the game's library only

}  // namespace combwise::cli
