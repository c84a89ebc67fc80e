// The game session's command rules, driven through a scripted host: browsing
// and its ends, recent files, start-up's choice of collection, undo and reset
// with a declined question, verification, the guards while the session is
// busy, save and exit.
#include "core/session/gamesession.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "core/files/config.h"
#include "sessiontest.h"

namespace combwise {
namespace {

using testing::hoverOn;

class GameSessionTest : public testing::SessionTest {
 protected:
  void SetUp() override { session.startUp(); }
  CommandResult open(const std::string& path) { return host.open(session, path); }
  int number() const { return session.puzzle().PuzzleNumber; }

  GameSession session{home.folder(), host};
};

// Where each arrow leads is the browsing rules' own test; here the session
// reads that puzzle.
TEST_F(GameSessionTest, ArrowsReadThePuzzleTheyLeadTo) {
  const CommandResult loaded = open(collection("ten.txt", 10));
  EXPECT_EQ(loaded.status, "Puzzle file read");
  EXPECT_TRUE(has(loaded.redraw, Redraw::Puzzle));
  EXPECT_EQ(session.arrow(0, 1).status, "Puzzle read");
  EXPECT_EQ(number(), 10);

  // A one-puzzle collection does not even reload.
  open(collection("one.txt", 1));
  for (int k = 0; k < 3; ++k) EXPECT_TRUE(session.arrow(k, 1).empty() && session.arrow(k, 2).empty()) << k;
  EXPECT_EQ(number(), 1);
}

TEST_F(GameSessionTest, RecentFilesKeepTheirOrderDropTheOldestAndReportAMissingFile) {
  std::vector<std::string> paths;
  for (int i = 0; i < 6; ++i) paths.push_back(collection("c" + std::to_string(i) + ".txt", 2, i));
  auto shown = [this] {
    std::vector<std::string> captions;
    for (const RecentFile& entry : session.settings().recentFiles)
      if (entry.shown) captions.push_back(entry.path);
    return captions;
  };
  EXPECT_TRUE(has(open(paths[0]).redraw, Redraw::Recent));
  open(paths[1]);
  open(paths[0]);  // already listed: the order stays
  EXPECT_EQ(shown(), (std::vector<std::string>{paths[1], paths[0]}));
  for (int i = 2; i < 6; ++i) open(paths[i]);
  EXPECT_EQ(shown(), (std::vector<std::string>{paths[5], paths[4], paths[3], paths[2], paths[1]}));

  EXPECT_EQ(session.openRecent(4).status, "Puzzle file read");
  EXPECT_EQ(session.puzzle().CollectionPath, paths[1]);
  EXPECT_EQ(shown().front(), paths[5]);  // a listed path is not moved up

  std::remove(paths[2].c_str());
  const CommandResult missing = session.openRecent(3);
  EXPECT_EQ(missing.messages, (std::vector<Message>{{"File does not exist:\n" + paths[2], "vbok+vbcritical"}}));
  EXPECT_EQ(session.puzzle().CollectionPath, paths[1]);
}

TEST_F(GameSessionTest, StartOpensTheConfiguredPuzzleOrTheReadymadeOnesOrNothing) {
  const std::string ten = collection("ten.txt", 10);
  auto startAt = [this](const std::string& path, int n, const std::string& status) {
    auto game = std::make_unique<GameSession>(home.folder(), host);
    EXPECT_EQ(start(*game, path, n).status, status) << path << " " << n;
    return game;
  };
  auto game = startAt(ten, 7, "Ready ...");
  EXPECT_EQ(game->puzzle().PuzzleNumber, 7);

  game = startAt(ten, 12, "");  // beyond the count: an empty board
  EXPECT_EQ(game->puzzle().PuzzleSize, -1);
  EXPECT_FALSE(game->hasPuzzle());

  EXPECT_EQ(startAt(home.file("gone.txt"), 3, "")->puzzle().PuzzleNumber, 0);  // no readymade puzzles either
  collection("puzzles.txt", 3);  // the readymade ones beside the program open at 1
  game = startAt(home.file("gone.txt"), 3, "Ready ...");
  EXPECT_EQ(game->puzzle().CollectionPath, home.file("puzzles.txt"));
  EXPECT_EQ(game->puzzle().PuzzleNumber, 1);
}

TEST_F(GameSessionTest, TypingUndoAndARightClickResetDeclinedStillForgetTheUndoList) {
  open(collection("ten.txt", 10));
  EXPECT_TRUE(has(hoverOn(session, 3, 6).redraw, Redraw::Marker));
  EXPECT_TRUE(has(session.type('k').redraw, Redraw::Board));
  session.type('q');
  session.undo(1);
  EXPECT_EQ(session.puzzle().Entries.at(3, 6), "K");

  host.answers.push_back(kAnswerNo);
  EXPECT_TRUE(session.undo(2).empty());
  EXPECT_EQ(host.asked.back(), (Message{"Reset puzzle?", "vbquestion+vbyesno"}));
  EXPECT_TRUE(session.puzzle().UndoList.empty());
  EXPECT_EQ(session.puzzle().Entries.at(3, 6), "K");
  EXPECT_TRUE(session.undo(2).empty());  // nothing to undo: not even the question
  EXPECT_EQ(host.asked.size(), 1u);

  session.type('Q');
  EXPECT_EQ(session.reset().status, "Puzzle reset");
  EXPECT_TRUE(session.puzzle().UndoList.empty());
  EXPECT_EQ(session.puzzle().Entries.at(3, 6), "Q");  // the player's letters stay
}

TEST_F(GameSessionTest, VerifyNeedsAPuzzleAndCrossesTheUnfinishedHexagonsUntilReleased) {
  EXPECT_TRUE(session.verifyPressed().empty());
  EXPECT_TRUE(session.verifyReleased().empty());
  EXPECT_TRUE(session.reset().empty());  // no collection: not even the question

  open(collection("ten.txt", 10));
  const CommandResult pressed = session.verifyPressed();
  EXPECT_EQ(pressed.status, "Not done yet");
  EXPECT_EQ(session.marks().size(), 14u);  // two lines for each of the seven hexagons
  EXPECT_TRUE(has(session.verifyReleased().redraw, Redraw::Board));
  EXPECT_TRUE(session.marks().empty());

  session.revealHexagons(session.board().hexCount());
  const CommandResult done = session.verifyPressed();
  EXPECT_EQ(done.status, "All Done ...");
  EXPECT_EQ(done.messages, (std::vector<Message>{{"All done !", "vbhappy+vbok"}}));
}

TEST_F(GameSessionTest, WhileBusyTheFileAndPlayCommandsDoNothing) {
  open(collection("ten.txt", 10));
  hoverOn(session, 3, 6);
  session.type('A');
  bool tried = false;
  host.duringEvents = [&] {
    if (tried) return;
    tried = true;
    EXPECT_FALSE(session.createEnabled());
    EXPECT_FALSE(session.outputReady());
    const CommandResult during[] = {
        session.loadCollection(), session.savePuzzle(),       session.arrow(2, 1),           session.undo(1),
        session.undo(2),          session.verifyPressed(),    session.showSolutionPressed(), session.zoom(1),
        session.create(),         session.chooseDictionary(), session.randomize(),           hoverOn(session, 3, 7),
        session.type('B')};
    for (const CommandResult& result : during) EXPECT_TRUE(result.empty());
    const CommandResult recent = session.openRecent(0);
    EXPECT_EQ(recent.messages, (std::vector<Message>{{"Cancel puzzle creation", "vbok+vbexclamation"}}));
  };
  session.readDictionary(home.file("english3.txt"));
  ASSERT_TRUE(tried);
  EXPECT_EQ(host.questions.size(), 1u);   // no file dialog opened while busy
  EXPECT_EQ(session.puzzle().SelRow, 0);  // the pointer selects nothing while busy
  EXPECT_EQ(number(), 1);
  EXPECT_EQ(session.puzzle().UndoList.size(), 1u);
  EXPECT_TRUE(session.createEnabled());
}

TEST_F(GameSessionTest, CancelStopsACreationThatCannotSucceed) {
  session.readDictionary(home.file("english3.txt"));
  testing::writeCrLf(home.file("mean3456.txt"), {"CAT:a pet"});
  host.duringEvents = [this] {
    if (session.creating()) {
      EXPECT_EQ(session.cancelCreation().status, "Cancelling ...");
    }
  };
  EXPECT_EQ(session.create().status, "Puzzle creation cancelled");
  EXPECT_TRUE(session.createEnabled());
  EXPECT_TRUE(session.cancelCreation().empty());
}

TEST_F(GameSessionTest, SaveAppendsTheShownPuzzleAndExitSavesTheSettingsOnlyWhenConfirmed) {
  EXPECT_EQ(session.savePuzzle().status, "There is no puzzle to save");
  EXPECT_TRUE(session.randomize().empty());
  open(collection("ten.txt", 10));
  session.arrow(2, 1);
  host.files.push_back(home.file("saved"));
  EXPECT_EQ(session.savePuzzle().messages,
            (std::vector<Message>{{"Puzzle appended to file:\n" + home.file("saved.txt") + "\n 1 puzzles", ""}}));
  EXPECT_EQ(session.puzzle().CollectionPath, home.file("ten.txt"));

  host.answers.push_back(kAnswerNo);
  EXPECT_FALSE(session.exit().close);
  EXPECT_FALSE(std::ifstream(configPath(home.folder())).good());
  EXPECT_TRUE(session.exit().close);
  EXPECT_EQ(host.asked.back(), (Message{"Exit?", "vbQuestion + vbYesNo"}));
  Settings saved;
  ReadcfgFile(home.folder(), saved);
  EXPECT_EQ(saved.PuzzleNumber, 2);
  EXPECT_EQ(saved.collectionPath, home.file("ten.txt"));
}

}  // namespace
}  // namespace combwise
