// The program folder and how it is found.
#include "core/files/programfolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/files/programfiles.h"

// Where an installation keeps the data, seen from the folder of the
// executables; the build sets it from the install folders.
#ifndef COMBWISE_DATA_FROM_BIN
#define COMBWISE_DATA_FROM_BIN "../share/combwise"
#endif

namespace combwise {
namespace {

bool holdsDictionary(const std::filesystem::path& folder) {
  std::error_code error;
  return std::filesystem::is_regular_file(folder / kDefaultDictionaryFile, error);
}

}  // namespace

std::string withTrailingSeparator(std::string folder) {
  if (folder.empty()) return "./";
  if (folder.back() != '/') folder += '/';
  return folder;
}

std::string executableFolder() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error && self.has_parent_path()) return withTrailingSeparator(self.parent_path().string());
  const auto current = std::filesystem::current_path(error);
  return withTrailingSeparator(error ? std::string(".") : current.string());
}

std::string dataFolderBeside(const std::string& executableDir, std::string_view relativeDataDir) {
  const std::filesystem::path own(executableDir);
  if (holdsDictionary(own)) return withTrailingSeparator(executableDir);
  const std::filesystem::path installed = (own / relativeDataDir).lexically_normal();
  if (holdsDictionary(installed)) return withTrailingSeparator(installed.string());
  return withTrailingSeparator(executableDir);
}

std::string resolveProgramFolder(const std::optional<std::string>& homeOption, const char* homeEnvironment,
                                 const std::string& executableDir) {
  if (homeOption && !homeOption->empty()) return withTrailingSeparator(*homeOption);
  if (homeEnvironment && *homeEnvironment) return withTrailingSeparator(homeEnvironment);
  return withTrailingSeparator(executableDir);
}

std::string programFolder(const std::optional<std::string>& homeOption) {
  return resolveProgramFolder(homeOption, std::getenv("COMBWISE_HOME"),
                              dataFolderBeside(executableFolder(), COMBWISE_DATA_FROM_BIN));
}

}  // namespace combwise
