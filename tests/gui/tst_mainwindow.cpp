// The game window driven through its controls: start-up, browsing, recent
// files, typing and undo, verification, the solution, zoom, creating a
// puzzle with its way out, saving and exit.
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QtTest>
#include <memory>

#include "core/play/entry.h"
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
  void startsEmptyWithoutConfigurationOrReadymadePuzzles() {
    Game game;
    QVERIFY(game.start());
    QCOMPARE(game.window->puzzle().PuzzleSize, -1);
    QVERIFY(game.window->puzzle().CollectionPath.empty());
    QVERIFY(game.window->createEnabled());
    QCOMPARE(game.status(), QString());
    QCOMPARE(game.find<QLabel>("lbldict")->text(), QString("english3.txt"));
  }

  void startsAtTheConfiguredPuzzleOrEmptyBeyondTheCount() {
    {
      Game game;
      game.folder.writeConfig(tenPuzzles(game), 7);
      QVERIFY(game.start());
      QCOMPARE(game.window->puzzle().PuzzleNumber, 7);
      QCOMPARE(game.status(), QString("Ready ..."));
      QCOMPARE(game.find<QLabel>("lblcounter")->text(), QString("p# 7 of 10"));
      QCOMPARE(game.find<QLabel>("lblsize")->text(), QString("7"));
      QCOMPARE(game.find<QLabel>("lblfile")->text(), QString("ten.txt"));
    }
    {
      Game game;
      game.folder.writeConfig(tenPuzzles(game), 12);
      QVERIFY(game.start());
      QCOMPARE(game.window->puzzle().PuzzleSize, -1);
      QVERIFY(game.window->puzzle().CollectionPath.empty());
      QCOMPARE(game.status(), QString());
    }
    {
      Game game;  // the configured collection is gone: the readymade puzzles open at 1
      game.folder.writeCollection("puzzles.txt", GameFolder::readymade("22").mid(0, 3));
      game.folder.writeConfig(game.folder.path("gone.txt"), 3);
      QVERIFY(game.start());
      QCOMPARE(game.window->puzzle().PuzzleSize, 22);
      QCOMPARE(game.window->puzzle().PuzzleNumber, 1);
    }
  }

  void arrowsWrapAndTheRightButtonJumpsToTheEnds() {
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 1);
    QVERIFY(game.start());
    const PuzzleState& puzzle = game.window->puzzle();
    game.click("cmdarrow0");
    QCOMPARE(puzzle.PuzzleNumber, 10);
    QCOMPARE(game.status(), QString("Puzzle read"));
    game.click("cmdarrow2");
    QCOMPARE(puzzle.PuzzleNumber, 1);
    game.click("cmdarrow2", Qt::RightButton);
    QCOMPARE(puzzle.PuzzleNumber, 10);
    game.click("cmdarrow0", Qt::RightButton);
    QCOMPARE(puzzle.PuzzleNumber, 1);
    game.click("cmdarrow1");
    QVERIFY(puzzle.PuzzleNumber >= 1 && puzzle.PuzzleNumber <= 10);

    // A collection of one puzzle: the arrows do nothing, not even a reload.
    game.files.paths.enqueue(game.folder.writeCollection("one.txt", GameFolder::readymade("10").mid(0, 1)));
    game.click("cmdload");
    QCOMPARE(puzzle.PuzzleSize, 10);
    game.window->setStatus("unchanged");
    game.click("cmdarrow2");
    QCOMPARE(game.status(), QString("unchanged"));
    QCOMPARE(puzzle.PuzzleNumber, 1);
  }

  void recentFilesKeepTheirOrderAndDropTheOldest() {
    Game game;
    QVERIFY(game.start());
    const QStringList lines = GameFolder::readymade("7");
    QStringList paths;
    for (int i = 0; i < 6; ++i) paths << game.folder.writeCollection(QString("c%1.txt").arg(i), lines.mid(i, 2));
    auto load = [&](const QString& path) {
      game.files.paths.enqueue(path);
      game.window->findChild<QAction*>("mnuloadpuzfile")->trigger();
    };
    auto captions = [&] {
      QStringList shown;
      for (int i = 0; i < 5; ++i) {
        auto* entry = game.window->findChild<QAction*>(QString("mnuoldfiles%1").arg(i));
        if (entry->isVisible()) shown << entry->text();
      }
      return shown;
    };
    QVERIFY(!game.window->findChild<QAction*>("mnuoldfiles5")->isVisible());
    load(paths[0]);
    load(paths[1]);
    load(paths[0]);  // already listed: the order stays
    QCOMPARE(captions(), (QStringList{paths[1], paths[0]}));
    QCOMPARE(game.files.requests.first().title, QString("Select a saved game file to load"));
    for (int i = 2; i < 6; ++i) load(paths[i]);
    QCOMPARE(captions(), (QStringList{paths[5], paths[4], paths[3], paths[2], paths[1]}));
    QVERIFY(game.window->findChild<QAction*>("mnuoldfiles5")->isVisible());

    game.window->findChild<QAction*>("mnuoldfiles4")->trigger();
    QCOMPARE(QString::fromStdString(game.window->puzzle().CollectionPath), paths[1]);
    QFile::remove(paths[2]);
    game.window->findChild<QAction*>("mnuoldfiles3")->trigger();
    QCOMPARE(game.prompter.messages.last().prompt, "File does not exist:\n" + paths[2]);
    QCOMPARE(game.prompter.messages.last().style, QString("vbok+vbcritical"));

    // A collection that cannot be read leaves the shown puzzle as it was.
    load(game.folder.writeCollection("bad.txt", {"7;ABC;NOCOMMA;"}));
    QCOMPARE(game.status(), QString("Error loading puzzle file"));
    QCOMPARE(QString::fromStdString(game.window->puzzle().CollectionPath), paths[1]);
  }

  void typingUndoAndArrowMoves() {
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
    QCOMPARE(QString::fromStdString(puzzle.UndoList.front()), QString(" 3, 6,"));
    QTest::keyClick(picture, '1');  // swallowed, nothing changes
    QCOMPARE(puzzle.UndoList.size(), std::size_t{1});
    QTest::keyClick(picture, '.');
    QVERIFY(puzzle.Entries.at(3, 6).empty());
    game.click("cmdundo");
    QCOMPARE(QString::fromStdString(puzzle.Entries.at(3, 6)), QString("K"));
    QTest::keyClick(picture, Qt::Key_Escape);
    QVERIFY(puzzle.Entries.at(3, 6).empty());

    QTest::keyClick(picture, Qt::Key_Right);
    QCOMPARE(puzzle.SelCol, 7);
    game.select(1, 5);
    QTest::keyClick(picture, Qt::Key_Right);  // (1,6) is a given letter: the marker stays
    QCOMPARE(puzzle.SelCol, 5);
    QTest::keyClick(picture, Qt::Key_Up);  // no hexagon above
    QCOMPARE(puzzle.SelRow, 1);

    // A right click asks to reset; declined, the undo list is gone all the same.
    game.prompter.answers.enqueue(kMsgNo);
    game.click("cmdundo", Qt::RightButton);
    QCOMPARE(game.prompter.messages.last().prompt, QString("Reset puzzle?"));
    QVERIFY(puzzle.UndoList.empty());
    game.click("cmdundo", Qt::RightButton);  // nothing to undo: not even the question
    QCOMPARE(game.prompter.messages.size(), 1);
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

    revealHexagons(*game.window, game.window->board().hexCount());
    QTest::mousePress(verify, Qt::LeftButton);
    QCOMPARE(game.status(), QString("All Done ..."));
    QCOMPARE(game.prompter.messages.last().prompt, QString("All done !"));
    QCOMPARE(game.prompter.messages.last().style, QString("vbhappy+vbok"));
    QTest::mouseRelease(verify, Qt::LeftButton);
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
    QCOMPARE(game.window->boardFontSize(), 11.5);
    QCOMPARE(picture->width(), qRound(layout.pictureWidth / layout.TwipsPerPixelX));
    QTest::mousePress(picture, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(picture, QPoint(45, 35));
    QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(45, 35));
    QCOMPARE(picture->pos(), home + QPoint(40, 30));
    game.click("cmdzoom2");
    QCOMPARE(layout.CellWidth, fitWidth);
    QCOMPARE(game.window->boardFontSize(), 10.0);
    QCOMPARE(picture->pos(), home);
  }

  void createMakesAPuzzleOfTheChosenSizeAndEscapeStopsAHopelessOne() {
    Game game;
    QVERIFY(game.start());
    auto* size = game.find<QLabel>("lblsize");
    QTest::mouseClick(size, Qt::LeftButton);
    QCOMPARE(size->text(), QString("10"));
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
    QTimer::singleShot(0, game.window.get(), [&game] {
      QVERIFY(!game.window->createEnabled());
      QVERIFY(game.button("cmdcancel")->isVisible());
      QTest::keyClick(game.window->boardPicture(), Qt::Key_Escape);
    });
    game.click("cmdcreate");
    QCOMPARE(game.status(), QString("Puzzle creation cancelled"));
    QVERIFY(game.window->createEnabled());
    QVERIFY(!game.button("cmdcancel")->isVisible());
    QCOMPARE(game.window->puzzle().PuzzleSize, 10);  // the last puzzle is still there
    game.click("cmdcreate");
    QVERIFY(game.prompter.messages.last().prompt.contains("cannot make puzzles of size 10"));
    QVERIFY(game.window->createEnabled());
  }

  void saveAppendsAndExitKeepsTheSettingsOnlyWhenConfirmed() {
    Game game;
    game.folder.writeConfig(tenPuzzles(game), 4);
    QVERIFY(game.start());
    game.files.paths.enqueue(game.folder.path("saved"));
    game.window->findChild<QAction*>("mnusave")->trigger();
    QCOMPARE(game.prompter.notices.last(),
             "Puzzle appended to file:\n" + game.folder.path("saved.txt") + "\n 1 puzzles");

    QFile::remove(game.folder.path("combwise.cfg"));
    game.prompter.answers.enqueue(kMsgNo);
    game.window->findChild<QAction*>("cmdexitx")->trigger();
    QVERIFY(game.window->isVisible());
    QVERIFY(!QFile::exists(game.folder.path("combwise.cfg")));
    game.prompter.answers.enqueue(kMsgYes);
    game.window->findChild<QAction*>("cmdexitx")->trigger();
    QCOMPARE(game.prompter.messages.last().style, QString("vbQuestion + vbYesNo"));
    QVERIFY(!game.window->isVisible());
    Settings saved;
    ReadcfgFile(game.folder.folder(), saved);
    QCOMPARE(saved.PuzzleNumber, 4);
    QCOMPARE(QString::fromStdString(saved.collectionPath), game.folder.path("ten.txt"));
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
