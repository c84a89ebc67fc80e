// The error log's record and message.
#include "core/files/errorlog.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "core/files/programfolder.h"
#include "core/files/textfile.h"

namespace combwise {
namespace {

std::string quoted(std::string_view text) {
  std::string out = "\"";
  for (char c : text) {
    out += c;
    if (c == '"') out += '"';  // keeps the record readable as comma-separated text
  }
  return out + "\"";
}

std::string environmentValue(const char* name, const char* fallback) {
  if (const char* value = std::getenv(name)) return value;
  if (fallback) {
    if (const char* value = std::getenv(fallback)) return value;
  }
  return {};
}

std::string machineName() {
  std::string name = environmentValue("computername", "HOSTNAME");
  if (!name.empty()) return name;
  char buffer[256] = {};
  if (gethostname(buffer, sizeof buffer - 1) == 0) return buffer;
  return {};
}

}  // namespace

ErrorLog::ErrorLog(std::string programFolder, std::string appTitle)
    : m_folder(withTrailingSeparator(std::move(programFolder))), m_title(std::move(appTitle)) {}

std::string ErrorLog::message(std::string_view number, std::string_view description, std::string_view moduleName,
                              std::string_view functionName) {
  std::string text = "Error occured: ";
  if (!number.empty()) text += number;
  text += "\r\n";
  if (!description.empty()) text += "Description: " + std::string(description) + "\r\n";
  if (!moduleName.empty()) text += "Module: " + std::string(moduleName) + "\r\n";
  if (!functionName.empty()) text += "Function: " + std::string(functionName);
  return text;
}

std::string ErrorLog::versionTitle() const {
  return m_title + " v" + std::to_string(COMBWISE_VERSION_MAJOR) + "." + std::to_string(COMBWISE_VERSION_MINOR) + "." +
         std::to_string(COMBWISE_VERSION_PATCH);
}

std::string ErrorLog::currentStamp() {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
  localtime_r(&now, &local);
  char buffer[32];
  std::strftime(buffer, sizeof buffer, "#%Y-%m-%d %H:%M:%S#", &local);
  return buffer;
}

std::string ErrorLog::record(std::string_view number, std::string_view description, std::string_view moduleName,
                             std::string_view functionName) const {
  const std::string stamp = m_stamp ? m_stamp() : currentStamp();
  return stamp + "," + quoted(number) + "," + quoted(description) + "," + quoted(moduleName) + "," +
         quoted(functionName) + "," + quoted(versionTitle()) + "," + quoted(environmentValue("username", "USER")) +
         "," + quoted(machineName());
}

void ErrorLog::LogError(bool show, std::string_view number, std::string_view description, std::string_view moduleName,
                        std::string_view functionName) const noexcept {
  try {
    if (show && m_show) m_show(m_title + " - ERROR", message(number, description, moduleName, functionName));
  } catch (...) {
  }
  try {
    writeLines(path(), {record(number, description, moduleName, functionName)}, WriteMode::Append);
  } catch (...) {
  }
}

}  // namespace combwise
