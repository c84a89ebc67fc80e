// The program folder: where the program keeps its own files (dictionary,
// meanings, configuration, colour schemes, error log). It is the folder of
// the executable unless the COMBWISE_HOME environment variable or a
// `--home DIR` option names another; an installed executable whose own
// folder holds no data finds it in the data folder of its installation
// (../share/combwise beside bin). It always ends with a separator.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace combwise {

// The folder with a trailing "/" appended when it has none.
std::string withTrailingSeparator(std::string folder);

// The folder of the running executable, with a trailing separator; the
// current directory when it cannot be found.
std::string executableFolder();

// The folder that holds the program's data for an executable in
// `executableDir`: that folder itself when it holds the dictionary, else
// `relativeDataDir` taken from it when that one does, else the executable's
// folder all the same. With a trailing separator.
std::string dataFolderBeside(const std::string& executableDir, std::string_view relativeDataDir);

// The program folder by precedence: the --home option, then the
// COMBWISE_HOME value (when not empty), then the executable's folder.
std::string resolveProgramFolder(const std::optional<std::string>& homeOption, const char* homeEnvironment,
                                 const std::string& executableDir);

// resolveProgramFolder with this process's environment and the data folder
// beside its executable.
std::string programFolder(const std::optional<std::string>& homeOption = std::nullopt);

}  // namespace combwise
