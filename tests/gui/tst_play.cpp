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

    explicit Game(int number = 1) {
      folder.writeConfig(folder.writeCollection("ten.txt", GameFolder::readymade("7").mid(0, 10)), number);
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
};

}  // namespace combwise

QTEST_MAIN(combwise::TestPlay)
#include "tst_play.moc"
