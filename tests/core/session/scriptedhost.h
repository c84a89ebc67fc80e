// The window as the session's tests play it: questions and file dialogs
// answered from scripts, everything told kept, and a hook that runs
// whenever the session lets events run.
#pragma once

#include <deque>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "core/session/gamesession.h"

namespace combwise::testing {

class ScriptedHost : public SessionHost {
 public:
  int ask(const std::string& prompt, const std::string& style) override {
    asked.push_back({prompt, style});
    return next(answers, kAnswerYes);
  }
  bool confirm(const std::string&) override { return true; }
  std::string chooseFile(const FileQuestion& question) override {
    questions.push_back(question);
    return next(files, std::string());
  }
  void tell(const Message& message) override { told.push_back(message); }
  void progress(const std::string& status) override { statuses.push_back(status); }
  void pumpEvents() override {
    if (duringEvents) duringEvents();
  }
  void busyChanged() override { ++busyChanges; }

  // Opens `path` as the collection, as if chosen in the file dialog.
  CommandResult open(GameSession& session, const std::string& path) {
    files.push_back(path);
    return session.loadCollection();
  }

  std::vector<Message> asked;
  std::deque<int> answers;  // then Yes
  std::vector<FileQuestion> questions;
  std::deque<std::string> files;  // then the dialog is cancelled
  std::vector<Message> told;
  std::vector<std::string> statuses;
  std::function<void()> duringEvents;
  int busyChanges = 0;

 private:
  template <typename T>
  static T next(std::deque<T>& script, T otherwise) {
    if (script.empty()) return otherwise;
    T front = std::move(script.front());
    script.pop_front();
    return front;
  }
};

// Writes `lines` with CR LF ends, as the game writes its files; the path.
inline std::string writeCrLf(const std::string& path, const std::vector<std::string>& lines) {
  std::ofstream out(path, std::ios::binary);
  for (const auto& line : lines) out << line << "\r\n";
  return path;
}

// Rests the pointer on the middle of a grid cell.
inline CommandResult hoverOn(GameSession& session, int row, int col) {
  const BoardLayout& layout = session.layout();
  return session.hover(layout.cellX(row, col) + layout.CellWidth / 2.0,
                       layout.cellY(row, col) + layout.CellHeight / 2.0);
}

}  // namespace combwise::testing
