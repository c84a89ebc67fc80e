// The session's rules for play people come back to: letters kept between
// runs without replacing those carried over from the puzzle before, the
// clean-board option, the timer and the solved record (the time spent going
// on across runs), what keyboard moves and clearing letters report, and a
// progress file that cannot be written.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "core/files/extraoptions.h"
#include "core/files/progressfile.h"
#include "core/session/gamesession.h"
#include "sessiontest.h"

namespace combwise {
namespace {

using std::chrono::milliseconds;
using testing::hoverOn;

class PlayProgressTest : public testing::SessionTest {
 protected:
  // A new run of the program at puzzle n of the collection, with a clock
  // the test moves.
  std::unique_ptr<GameSession> run(int n, CommandResult* started = nullptr) {
    auto session = std::make_unique<GameSession>(home.folder(), host);
    session->setClock([this] { return now; });
    const CommandResult result = start(*session, path, n);
    if (started) *started = result;
    return session;
  }
  static std::string at(const GameSession& session, int row, int col) { return session.puzzle().Entries.at(row, col); }

  std::string path = collection("ten.txt", 10);
  milliseconds now{1'000'000};
};

TEST_F(PlayProgressTest, LettersComeBackAtTheNextStartButNeverOverLettersCarriedOver) {
  {
    auto session = run(3);
    hoverOn(*session, 3, 6);
    session->type('k');
    session->saveProgress();
  }
  auto session = run(3);
  EXPECT_EQ(at(*session, 3, 6), "K");

  // Browsing keeps the letters where they stand, as it always did.
  hoverOn(*session, 3, 7);
  session->type('q');
  session->arrow(2, 1);
  EXPECT_EQ(at(*session, 3, 6), "K");
  EXPECT_EQ(at(*session, 3, 7), "Q");
  // The first puzzle's letters were kept when it was left, the Q with them.
  const ProgressRead kept = readProgressFile(progressPath(home.folder()));
  ASSERT_NE(kept.store.entriesOf(path, 3), nullptr);
  EXPECT_EQ(kept.store.entriesOf(path, 3)->cells.size(), 2u);
}

TEST_F(PlayProgressTest, ACleanBoardOptionClearsLettersForAnotherPuzzleOnlyAndBringsKeptOnesBack) {
  auto session = run(1);
  session->setExtraOptions(true, false);
  EXPECT_TRUE(readExtraOptions(extraOptionsPath(home.folder())).options.cleanBoardEachPuzzle);
  hoverOn(*session, 3, 6);
  session->type('z');
  session->reset();  // the same puzzle again: letters stay
  EXPECT_EQ(at(*session, 3, 6), "Z");
  session->arrow(2, 1);
  EXPECT_EQ(at(*session, 3, 6), "");
  session->arrow(0, 1);
  EXPECT_EQ(at(*session, 3, 6), "Z");
}

TEST_F(PlayProgressTest, TheTimerRunsWhileTheWindowIsActiveStopsWhenSolvedAndGoesOnAcrossRuns) {
  auto session = run(2);
  now += milliseconds{5'000};
  session->windowActive(false);
  now += milliseconds{100'000};
  session->windowActive(true);
  now += milliseconds{3'000};
  EXPECT_EQ(session->timerText(), "0:08");
  EXPECT_FALSE(session->solvedRecord());

  session->verifyPressed();  // not done yet: the timer runs on
  EXPECT_TRUE(session->timerRunning());
  session->revealHexagons(session->board().hexCount());
  const CommandResult done = session->verifyPressed();
  EXPECT_EQ(done.status, "All Done ...");
  EXPECT_TRUE(has(done.redraw, Redraw::Record));
  now += milliseconds{60'000};
  session->verifyPressed();
  ASSERT_TRUE(session->solvedRecord());
  EXPECT_EQ(session->solvedRecord()->seconds, 8);
  EXPECT_EQ(session->timerText(), "0:08");
  session.reset();

  // The next run brings the solved letters back at the time of their
  // solve, and verifying them again records nothing new.
  session = run(2);
  EXPECT_EQ(session->timerText(), "0:08");
  now += milliseconds{30'000};
  session->verifyPressed();
  EXPECT_FALSE(session->timerRunning());
  EXPECT_EQ(session->solvedRecord()->seconds, 8);
  session.reset();

  // Letters left half done take their time with them, including the time
  // after the last letter typed, and the solve counts all of it.
  session = run(4);
  hoverOn(*session, 3, 6);
  now += milliseconds{10'000};
  session->type('k');
  session->saveProgress();
  now += milliseconds{43'000};
  session->saveProgress();  // as the window closes
  session.reset();
  session = run(4);
  EXPECT_EQ(at(*session, 3, 6), "K");
  EXPECT_EQ(session->timerText(), "0:53");
  EXPECT_TRUE(session->timerRunning());
  now += milliseconds{4'000};
  session->revealHexagons(session->board().hexCount());
  session->verifyPressed();
  ASSERT_TRUE(session->solvedRecord());
  EXPECT_EQ(session->solvedRecord()->seconds, 57);
}

TEST_F(PlayProgressTest, KeyboardMovesClickedCluesAndClearingLettersSayWhatTheyDid) {
  auto session = run(1);
  session->stepHexagon(HexStep::Next);
  EXPECT_EQ(session->stepHexagon(HexStep::Next).status, "Hex = 2");
  session->type('m');
  EXPECT_EQ(session->clearLetters().status, "Letters cleared");
  EXPECT_EQ(session->clearLetters().status, "No letters to clear");
  EXPECT_TRUE(has(session->pointerLeft().redraw, Redraw::Marker));
  EXPECT_EQ(session->selectedHexagon(), 0);
  EXPECT_EQ(session->selectHexagon(5).status, "Hex = 5");
  EXPECT_TRUE(session->selectHexagon(99).empty());
}

TEST_F(PlayProgressTest, AProgressFileThatCannotBeWrittenIsReportedOnceAndADamagedOneAtStart) {
  std::filesystem::create_directory(progressPath(home.folder()));  // a folder where the file should be
  auto session = run(1);
  hoverOn(*session, 3, 6);
  session->type('a');
  const CommandResult failed = session->saveProgress();
  ASSERT_EQ(failed.messages.size(), 1u);
  EXPECT_NE(failed.messages[0].text.find(std::string(kProgressFileName)), std::string::npos);
  EXPECT_TRUE(session->progressUnsaved());
  session->type('b');
  EXPECT_TRUE(session->saveProgress().messages.empty());
  session.reset();

  std::filesystem::remove(progressPath(home.folder()));
  std::ofstream(progressPath(home.folder()), std::ios::binary) << kProgressHeader << "\r\nentries x\r\n";
  CommandResult started;
  run(1, &started);
  std::string told;
  for (const Message& message : started.messages) told += message.text + "\n";
  EXPECT_NE(told.find(std::string(kProgressFileName) + " line 2"), std::string::npos) << told;
}

}  // namespace
}  // namespace combwise
