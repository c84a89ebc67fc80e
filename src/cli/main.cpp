// combwise-cli's entry point: hands the arguments to the command runner.
#include <unistd.h>

#include <iostream>
#include <string>
#include <vector>

#include "cli/cli.h"

int main(int argc, char* argv[]) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  return combwise::cli::runCli(args, std::cout, std::cerr, isatty(STDERR_FILENO) != 0);
}
