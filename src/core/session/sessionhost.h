// The window as the game session sees it: how the session asks a question,
// has a file chosen, shows a message or a status text at once while a long
// command runs, lets pending events run, tells that its busy state changed,
// and learns the screen's measures. The window implements it; tests hand
// in a scripted fake.
#pragma once

#include <string>

#include "core/session/commandresult.h"

namespace combwise {

// Result codes of a message box.
inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

// What a file-name dialog is asked for: title, pattern ("*.txt") and its
// name ("Combwise Files"), starting folder, and "OPEN" or "SAVE".
struct FileQuestion {
  std::string title;
  std::string fileTypes;
  std::string fileTypesName;
  std::string defaultDir;
  std::string mode;
};

// The board frame and the screen's units, in twips.
struct ScreenMeasures {
  double twipsPerPixelX = 15;
  double twipsPerPixelY = 15;
  double frameWidth = 8400;
  double frameHeight = 7200;
};

class SessionHost {
 public:
  virtual ~SessionHost() = default;
  // The program's message box with a question style; the answer's code.
  virtual int ask(const std::string& prompt, const std::string& style) = 0;
  // The platform's plain Yes/No question; true for Yes.
  virtual bool confirm(const std::string& text) = 0;
  // The chosen path; empty when the user cancels.
  virtual std::string chooseFile(const FileQuestion& question) = 0;
  // A message shown at once (errors met in the middle of a long read).
  virtual void tell(const Message& message) = 0;
  // A status text shown at once, while a command is still running.
  virtual void progress(const std::string&) {}
  // Lets pending interface events run.
  virtual void pumpEvents() {}
  // The session became busy or idle, or a creation began or ended.
  virtual void busyChanged() {}
  // The busy pointer on (for as long as a read or a run lasts) or off again.
  virtual void pointerBusy(bool) {}
  virtual ScreenMeasures measures() const { return {}; }
};

}  // namespace combwise
