// The error log: appends one record per error to "ErrorLog.txt" in the
// program folder and, when asked, hands a message to whoever shows it (the
// GUI sets that callback; the core shows nothing itself). Logging never
// fails: every error inside it is swallowed.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/files/programfiles.h"

namespace combwise {

class ErrorLog {
 public:
  // Shows a message: title, then text. The GUI passes one that opens a
  // critical message box.
  using ShowFn = std::function<void(const std::string& title, const std::string& message)>;
  // Gives the date and time field of a record, "#yyyy-mm-dd hh:mm:ss#".
  using StampFn = std::function<std::string()>;

  explicit ErrorLog(std::string programFolder, std::string appTitle = "Combwise");

  void setShow(ShowFn show) { m_show = std::move(show); }
  void setStamp(StampFn stamp) { m_stamp = std::move(stamp); }

  // Appends the record; with `show` also hands the message to the callback.
  void LogError(bool show, std::string_view number, std::string_view description, std::string_view moduleName,
                std::string_view functionName) const noexcept;

  // The message shown for an error, exactly as built for the message box.
  static std::string message(std::string_view number, std::string_view description, std::string_view moduleName,
                             std::string_view functionName);

  // The record's eight fields, written as the file layer's comma-separated
  // write statement does, without its line end.
  std::string record(std::string_view number, std::string_view description, std::string_view moduleName,
                     std::string_view functionName) const;

  std::string path() const { return m_folder + kErrorLogFile; }
  std::string versionTitle() const;

  // The current local date and time as "#yyyy-mm-dd hh:mm:ss#".
  static std::string currentStamp();

 private:
  std::string m_folder;
  std::string m_title;
  ShowFn m_show;
  StampFn m_stamp;
};

}  // namespace combwise
