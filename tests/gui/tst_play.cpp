// The game window as a player meets it: where the keys go after the pointer
// or a menu moved away, how the buttons look after a box, the File menu's
// separators, and the comforts of play (kept letters, the timer and solved
// record, linked board and clues, keyboard moves, redo, clearing letters and
// the two play options), each driven through the window's own controls.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QtTest>
#include <memory>

#include "core/files/extraoptions.h"
#include "core/files/progressfile.h"
#include "gui/app/mainwindow.h"
#include "gui/app/screenshot.h"
#include "gui/play/boardpicture.h"
#include "gui/play/cluepicture.h"
#include "gui/ui/boxcontrol.h"
#include "gui/ui/form2.h"
#include "render/boardpainter.h"
#include "support/fakeprompter.h"
#include "support/gamefolder.h"

namespace combwise {

using testing::GameFolder;

namespace {

// Answers as the real box does: a modal window that takes the mouse while
// it shows, closed at once.
class ModalPrompter : public FakePrompter {
 public:
  int ShowMessage(const QString& prompt, const QString& style) override {
    QDialog box;
    QTimer::singleShot(0, &box, &QDialog::accept);
    box.exec();
    return FakePrompter::ShowMessage(prompt, style);
  }
};

}  // namespace

class TestPlay : public QObject {
  Q_OBJECT

  struct Game {
    GameFolder folder;
    ModalPrompter prompter;
    FakeFileChooser files;
    std::unique_ptr<MainWindow> window;

    explicit Game(int number = 1, const QString& size = "7") {
      folder.writeConfig(folder.writeCollection("ten.txt", GameFolder::readymade(size).mid(0, 10)), number);
    }
    bool start() {
      window = std::make_unique<MainWindow>(folder.folder(), WindowServices{&prompter, &files});
      window->show();
      if (!QTest::qWaitForWindowActive(window.get())) return false;
      return QTest::qWaitFor([this] { return window->startedUp(); });
    }
    template <typename T>
    T* find(const QString& name) const {
      return window->findChild<T*>(name);
    }
    QAction* action(const QString& name) const { return find<QAction>(name); }
    const PuzzleState& puzzle() const { return window->puzzle(); }
    QString entry(int row, int col) const { return QString::fromStdString(puzzle().Entries.at(row, col)); }
    QPoint cellPoint(int row, int col) const {
      const BoardLayout& l = window->layout();
      return {qRound((l.cellX(row, col) + l.CellWidth / 2.0) / l.TwipsPerPixelX),
              qRound((l.cellY(row, col) + l.CellHeight / 2.0) / l.TwipsPerPixelY)};
    }
    void select(int row, int col) const { QTest::mouseMove(window->boardPicture(), cellPoint(row, col)); }
    // A key as the player types it: to whichever widget has the keyboard.
    void type(char key, Qt::KeyboardModifiers modifiers = {}) const {
      QTest::keyClick(window->windowHandle(), key, modifiers);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
      QTest::keyClick(window->windowHandle(), key, modifiers);
    }
  };

 private slots:
  void keysAfterThePointerLeftTheBoardSidewaysWriteNothing() {
    Game game;
    QVERIFY(game.start());
    game.select(3, 6);
    game.type('a');
    QCOMPARE(game.entry(3, 6), QString("A"));
    QTest::mouseMove(game.find<QWidget>("picouter"), QPoint(30, 30));
    QCOMPARE(game.puzzle().SelRow, 0);
    QVERIFY(!game.window->boardPicture()->marker()->isVisible());
    game.type('b');
    QCOMPARE(game.entry(3, 6), QString("A"));
  }

  void keysAfterAMenuClosedWithEscapeGoToTheBoard() {
    Game game;
    QVERIFY(game.start());
    game.select(3, 6);
    game.type('p', Qt::AltModifier);
    QTRY_VERIFY(game.window->puzzleMenu()->isVisible());
    game.press(Qt::Key_Escape);
    QTRY_VERIFY(!game.window->puzzleMenu()->isVisible());
    game.type('p');
    game.type('t');
    QVERIFY(!game.window->puzzleMenu()->isVisible());
    QCOMPARE(game.entry(3, 6), QString("T"));
    QVERIFY(game.files.requests.isEmpty());
  }

  void verifyIsDrawnUpAfterTheAllDoneBox() {
    Game game(2);
    QVERIFY(game.start());
    revealHexagons(*game.window, game.window->board().hexCount());
    BoxControl* verify = game.find<BoxControl>("cmdverify");
    QTest::mousePress(verify, Qt::LeftButton);
    QCOMPARE(game.prompter.messages.last().prompt, QString("All done !"));
    QVERIFY(!verify->isDown());
    QTest::mouseRelease(verify, Qt::LeftButton);  // the test's mouse lets go too
  }

  void fileMenuShowsOneSeparatorBeforeHelpOnlyWithRecentFiles() {
    Game game;
    QVERIFY(game.start());
    auto separatorsBeforeHelp = [&] {
      // Visible separators between the print entry and Help.
      int count = 0;
      bool counting = false;
      for (QAction* a : game.window->fileMenu()->actions()) {
        if (a->objectName() == "mnuprint") counting = true;
        if (a->objectName() == "mnuhelp") break;
        if (counting && a->isSeparator() && a->isVisible()) ++count;
      }
      return count;
    };
    QCOMPARE(separatorsBeforeHelp(), 0);
    game.files.paths.enqueue(game.folder.path("ten.txt"));
    game.action("mnuloadpuzfile")->trigger();
    QVERIFY(game.action("mnuoldfiles0")->isVisible());
    QCOMPARE(separatorsBeforeHelp(), 1);
  }

  void tabMovesBetweenHexagonsWithThePointerAwayAndTheUndoKeysWalkBothWays() {
    Game game;
    QVERIFY(game.start());
    QTest::mouseMove(game.find<QWidget>("picouter"), QPoint(30, 30));
    game.press(Qt::Key_Tab);
    QCOMPARE(game.window->statusText(), QString("Hex = 1"));
    const GridPos cell{game.puzzle().SelRow, game.puzzle().SelCol};
    QVERIFY(cell.row != 0);
    QVERIFY(game.window->boardPicture()->marker()->isVisible());
    game.type('q');
    QCOMPARE(game.entry(cell.row, cell.col), QString("Q"));
    game.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(game.window->statusText(), QString("Hex = 7"));

    game.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(game.entry(cell.row, cell.col), QString());
    game.press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(game.entry(cell.row, cell.col), QString("Q"));
    game.press(Qt::Key_Z, Qt::ControlModifier);
    game.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(game.entry(cell.row, cell.col), QString("Q"));

    game.action("mnuclearletters")->trigger();
    QCOMPARE(game.entry(cell.row, cell.col), QString());
    game.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(game.entry(cell.row, cell.col), QString("Q"));
  }

  void theSelectedHexagonAndItsCluesAreHighlightedAndShown() {
    Game game(1, "22");
    QVERIFY(game.start());
    CluePicture* clues = game.window->cluePicture();
    auto* viewport = game.find<QWidget>("picouter");
    QVERIFY(clues->height() > viewport->height());
    QWheelEvent wheel(QPointF(50, 50), clues->mapToGlobal(QPointF(50, 50)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(clues, &wheel);
    QVERIFY(clues->y() < 0);

    game.select(3, 6);
    const int hex = game.window->board().HexAt(3, 6);
    QCOMPARE(game.window->boardPicture()->view().highlightHex, hex);
    QCOMPARE(clues->highlightedHexagon(), hex);

    // The last hexagon's clues come into view: from no selection, Shift+Tab
    // goes to hexagon 1 and then round to the last.
    QTest::mouseMove(viewport, QPoint(30, 30));
    QCOMPARE(clues->highlightedHexagon(), 0);
    game.press(Qt::Key_Backtab, Qt::ShiftModifier);
    game.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(clues->highlightedHexagon(), 22);
    const double perPixel = Twips::of(*clues).perPixelY;
    const HexagonClues shown = cluesOfHexagon(clues->panel(), 22);
    QVERIFY(shown.inside && shown.outside);
    for (const ClueSpan& span : {*shown.inside, *shown.outside}) {
      QVERIFY(clues->y() + span.top / perPixel >= 0);
      QVERIFY(clues->y() + span.bottom / perPixel <= viewport->height());
    }

    // A click on a clue (no drag) selects the first open cell of its hexagon.
    const ClueSpan third = *cluesOfHexagon(clues->panel(), 3).inside;
    clues->move(0, 0);
    QTest::mouseClick(clues, Qt::LeftButton, {}, QPoint(40, qRound((third.top + third.bottom) / 2 / perPixel)));
    QCOMPARE(game.window->statusText(), QString("Hex = 3"));
    QCOMPARE(game.window->board().HexAt(game.puzzle().SelRow, game.puzzle().SelCol), 3);
    QVERIFY(game.entry(game.puzzle().SelRow, game.puzzle().SelCol).isEmpty());
    QCOMPARE(clues->highlightedHexagon(), 3);
  }

  void theTimerPausesWhileMinimisedAndASolvedPuzzleShowsItsMark() {
    Game game(2);
    QVERIFY(game.start());
    auto* timer = game.find<QLabel>("lbltimer");
    QVERIFY(timer->text().startsWith("0:0"));
    QVERIFY(game.window->session().timerRunning());
    game.window->showMinimized();
    QTRY_VERIFY(!game.window->session().timerRunning());
    game.window->showNormal();
    game.window->activateWindow();
    QTRY_VERIFY(game.window->session().timerRunning());
    revealHexagons(*game.window, game.window->board().hexCount());
    BoxControl* verify = game.find<BoxControl>("cmdverify");
    QTest::mousePress(verify, Qt::LeftButton);
    QTest::mouseRelease(verify, Qt::LeftButton);
    const QString counter = game.find<QLabel>("lblcounter")->text();
    QVERIFY2(counter.startsWith(QString::fromUtf8("p# 2 of 10  \u2713 0:0")), qPrintable(counter));
    QVERIFY(!game.window->session().timerRunning());
    game.action("mnunext")->trigger();
    QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 3 of 10"));
  }

  void lettersComeBackAfterTheWindowIsClosedByItsFrame() {
    Game game;
    QVERIFY(game.start());
    game.select(3, 6);
    game.type('w');
    game.window->close();
    game.window.reset();
    QVERIFY(game.start());
    QCOMPARE(game.entry(3, 6), QString("W"));
  }

  void playOptionsAreKeptInTheirOwnFileAndACleanBoardStartsEachPuzzle() {
    Game game;
    QVERIFY(game.start());
    QFile config(game.folder.path("combwise.cfg"));
    QVERIFY(config.open(QIODevice::ReadOnly));
    const QByteArray settings = config.readAll();
    config.close();
    game.action("mnuoptions")->trigger();
    auto* options = game.window->findChild<Form2*>();
    QVERIFY(options);
    auto* clean = options->findChild<QCheckBox*>("chkCleanBoard");
    auto* distinct = options->findChild<QCheckBox*>("chkNoWordTwice");
    QVERIFY(!clean->isChecked() && !distinct->isChecked());
    clean->click();
    distinct->click();
    QTest::mouseClick(options->findChild<BoxControl*>("cmdApply"), Qt::LeftButton);
    const ExtraOptions kept = readExtraOptions(extraOptionsPath(game.folder.folder())).options;
    QVERIFY(kept.cleanBoardEachPuzzle && kept.noWordTwice);
    QVERIFY(config.open(QIODevice::ReadOnly));
    QCOMPARE(config.readAll(), settings);

    game.select(3, 6);
    game.type('r');
    game.action("mnunext")->trigger();
    QCOMPARE(game.entry(3, 6), QString());
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestPlay)
#include "tst_play.moc"
