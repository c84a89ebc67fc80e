// What the session's tests share: the window as they play it (questions and
// file dialogs answered from scripts, everything told kept, a hook that runs
// whenever the session lets events run) and a scratch home folder.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "core/session/gamesession.h"
#include "support/gamedata.h"
#include "support/tempfolder.h"

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
  void tell(const Message&) override {}
  void progress(const std::string&) override {}
  void pumpEvents() override {
    if (duringEvents) duringEvents();
  }
  void busyChanged() override {}

  // Opens `path` as the collection, as if chosen in the file dialog.
  CommandResult open(GameSession& session, const std::string& path) {
    files.push_back(path);
    return session.loadCollection();
  }

  std::vector<Message> asked;
  std::deque<int> answers;  // then Yes
  std::vector<FileQuestion> questions;
  std::deque<std::string> files;  // then the dialog is cancelled
  std::function<void()> duringEvents;

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

// A home folder with a small dictionary, which keeps the start step quick.
class SessionTest : public ::testing::Test {
 protected:
  SessionTest() { writeCrLf(home.file("english3.txt"), {"CAT", "DOG", "BIRD", "FISH", "HORSE", "SHEEP", "RABBIT"}); }

  // `count` readymade puzzles of size 7 from number `from` + 1, as `name` in the home folder.
  std::string collection(const std::string& name, std::size_t count, std::size_t from = 0) const {
    const std::vector<std::string> all = readymadeSevens(from + count);
    return writeCrLf(home.file(name), {all.begin() + static_cast<long>(from), all.end()});
  }
  // Starts `session` at puzzle n of `path`, as the window does.
  static CommandResult start(GameSession& session, const std::string& path, int n = 1) {
    CommandResult result = session.startUp();
    session.setStartCollection(path, n);
    result.add(session.startStep());
    return result;
  }

  TempFolder home;
  ScriptedHost host;
};

}  // namespace combwise::testing
