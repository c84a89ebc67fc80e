// The game window driven through its mouse controls: what it shows of the
// session's state (labels, File menu, marks, solution lists, zoom), the
// mouse buttons it hands on, and its questions and boxes. The command rules
// themselves are tested on the session.
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QTimer>

#include "support/gamewindow.h"

namespace combwise {

using Game = testing::GameWindow<>;
using testing::GameFolder;

class TestMainWindow : public QObject {
  Q_OBJECT

 private slots:
  void labelsFollowTheShownPuzzleAndArrowsPassTheirMouseButton() {
    Game game;
    game.configure(7);
    QVERIFY(game.start());
    QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 7 of 10"));
    QCOMPARE(game.find<QLabel>("lblsize")->text(), QString("7"));
    QCOMPARE(game.find<QLabel>("lblfile")->text(), QString("ten.txt"));

    game.click("cmdarrow0");
    QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 6 of 10"));
    game.click("cmdarrow2", Qt::RightButton);  // the right button goes to the last
    QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 10 of 10"));
  }

  // Recent entries show in the File menu, with one separator before Help
  // only while at least one of them shows.
  void recentFilesShowInTheFileMenuWithOneSeparatorBeforeHelp() {
    Game game;
    QVERIFY(game.start());
    const QStringList lines = GameFolder::readymade("7");
    const QString first = game.folder.writeCollection("c0.txt", lines.mid(0, 2));
    const QString second = game.folder.writeCollection("c1.txt", lines.mid(2, 2));
    const auto entry = [&](int i) { return game.find<QAction>(QString("mnuoldfiles%1").arg(i)); };
    const auto separatorsBeforeHelp = [&] {
      int count = 0;
      bool counting = false;
      for (QAction* a : game.window->fileMenu()->actions()) {
        if (a->objectName() == "mnuprint") counting = true;
        if (a->objectName() == "mnuhelp") break;
        if (counting && a->isSeparator() && a->isVisible()) ++count;
      }
      return count;
    };
    QVERIFY(!entry(0)->isVisible() && !entry(5)->isVisible());
    QCOMPARE(separatorsBeforeHelp(), 0);
    for (const QString& path : {first, second}) {
      game.files.paths.enqueue(path);
      game.trigger("mnuloadpuzfile");
    }
    QCOMPARE(entry(1)->text(), first);
    QVERIFY(entry(1)->isVisible() && !entry(2)->isVisible() && entry(5)->isVisible());
    QCOMPARE(separatorsBeforeHelp(), 1);

    entry(1)->trigger();
    QCOMPARE(QString::fromStdString(game.puzzle().CollectionPath), first);
  }

  void verifyAndSolutionShowOnlyWhileHeld() {
    Game game;
    game.configure(2);
    QVERIFY(game.start());
    BoardPicture* picture = game.window->boardPicture();
    auto* verify = game.find<BoxControl>("cmdverify");
    QTest::mousePress(verify, Qt::LeftButton);
    QCOMPARE(game.status(), QString("Not done yet"));
    QVERIFY(!picture->marks().empty());
    QTest::mouseRelease(verify, Qt::LeftButton);
    QVERIFY(picture->marks().empty());

    auto* solution = game.find<BoxControl>("cmdshowsol");
    auto* words = game.find<QListWidget>("List2a");
    QTest::mousePress(solution, Qt::LeftButton);
    QCOMPARE(picture->view().letters, LetterMode::Solution);
    QVERIFY(words->isVisible());
    QTest::mouseRelease(solution, Qt::LeftButton);
    QCOMPARE(picture->view().letters, LetterMode::Play);
    QVERIFY(!words->isVisible());
  }

  void zoomResizesThePictureWhichDragsAndResetBringsItBack() {
    Game game;
    game.configure(1);
    QVERIFY(game.start());
    const BoardLayout& layout = game.window->layout();
    BoardPicture* picture = game.window->boardPicture();
    const QPoint home = picture->pos();
    const int fitWidth = picture->width();
    game.click("cmdzoom1");
    QVERIFY(picture->width() > fitWidth);
    QCOMPARE(picture->width(), qRound(layout.pictureWidth / layout.TwipsPerPixelX));
    QCOMPARE(picture->view().font.pointSizeF(), game.window->session().fontSize());
    QTest::mousePress(picture, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(picture, QPoint(45, 35));
    QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(45, 35));
    QCOMPARE(picture->pos(), home + QPoint(40, 30));
    game.click("cmdzoom2");
    QCOMPARE(picture->width(), fitWidth);
    QCOMPARE(picture->pos(), home);
  }

  // Two words of each length can never fill a board: Escape ends the try and
  // the shown puzzle stays. The bound on tries is the generator's test.
  void createIsOffWhileItRunsAndEscapeEndsAHopelessOne() {
    Game game;
    game.configure(3);
    QVERIFY(game.start());
    game.files.paths.enqueue(
        game.folder.writeCollection("tiny.txt", {"CAT", "DOG", "BIRD", "FISH", "HORSE", "SHEEP", "RABBIT", "DONKEY"}));
    game.click("cmdloaddict");
    QCOMPARE(game.find<QLabel>("lbldict")->text(), QString("tiny.txt"));
    // What the window shows while the puzzle is made, recorded and checked afterwards.
    bool createWasOff = false;
    bool cancelWasShown = false;
    QTimer::singleShot(0, game.window.get(), [&] {
      createWasOff = !game.find<BoxControl>("cmdcreate")->isEnabled() && !game.find<QAction>("mnucreate")->isEnabled();
      cancelWasShown = game.find<BoxControl>("cmdcancel")->isVisible();
      QTest::keyClick(game.window->boardPicture(), Qt::Key_Escape);
    });
    game.click("cmdcreate");
    QVERIFY(createWasOff);
    QVERIFY(cancelWasShown);
    QCOMPARE(game.status(), QString("Puzzle creation cancelled"));
    QVERIFY(game.find<BoxControl>("cmdcreate")->isEnabled());
    QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 3 of 10"));
  }

  void saveReportsInThePlainBoxAndExitClosesOnlyWhenConfirmed() {
    Game game;
    game.configure(4);
    QVERIFY(game.start());
    game.files.paths.enqueue(game.folder.path("saved"));
    game.trigger("mnusave");
    QCOMPARE(game.prompter.notices.last(),
             "Puzzle appended to file:\n" + game.folder.path("saved.txt") + "\n 1 puzzles");

    game.prompter.answers.enqueue(kMsgNo);
    game.trigger("cmdexitx");
    QVERIFY(game.window->isVisible());
    game.prompter.answers.enqueue(kMsgYes);
    game.trigger("cmdexitx");
    QVERIFY(!game.window->isVisible());
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestMainWindow)
#include "tst_mainwindow.moc"
