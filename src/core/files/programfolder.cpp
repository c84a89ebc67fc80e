// The program folder and how it is found.
#include "core/files/programfolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace combwise {

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

std::string resolveProgramFolder(const std::optional<std::string>& homeOption, const char* homeEnvironment,
                                 const std::string& executableDir) {
  if (homeOption && !homeOption->empty()) return withTrailingSeparator(*homeOption);
  if (homeEnvironment && *homeEnvironment) return withTrailingSeparator(homeEnvironment);
  return withTrailingSeparator(executableDir);
}

std::string programFolder(const std::optional<std::string>& homeOption) {
  return resolveProgramFolder(homeOption, std::getenv("COMBWISE_HOME"), executableFolder());
}

}  // namespace combwise
