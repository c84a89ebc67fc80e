// Where the program reads and writes its own files.
#include "core/files/programfiles.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/files/programfolder.h"

namespace combwise {
namespace {

std::string xdgFolder(const char* value, const std::string& home, const char* fallback) {
  std::string base;
  if (value && *value == '/') {
    base = value;
  } else {
    base = withTrailingSeparator(home) + fallback;
  }
  return withTrailingSeparator(withTrailingSeparator(base) + "combwise");
}

std::string homeFolder() {
  if (const char* home = std::getenv("HOME"); home && *home) return home;
  if (const passwd* entry = ::getpwuid(::getuid()); entry && entry->pw_dir) return entry->pw_dir;
  return "/tmp";
}

bool holdsSomething(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error) && std::filesystem::file_size(path, error) > 0 && !error;
}

}  // namespace

UserFolders userFoldersFrom(const char* configHome, const char* dataHome, const std::string& home) {
  return {xdgFolder(configHome, home, ".config"), xdgFolder(dataHome, home, ".local/share")};
}

UserFolders userFolders() {
  return userFoldersFrom(std::getenv("XDG_CONFIG_HOME"), std::getenv("XDG_DATA_HOME"), homeFolder());
}

bool isWritableFolder(const std::string& folder) {
  std::error_code error;
  return std::filesystem::is_directory(folder, error) && ::access(folder.c_str(), W_OK | X_OK) == 0;
}

ProgramFiles::ProgramFiles(const std::string& programFolder, UserFolders user)
    : ProgramFiles(programFolder, std::move(user), isWritableFolder(programFolder)) {}

ProgramFiles::ProgramFiles(const std::string& programFolder, UserFolders user, bool programFolderWritable)
    : m_programFolder(withTrailingSeparator(programFolder)),
      m_user{withTrailingSeparator(std::move(user.config)), withTrailingSeparator(std::move(user.data))},
      m_useUserFolders(!programFolderWritable) {}

const std::string& ProgramFiles::userFolderFor(std::string_view name) const {
  return name == kConfigFile ? m_user.config : m_user.data;
}

std::string ProgramFiles::readFolder(std::string_view name) const {
  if (m_useUserFolders && holdsSomething(userFolderFor(name) + std::string(name))) return userFolderFor(name);
  return m_programFolder;
}

std::string ProgramFiles::readPath(std::string_view name) const { return readFolder(name) + std::string(name); }

std::string ProgramFiles::writeFolder(std::string_view name) const {
  if (!m_useUserFolders) return m_programFolder;
  const std::string& folder = userFolderFor(name);
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return folder;
}

std::string ProgramFiles::writePath(std::string_view name) const { return writeFolder(name) + std::string(name); }

}  // namespace combwise
