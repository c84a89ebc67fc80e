// The game window driven through its controls: what it shows of the
// session's state (labels, menu, marker, marks, solution lists, zoom), the
// mouse buttons and keys it hands on, and its questions and boxes. The
// command rules themselves are tested on the session.
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QtTest>
#include <memory>

#include "gui/app/mainwindow.h"
#include "gui/app/screenshot.h"
#include "gui/play/boardpicture.h"
#include "gui/ui/boxcontrol.h"
#include "support/fakeprompter.h"
#include "support/gamefolder.h"

namespace combwise {

using testing::GameFolder;

class TestMainWindow : public QObject {
  Q_OBJECT

  struct Game {
    GameFolder folder;
    FakePrompter prompter;
    FakeFileChooser files;
    std::unique_ptr<MainWindow> window;

    bool start() {
      window = std::make_unique<MainWindow>(folder.folder(), WindowServices{&prompter, &files});
      window->show();
      if (!QTest::qWaitForWindowExposed(window.get())) return false;
      return QTest::qWaitFor([this] { return window->startedUp(); });
    }
    template <typename T>
    T* find(const QString& name) const {
      return window->findChild<T*>(name);
    }
    BoxControl* button(const QString& name) const { return find<BoxControl>(name); }
    void click(const QString& name, Qt::MouseButton mouse = Qt::LeftButton) const {
      QTest::mouseClick(button(name), mouse);
    }
    QString status() const { return window->statusText(); }
    // The centre of a grid cell on the board picture.
    QPoint cellPoint(int row, int col) const {
      const BoardLayout& l = window->layout();
      return {qRound((l.cellX(row, col) + l.CellWidth / 2.0) / l.TwipsPerPixelX),
              qRound((l.cellY(row, col) + l.CellHeight / 2.0) / l.TwipsPerPixelY)};
    }
    void select(int row, int col) const { QTest::mouseMove(window->boardPicture(), cellPoint(row, col)); }
  };

  static QString tenPuzzles(const Game& game) {
    return game.folder.writeCollection("ten.txt", GameFolder::readymade("7").mid(0, 10));
  }

 private slots:
  void startShowsTheConfiguredPuzzleOnTheLabels() {
    {
      Game game;
      QVERIFY(game.start());
      QCOMPARE(game.status(), QString());
      QCOMPARE(game.find<QLabel>("lbldict")->text(), QString("english3.txt"));
      QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString());
    }
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 7);
    QVERIFY(game.start());
    QCOMPARE(game.status(), QString("Ready ..."));
    QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 7 of 10"));
    QCOMPARE(game.find<QLabel>("lblsize")->text(), QString("7"));
    QCOMPARE(game.find<QLabel>("lblfile")->text(), QString("ten.txt"));
  }

  void arrowButtonsPassTheirMouseButtonAndTheCounterFollows() {
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 1);
    QVERIFY(game.start());
    game.click("cmdarrow0");
    QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 10 of 10"));
    QCOMPARE(game.status(), QString("Puzzle read"));
    game.click("cmdarrow0", Qt::RightButton);
    QCOMPARE(game.window->puzzle().PuzzleNumber, 1);
    game.click("cmdarrow2", Qt::RightButton);
    QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 10 of 10"));
    game.window->findChild<QAction*>("mnunext")->trigger();
    QCOMPARE(game.window->puzzle().PuzzleNumber, 1);

    auto* size = game.find<QLabel>("lblsize");
    QTest::mouseClick(size, Qt::LeftButton);
    QCOMPARE(size->text(), QString("10"));
  }

  void recentFilesMenuShowsTheSessionsList() {
    Game game;
    QVERIFY(game.start());
    const QStringList lines = GameFolder::readymade("7");
    const QString first = game.folder.writeCollection("c0.txt", lines.mid(0, 2));
    const QString second = game.folder.writeCollection("c1.txt", lines.mid(2, 2));
    auto load = [&](const QString& path) {
      game.files.paths.enqueue(path);
      game.window->findChild<QAction*>("mnuloadpuzfile")->trigger();
    };
    auto entry = [&](int i) { return game.window->findChild<QAction*>(QString("mnuoldfiles%1").arg(i)); };
    QVERIFY(!entry(5)->isVisible());
    load(first);
    QCOMPARE(game.files.requests.first().title, QString("Select a saved game file to load"));
    QCOMPARE(game.files.requests.first().mode, QString("OPEN"));
    load(second);
    QCOMPARE(entry(0)->text(), second);
    QCOMPARE(entry(1)->text(), first);
    QVERIFY(entry(1)->isVisible() && !entry(2)->isVisible() && entry(5)->isVisible());
    QCOMPARE(game.find<QLabel>("lblfile")->text(), QString("c1.txt"));

    entry(1)->trigger();
    QCOMPARE(QString::fromStdString(game.window->puzzle().CollectionPath), first);
  }

  void keysOnTheBoardTypeUndoAndMoveTheMarker() {
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 1);
    QVERIFY(game.start());
    const PuzzleState& puzzle = game.window->puzzle();
    BoardPicture* picture = game.window->boardPicture();
    game.select(3, 6);
    QCOMPARE(game.status(), QString("Hex = 4"));
    QVERIFY(picture->marker()->isVisible());
    QTest::keyClick(picture, 'k');
    QCOMPARE(QString::fromStdString(puzzle.Entries.at(3, 6)), QString("K"));
    QTest::keyClick(picture, Qt::Key_Escape);
    QVERIFY(puzzle.Entries.at(3, 6).empty());
    game.click("cmdundo");
    QCOMPARE(QString::fromStdString(puzzle.Entries.at(3, 6)), QString("K"));

    QTest::keyClick(picture, Qt::Key_Right);
    QCOMPARE(puzzle.SelCol, 7);
    const QPoint marker = picture->marker()->pos();
    QTest::keyClick(picture, Qt::Key_Up);  // no hexagon above row 2 here: the marker stays
    game.select(1, 5);
    QVERIFY(picture->marker()->pos() != marker);
    game.select(0, 0);  // off every hexagon: no marker
    QVERIFY(!picture->marker()->isVisible());

    // A right click asks through the window's message box.
    game.prompter.answers.enqueue(kMsgNo);
    game.click("cmdundo", Qt::RightButton);
    QCOMPARE(game.prompter.messages.last().prompt, QString("Reset puzzle?"));
    QCOMPARE(game.prompter.messages.last().style, QString("vbquestion+vbyesno"));
  }

  void verifyCrossesUnfinishedHexagonsWhileHeld() {
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 2);
    QVERIFY(game.start());
    BoxControl* verify = game.button("cmdverify");
    QTest::mousePress(verify, Qt::LeftButton);
    QCOMPARE(game.status(), QString("Not done yet"));
    QCOMPARE(game.window->boardPicture()->marks().size(), std::size_t{14});
    QTest::mouseRelease(verify, Qt::LeftButton);
    QVERIFY(game.window->boardPicture()->marks().empty());
  }

  void solutionShowsWhileHeld() {
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 3);
    QVERIFY(game.start());
    BoxControl* solution = game.button("cmdshowsol");
    QTest::mousePress(solution, Qt::LeftButton);
    QCOMPARE(game.window->boardPicture()->view().letters, LetterMode::Solution);
    QCOMPARE(game.find<QGroupBox>("Frame1")->title(), QString("Solution"));
    QVERIFY(game.find<QListWidget>("List2a")->isVisible());
    QCOMPARE(game.find<QListWidget>("List2a")->item(0)->text(), QString(" WORDS INSIDE:"));
    QTest::mouseRelease(solution, Qt::LeftButton);
    QCOMPARE(game.window->boardPicture()->view().letters, LetterMode::Play);
    QCOMPARE(game.find<QGroupBox>("Frame1")->title(), QString("Clues"));
    QVERIFY(!game.find<QListWidget>("List2a")->isVisible());
  }

  void zoomStepsAndResetBringsTheBoardBack() {
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 1);
    QVERIFY(game.start());
    const BoardLayout& layout = game.window->layout();
    const int fitWidth = layout.CellWidth;
    BoardPicture* picture = game.window->boardPicture();
    const QPoint home = picture->pos();
    game.click("cmdzoom1");
    QCOMPARE(layout.CellWidth, qRound(fitWidth * 1.1));
    QCOMPARE(picture->view().font.pointSizeF(), 11.5);
    QCOMPARE(picture->width(), qRound(layout.pictureWidth / layout.TwipsPerPixelX));
    QTest::mousePress(picture, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(picture, QPoint(45, 35));
    QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(45, 35));
    QCOMPARE(picture->pos(), home + QPoint(40, 30));
    game.click("cmdzoom2");
    QCOMPARE(layout.CellWidth, fitWidth);
    QCOMPARE(picture->view().font.pointSizeF(), 10.0);
    QCOMPARE(picture->pos(), home);
  }

  void createMakesAPuzzleOfTheChosenSizeAndEscapeStopsAHopelessOne() {
    Game game;
    QVERIFY(game.start());
    QTest::mouseClick(game.find<QLabel>("lblsize"), Qt::LeftButton);
    game.click("cmdcreate");
    QCOMPARE(game.status(), QString("Puzzle created ..."));
    QCOMPARE(game.window->puzzle().PuzzleSize, 10);
    QCOMPARE(game.window->puzzle().CollectionPath, std::string("tempcombwisepuzzle.txt"));
    QVERIFY(invariantBreaches(game.window->board(), game.window->puzzle()).empty());

    // Two words of each length can never fill a board: Escape ends it, or
    // the bound on tries does with a message.
    QFile words(game.folder.path("tiny.txt"));
    QVERIFY(words.open(QIODevice::WriteOnly));
    words.write("CAT\r\nDOG\r\nBIRD\r\nFISH\r\nHORSE\r\nSHEEP\r\nRABBIT\r\nDONKEY\r\n");
    words.close();
    game.files.paths.enqueue(words.fileName());
    game.click("cmdloaddict");
    QCOMPARE(game.find<QLabel>("lbldict")->text(), QString("tiny.txt"));
    // What the window shows while the puzzle is made, recorded and checked afterwards.
    bool createWasOff = false;
    bool cancelWasShown = false;
    QTimer::singleShot(0, game.window.get(), [&] {
      createWasOff =
          !game.button("cmdcreate")->isEnabled() && !game.window->findChild<QAction*>("mnucreate")->isEnabled();
      cancelWasShown = game.button("cmdcancel")->isVisible();
      QTest::keyClick(game.window->boardPicture(), Qt::Key_Escape);
    });
    game.click("cmdcreate");
    QVERIFY(createWasOff);
    QVERIFY(cancelWasShown);
    QCOMPARE(game.status(), QString("Puzzle creation cancelled"));
    QVERIFY(game.button("cmdcreate")->isEnabled());
    QVERIFY(!game.button("cmdcancel")->isVisible());
    QCOMPARE(game.window->puzzle().PuzzleSize, 10);  // the last puzzle is still there
    game.click("cmdcreate");
    QVERIFY(game.prompter.messages.last().prompt.contains("cannot make puzzles of size 10"));
    QVERIFY(game.button("cmdcreate")->isEnabled());
  }

  void saveReportsInThePlainBoxAndExitClosesOnlyWhenConfirmed() {
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 4);
    QVERIFY(game.start());
    game.files.paths.enqueue(game.folder.path("saved"));
    game.window->findChild<QAction*>("mnusave")->trigger();
    QCOMPARE(game.prompter.notices.last(),
             "Puzzle appended to file:\n" + game.folder.path("saved.txt") + "\n 1 puzzles");

    game.prompter.answers.enqueue(kMsgNo);
    game.window->findChild<QAction*>("cmdexitx")->trigger();
    QVERIFY(game.window->isVisible());
    game.prompter.answers.enqueue(kMsgYes);
    game.window->findChild<QAction*>("cmdexitx")->trigger();
    QVERIFY(!game.window->isVisible());
  }

  void outlineCornersOfHexagonOneOfSize22LandOnTheirPixels() {
    Board board;
    PuzzleState state;
    setUpPuzzle(board, state, 22);
    const BoardLayout layout = LayOutBoard({22, board.rows(), board.cols(), 225, 375, 15, 15});
    BoardPicture picture(board, state, layout);
    BoardView view;
    view.colours.outline = Qt::black;
    view.colours.fill = Qt::white;
    picture.setView(view);
    QImage image(layout.pictureWidth / 15, layout.pictureHeight / 15, QImage::Format_RGB32);
    image.setDotsPerMeterX(3780);  // 96 dots per inch: 15 twips a pixel
    image.setDotsPerMeterY(3780);
    image.fill(Qt::white);
    QPainter painter(&image);
    picture.paintOn(painter);
    painter.end();
    auto darkest = [&](int x, int y) {
      int value = 255;
      for (int dx = -1; dx <= 0; ++dx)
        for (int dy = -1; dy <= 0; ++dy) value = qMin(value, qGray(image.pixel(x + dx, y + dy)));
      return value;
    };
    for (const QPoint corner :
         {QPoint(74, 13), QPoint(59, 38), QPoint(74, 63), QPoint(104, 63), QPoint(119, 38), QPoint(104, 13)})
      QVERIFY2(darkest(corner.x(), corner.y()) < 100,
               qPrintable(QString("corner %1,%2").arg(corner.x()).arg(corner.y())));
    QCOMPARE(qGray(image.pixel(80, 30)), 255);  // inside, away from the lines: the fill
    QCOMPARE(qGray(image.pixel(50, 5)), 255);   // outside every hexagon
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestMainWindow)
#include "tst_mainwindow.moc"
