// The session's files when things go wrong: an installed program keeps what
// it writes in the user's folders, a failed creation leaves the shown
// puzzle whole, read errors say where and why, a missing meanings file is
// told once, and a collection with a damaged puzzle stays reachable.
#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "core/files/config.h"
#include "core/files/programfiles.h"
#include "core/session/gamesession.h"
#include "sessiontest.h"

namespace combwise {
namespace {

using ::testing::HasSubstr;

std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    names.push_back(entry.path().lexically_relative(folder).string());
  std::sort(names.begin(), names.end());
  return names;
}

// A program folder with the game's word data, either as a build leaves it
// or installed where it cannot be written, with the user's folders beside.
class SessionFilesTest : public testing::SessionTest {
 protected:
  void SetUp() override {
    std::filesystem::create_directories(program);
    for (const char* name : {kDefaultDictionaryFile, kMeaningsFile})
      std::filesystem::copy_file(testing::gameDataPath(name), program + name);
  }
  ProgramFiles installed() const {
    return ProgramFiles(program, {home.file("cfg") + "/", home.file("data") + "/"}, false);
  }

  std::string program = home.file("program") + "/";
};

TEST_F(SessionFilesTest, AnInstalledGameReadsAndWritesItsFilesInTheUserFolders) {
  const std::string set = collection("ten.txt", 10);
  const std::vector<std::string> programBefore = namesIn(program);
  Settings own;  // which folder wins when both hold settings is the program files' own test
  own.collectionPath = set;
  own.PuzzleNumber = 4;
  std::filesystem::create_directories(home.file("cfg"));
  ASSERT_TRUE(SavecfgFile(home.file("cfg") + "/", own).ok());
  GameSession session(installed(), host);
  session.startUp();
  session.startStep();
  EXPECT_EQ(session.puzzle().PuzzleNumber, 4);

  session.arrow(2, 1);
  EXPECT_TRUE(session.exit().close);
  Settings saved;
  ReadcfgFile(home.file("cfg") + "/", program, saved);
  EXPECT_EQ(saved.PuzzleNumber, 5);
  EXPECT_EQ(saved.dictionaryPath, program + kDefaultDictionaryFile);

  // A created puzzle passes through the user's data folder, and the save
  // dialog starts there.
  EXPECT_EQ(session.create().status, "Puzzle created ...");
  EXPECT_TRUE(std::filesystem::is_regular_file(home.file("data") + "/" + kTemporaryPuzzleFile));
  session.savePuzzle();
  EXPECT_EQ(host.questions.back().defaultDir, home.file("data") + "/");

  EXPECT_EQ(namesIn(program), programBefore);
}

TEST_F(SessionFilesTest, AFailedCreateLeavesTheShownPuzzleAndSaveWritesIt) {
  const std::vector<std::string> lines = testing::readymadeSevens(3);
  const std::string set = testing::writeCrLf(home.file("three.txt"), lines);
  GameSession session(installed(), host);
  session.startUp();
  host.open(session, set);
  session.arrow(2, 1);
  const PuzzleState before = session.puzzle();
  const int sizeBefore = session.board().size();
  ASSERT_EQ(before.PuzzleNumber, 2);

  // The temporary puzzle cannot be written where a folder stands in its way.
  std::filesystem::create_directories(home.file("data") + "/" + kTemporaryPuzzleFile);
  session.nextSize();  // a size other than the shown one
  const CommandResult failed = session.create();
  ASSERT_EQ(failed.messages.size(), 1u);
  EXPECT_THAT(failed.messages[0].text, HasSubstr(kTemporaryPuzzleFile));
  EXPECT_TRUE(has(failed.redraw, Redraw::Board));

  const PuzzleState& after = session.puzzle();
  EXPECT_EQ(session.board().size(), sizeBefore);
  EXPECT_EQ(after.ClueTexts, before.ClueTexts);
  EXPECT_EQ(after.PuzzleNumber, 2);
  EXPECT_EQ(after.PuzzleCount, 3);
  // Saved, it is the second puzzle's own line: its letters and words.
  host.files.push_back(home.file("saved.txt"));
  session.savePuzzle();
  EXPECT_EQ(TempFolder::contentOf(home.file("saved.txt")), lines[1] + "\r\n");
}

TEST_F(SessionFilesTest, ReadErrorsNameTheFileTheLineAndTheCause) {
  const std::vector<std::string> good = testing::readymadeSevens(3);
  GameSession session(program, host);
  session.startUp();

  const std::string damaged = testing::writeCrLf(home.file("damaged.txt"), {good[0], "7;ABC;NOCOMMA;", good[2]});
  host.open(session, damaged);
  const CommandResult next = session.arrow(2, 1);
  EXPECT_EQ(next.status, "Error reading puzzle");
  EXPECT_THAT(*next.statusTip, HasSubstr(damaged + ", line 2: "));
  EXPECT_EQ(session.puzzle().PuzzleNumber, 2);  // the new number, so the arrows go on past it
  EXPECT_EQ(session.arrow(2, 1).status, "Puzzle read");
  EXPECT_EQ(session.puzzle().PuzzleNumber, 3);

  const std::string pipe = home.file("pipe.txt");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const CommandResult piped = host.open(session, pipe);
  EXPECT_EQ(piped.status, "Error loading puzzle file");
  EXPECT_THAT(*piped.statusTip, HasSubstr(pipe + ": it is not a regular file"));
  // A recent file that has become a pipe says so rather than that it is missing.
  std::filesystem::remove(damaged);
  ASSERT_EQ(::mkfifo(damaged.c_str(), 0600), 0);
  const CommandResult recent = session.openRecent(0);
  ASSERT_EQ(recent.messages.size(), 1u);
  EXPECT_THAT(recent.messages[0].text, HasSubstr("not a regular file"));

  // A collection that cannot be read leaves the one shown before.
  EXPECT_EQ(host.open(session, testing::writeCrLf(home.file("bad.txt"), {"7;ABC;NOCOMMA;"})).status,
            "Error loading puzzle file");
  EXPECT_EQ(host.open(session, testing::writeCrLf(home.file("empty.txt"), {})).status, "No puzzles in empty.txt");
  EXPECT_EQ(session.puzzle().CollectionPath, damaged);
  EXPECT_EQ(session.puzzle().PuzzleCount, 3);
}

TEST_F(SessionFilesTest, ADamagedFirstPuzzleAtStartKeepsTheCollectionReachable) {
  const std::vector<std::string> good = testing::readymadeSevens(3);
  const std::string set = testing::writeCrLf(home.file("c.txt"), {std::string(3000, '\x01'), good[1], good[2]});
  GameSession session(program, host);
  const CommandResult started = start(session, set);
  EXPECT_EQ(started.status, "Error reading puzzle");
  EXPECT_THAT(*started.statusTip, HasSubstr(set + ", line 1: "));
  EXPECT_EQ(session.arrow(2, 1).status, "Puzzle read");
  EXPECT_EQ(session.puzzle().PuzzleNumber, 2);
}

TEST_F(SessionFilesTest, AMissingMeaningsFileIsToldOnceWhenFirstNeeded) {
  std::filesystem::remove(program + kMeaningsFile);
  const std::string set = collection("three.txt", 3);
  GameSession session(program, host);
  session.startUp();  // no scheme file beside the program: a notice of its own
  session.setStartCollection(set, 1);
  const CommandResult started = session.startStep();
  ASSERT_EQ(started.messages.size(), 1u);
  EXPECT_THAT(started.messages[0].text, HasSubstr(program + kMeaningsFile));
  EXPECT_THAT(started.messages[0].text, HasSubstr("No such file or directory"));
  EXPECT_TRUE(session.arrow(2, 1).messages.empty());
}

TEST_F(SessionFilesTest, SettingsAndSchemeNoticesNameTheirFileAndCauseAndShowNoRawBytes) {
  testing::writeCrLf(program + kConfigFile, {"\x01\xfe\x7fgarbage.col", "", "", "Arial", " 2000  -1  500 "});
  GameSession session(program, host);
  const CommandResult started = session.startUp();
  ASSERT_EQ(started.messages.size(), 2u);
  EXPECT_THAT(started.messages[0].text, HasSubstr(program + kConfigFile));
  // No scheme file beside the program: the notice says so with the cause.
  EXPECT_THAT(started.messages[1].text, HasSubstr(program + kSchemeFile + ": No such file or directory"));
  for (const Message& message : started.messages) {
    EXPECT_EQ(message.text.find("garbage"), std::string::npos) << message.text;
    EXPECT_EQ(message.text.find('\x01'), std::string::npos);
  }

  // A folder in the settings file's place stops even a privileged user.
  std::filesystem::remove(program + kConfigFile);
  std::filesystem::create_directories(program + kConfigFile + "/x");
  const CommandResult saved = session.saveOptions();
  ASSERT_TRUE(saved.status.has_value());
  EXPECT_THAT(*saved.status, HasSubstr(program + kConfigFile + ": "));
}

}  // namespace
}  // namespace combwise
