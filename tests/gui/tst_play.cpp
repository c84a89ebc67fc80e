// The game window as a player meets it: where the keys go after the pointer
// or a menu moved away, how Verify looks after a box, and the comforts of
// play, each driven through the window's own controls. Their rules are the
// session's tests.
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QTimer>

#include "gui/app/screenshot.h"
#include "gui/play/cluepicture.h"
#include "gui/ui/form2.h"
#include "render/boardpainter.h"
#include "support/gamewindow.h"

namespace combwise {

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

// A window on ten puzzles of `size`, showing puzzle `number`.
struct Game : testing::GameWindow<ModalPrompter> {
  explicit Game(int number = 1, const QString& size = "7") { configure(number, size); }
};

}  // namespace

class TestPlay : public QObject {
  Q_OBJECT

 private slots:
  void keysAfterThePointerLeftTheBoardSidewaysWriteNothing() {
    Game game;
    QVERIFY(game.start());
    game.select(3, 6);
    game.press('a');
    QCOMPARE(game.entry(3, 6), QString("A"));
    QTest::mouseMove(game.find<QWidget>("picouter"), QPoint(30, 30));
    QCOMPARE(game.puzzle().SelRow, 0);
    QVERIFY(!game.window->boardPicture()->marker()->isVisible());
    game.press('b');
    QCOMPARE(game.entry(3, 6), QString("A"));
  }

  void keysAfterAMenuClosedWithEscapeGoToTheBoard() {
    Game game;
    QVERIFY(game.start());
    game.select(3, 6);
    game.press('p', Qt::AltModifier);
    QTRY_VERIFY(game.window->puzzleMenu()->isVisible());
    game.press(Qt::Key_Escape);
    QTRY_VERIFY(!game.window->puzzleMenu()->isVisible());
    game.press('p');
    game.press('t');
    QVERIFY(!game.window->puzzleMenu()->isVisible());
    QCOMPARE(game.entry(3, 6), QString("T"));
    QVERIFY(game.files.requests.isEmpty());
  }

  // The board's keys and the Undo button reach the session: letters, Tab
  // with the pointer away, undo and redo, clearing the player's letters, and
  // the reset question.
  void keysOnTheBoardTypeMoveAndUndo() {
    Game game;
    QVERIFY(game.start());
    BoardPicture* picture = game.window->boardPicture();
    game.select(3, 6);
    game.press('k');
    game.press('j');
    game.click("cmdundo");
    QCOMPARE(game.entry(3, 6), QString("K"));

    QTest::mouseMove(game.find<QWidget>("picouter"), QPoint(30, 30));
    game.press(Qt::Key_Tab);
    QCOMPARE(game.status(), QString("Hex = 1"));
    const GridPos cell{game.puzzle().SelRow, game.puzzle().SelCol};
    QVERIFY(picture->marker()->isVisible());
    game.press('q');
    QCOMPARE(game.entry(cell.row, cell.col), QString("Q"));

    game.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(game.entry(cell.row, cell.col), QString());
    game.press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(game.entry(cell.row, cell.col), QString("Q"));

    game.trigger("mnuclearletters");
    QCOMPARE(game.entry(3, 6), QString());

    // A right click on Undo asks through the window's message box.
    game.prompter.answers.enqueue(kMsgNo);
    game.click("cmdundo", Qt::RightButton);
    QCOMPARE(game.prompter.messages.last().prompt, QString("Reset puzzle?"));
  }

  // The timer pauses while the window is minimised; Verify is drawn up again
  // after the "All done !" box.
  void theTimerPausesWhileMinimisedAndVerifyEndsASolvedPuzzle() {
    Game game(2);
    QVERIFY(game.start());
    QVERIFY(game.find<QLabel>("lbltimer")->text().startsWith("0:0"));
    QVERIFY(game.window->session().timerRunning());
    game.window->showMinimized();
    QTRY_VERIFY(!game.window->session().timerRunning());
    game.window->showNormal();
    game.window->activateWindow();
    QTRY_VERIFY(game.window->session().timerRunning());

    revealHexagons(*game.window, game.window->board().hexCount());
    auto* verify = game.find<BoxControl>("cmdverify");
    QTest::mousePress(verify, Qt::LeftButton);
    QCOMPARE(game.prompter.messages.last().prompt, QString("All done !"));
    QVERIFY(!verify->isDown());
    QTest::mouseRelease(verify, Qt::LeftButton);  // the test's mouse lets go too
    QVERIFY(!game.window->session().timerRunning());
  }

  void theSelectedHexagonAndItsCluesAreHighlightedAndShown() {
    Game game(1, "22");
    QVERIFY(game.start());
    CluePicture* clues = game.window->cluePicture();
    auto* viewport = game.find<QWidget>("picouter");
    QVERIFY(clues->height() > viewport->height());

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
    QCOMPARE(game.window->board().HexAt(game.puzzle().SelRow, game.puzzle().SelCol), 3);
    QCOMPARE(clues->highlightedHexagon(), 3);
  }

  void lettersComeBackAfterTheWindowIsClosedByItsFrame() {
    Game game;
    QVERIFY(game.start());
    game.select(3, 6);
    game.press('w');
    game.window->close();
    game.window.reset();
    QVERIFY(game.start());
    QCOMPARE(game.entry(3, 6), QString("W"));
  }

  // The rules of the two play options are the session's; the window hands
  // each tick to its own option.
  void thePlayOptionsTicksReachTheSession() {
    Game game;
    QVERIFY(game.start());
    game.trigger("mnuoptions");
    auto* options = game.window->findChild<Form2*>();
    QVERIFY(options);
    auto* clean = options->findChild<QCheckBox*>("chkCleanBoard");
    clean->click();
    QTest::mouseClick(options->findChild<BoxControl*>("cmdApply"), Qt::LeftButton);
    game.select(3, 6);
    game.press('r');
    game.trigger("mnunext");
    QCOMPARE(game.entry(3, 6), QString());
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestPlay)
#include "tst_play.moc"
