// The output commands on a running window: range printing into a PDF file,
// the single print and its question, the clue text file, the clipboard
// pictures, and the collection tools.
#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QProcess>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <memory>

#include "core/play/layout.h"
#include "gui/app/mainwindow.h"
#include "gui/output/outputcommands.h"
#include "gui/play/boardpicture.h"
#include "render/pageimage.h"
#include "render/pdftarget.h"
#include "support/fakeprompter.h"
#include "support/gamefolder.h"

namespace combwise {

using testing::GameFolder;

class RecordingClipboard : public ClipboardSink {
 public:
  void setImage(const QImage& image) override { images.append(image); }
  QList<QImage> images;
};

class TestOutput : public QObject {
  Q_OBJECT

  struct Game {
    GameFolder folder;
    FakePrompter prompter;
    FakeFileChooser files;
    RecordingClipboard clipboard;
    std::unique_ptr<PdfTarget> printer;
    std::unique_ptr<MainWindow> window;
    OutputCommands* output = nullptr;

    // Four puzzles of size 7, the window showing the second; the printer
    // writes "printer.pdf".
    bool start() {
      folder.writeConfig(folder.writeCollection("four.txt", GameFolder::readymade("7").mid(0, 4)), 2);
      window = std::make_unique<MainWindow>(folder.folder(), WindowServices{&prompter, &files});
      window->show();
      if (!QTest::qWaitForWindowExposed(window.get())) return false;
      if (!QTest::qWaitFor([this] { return window->startedUp(); })) return false;
      output = window->findChild<OutputCommands*>();
      printer = std::make_unique<PdfTarget>(folder.path("printer.pdf"));
      if (output) output->setServices({printer.get(), &clipboard, {}, {}});
      return output != nullptr;
    }
    void trigger(const QString& name) const { window->findChild<QAction*>(name)->trigger(); }
  };

  static QString run(const QString& program, const QStringList& args) {
    QProcess process;
    process.start(program, args);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
  }
  static int pageCount(const QString& pdf) {
    const QString info = run("pdfinfo", {pdf});
    const auto match = QRegularExpression("Pages:\\s+(\\d+)").match(info);
    return match.hasMatch() ? match.captured(1).toInt() : 0;
  }
  static QString pdfText(const QString& pdf) { return run("pdftotext", {"-layout", pdf, "-"}); }

  static QImage screenBoard(const MainWindow& window) {
    QImage image(window.boardPicture()->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    window.boardPicture()->paintOn(painter);
    return image;
  }

  // Dark pixels in the letter slot of ring position k of hexagon n on the
  // page picture, where the sheet's board is drawn at the print cell size.
  static int darkPixelsInLetter(const QImage& image, QPoint origin, const MainWindow& window, int n, int k) {
    const Board& board = window.board();
    const double twips = 1440.0 / image.logicalDpiX();
    const BoardLayout page = LayOutBoard({board.size(), board.rows(), board.cols(), kPrintCellWidth, kPrintCellHeight,
                                          twips, twips, kImageLeft, kImageTop});
    const int x = page.cellX(board.HexRow(n), board.HexCol(n)) + page.LetterDX[k];
    const int y = page.cellY(board.HexRow(n), board.HexCol(n)) + page.LetterDY[k];
    int dark = 0;
    for (int px = origin.x() + qRound((x + 10) / twips); px <= origin.x() + qRound((x + 130) / twips); ++px)
      for (int py = origin.y() + qRound((y + 40) / twips); py <= origin.y() + qRound((y + 220) / twips); ++py)
        if (image.rect().contains(px, py) && qGray(image.pixel(px, py)) < 96) ++dark;
    return dark;
  }

  // A PDF file that answers as a system without printers does.
  class NoPrinter : public PdfTarget {
   public:
    using PdfTarget::PdfTarget;
    QString printerName() const override { return {}; }
  };

  // Runs `act` on the print range window once it is open; the window is
  // closed if `act` leaves it open.
  static void onPrintWindow(const std::function<void(QWidget&)>& act) {
    QTimer::singleShot(0, [act] {
      QWidget* form = QApplication::activeModalWidget();
      if (!form) return;
      if (form->objectName() == "PrntForm") act(*form);
      if (form->isVisible()) form->close();
    });
  }

 private slots:
  void rangePrintingMakesOnePageAPuzzleAndShowsThePuzzleShownBefore() {
    Game game;
    QVERIFY(game.start());
    const int cellWidth = game.window->layout().CellWidth;
    const QString pdf = game.folder.path("range.pdf");
    PdfTarget target(pdf);
    game.output->printPuzzleRange(target, 3, 99);  // the range ends with the collection

    QCOMPARE(pageCount(pdf), 2);
    const QString printed = pdfText(pdf);
    const QString header = "- Puz# %1:" + game.folder.path("four.txt");
    QVERIFY2(printed.contains(header.arg(3)) && printed.contains(header.arg(4)) && !printed.contains("Puz# 2:"),
             qPrintable(printed));
    QCOMPARE(game.prompter.messages.last().prompt, QString("2 puzzles printed"));
    QCOMPARE(game.prompter.messages.last().style, QString("vbinformation+vbok"));
    QCOMPARE(game.window->puzzle().PuzzleNumber, 2);
    QCOMPARE(game.window->layout().CellWidth, cellWidth);
  }

  void aFileThatCannotBeWrittenInFullSaysWhyInsteadOfCountingPages() {
    // Draws as a file would, then fails at the end as on a full disk.
    class FullDisk : public PrintTarget {
     public:
      QString printerName() const override { return "full.pdf"; }
      QString choosePrinter(QWidget*) override { return {}; }
      QPainter* beginDocument() override {
        m_painter = std::make_unique<QPainter>(&m_page);
        return m_painter.get();
      }
      bool newPage() override { return true; }
      bool endDocument() override {
        m_painter.reset();
        return false;
      }
      std::string error() const override { return "Cannot write D/full.pdf: No space left on device"; }

     private:
      QImage m_page{200, 300, QImage::Format_RGB32};
      std::unique_ptr<QPainter> m_painter;
    };
    Game game;
    QVERIFY(game.start());
    FullDisk target;
    game.output->printPuzzleRange(target, 1, 2);
    QCOMPARE(game.prompter.messages.last().prompt, QString("Cannot write D/full.pdf: No space left on device"));
    QCOMPARE(game.prompter.messages.last().style, QString("vbok+vbcritical"));
    QCOMPARE(game.window->puzzle().PuzzleNumber, 2);
  }

  void thePrintWindowsRangeCanGoToAPdfFile() {
    Game game;
    QVERIFY(game.start());
    const QString pdf = game.folder.path("chosen.pdf");
    game.files.paths.enqueue(pdf);
    QString shown;
    onPrintWindow([&shown](QWidget& form) {
      shown = form.objectName();
      form.findChild<QAbstractButton*>("optRange")->click();
      form.findChild<QLineEdit*>("Text1")->setText("2-3");
      form.findChild<QAbstractButton*>("chkPdf")->setChecked(true);
      form.findChild<QAbstractButton*>("cmdOK")->click();
    });
    game.trigger("mnuprint");
    QCOMPARE(shown, QString("PrntForm"));
    QCOMPARE(pageCount(pdf), 2);
    QVERIFY(!QFile::exists(game.folder.path("printer.pdf")));
    QCOMPARE(game.prompter.messages.last().prompt, QString("2 puzzles printed"));
  }

  void withoutAPrinterThePrintCommandsSaySoAndOfferAPdfFile() {
    Game game;
    QVERIFY(game.start());
    NoPrinter none(game.folder.path("never.pdf"));
    game.output->setServices({&none, &game.clipboard, {}, {}});
    const QString single = game.folder.path("single.pdf");
    game.files.paths.enqueue(single);
    game.prompter.answers.enqueue(kMsgYes);
    game.prompter.answers.enqueue(kMsgYes);
    game.trigger("mnuprintpuzzle");
    QCOMPARE(game.prompter.messages.last().prompt,
             QString("No printer is installed.\r\nSave the puzzle and its solution as a PDF file instead?"));
    QCOMPARE(pageCount(single), 1);
    QVERIFY(pdfText(single).contains("- Puz# 2:"));

    game.prompter.answers.enqueue(kMsgYes);
    game.prompter.answers.enqueue(kMsgNo);
    game.trigger("mnuprintclues");
    QCOMPARE(game.prompter.messages.last().prompt,
             QString("No printer is installed.\r\nSave the clues as a PDF file instead?"));
    QCOMPARE(game.files.requests.size(), 1);  // declined: no file asked for

    QString printerLabel;
    bool pdfForced = false;
    onPrintWindow([&](QWidget& form) {
      printerLabel = form.findChild<QLabel*>("lblPrinter")->text();
      auto* pdf = form.findChild<QAbstractButton*>("chkPdf");
      pdfForced = pdf->isChecked() && !pdf->isEnabled();
      form.findChild<QAbstractButton*>("cmdOK")->click();
    });
    const QString range = game.folder.path("range.pdf");
    game.files.paths.enqueue(range);
    game.trigger("mnuprint");
    QCOMPARE(printerLabel, QString("No printer is installed"));
    QVERIFY(pdfForced);
    QCOMPARE(pageCount(range), 1);
    QCOMPARE(game.prompter.messages.last().prompt, QString("1 puzzles printed"));
    QVERIFY(!QFile::exists(game.folder.path("never.pdf")));
  }

  void theBookletIsChosenInThePrintWindowPreviewedAndRemembered() {
    Game game;
    QVERIFY(game.start());
    const QString previewed = game.folder.path("preview.pdf");
    game.output->setServices({game.printer.get(), &game.clipboard, {}, [&](const auto& draw) {
                                PdfTarget preview(previewed);
                                draw(preview);
                              }});
    QVERIFY(QDir().mkpath(game.folder.path("out")));
    const QString booklet = game.folder.path("out/booklet.pdf");
    game.files.paths.enqueue(booklet);
    onPrintWindow([](QWidget& form) {
      form.findChild<QAbstractButton*>("optRange")->click();
      form.findChild<QLineEdit*>("Text1")->setText("1-4");
      form.findChild<QAbstractButton*>("optBooklet")->click();
      form.findChild<QLineEdit*>("txtTitle")->setText("Class 4b");
      form.findChild<QAbstractButton*>("chkPdf")->setChecked(true);
      form.findChild<QAbstractButton*>("cmdPreview")->click();
      form.findChild<QAbstractButton*>("cmdOK")->click();
    });
    game.trigger("mnuprint");
    // Four puzzles on pages of their own and one page of keys, in the
    // preview as in the file.
    QCOMPARE(pageCount(previewed), 5);
    QCOMPARE(pageCount(booklet), 5);
    const QString text = pdfText(booklet);
    QVERIFY2(text.contains("Class 4b") && text.contains("Puzzle 4") && text.contains("Answers") &&
                 text.contains("Page 5 of 5"),
             qPrintable(text));
    QCOMPARE(game.window->puzzle().PuzzleNumber, 2);  // shown again after the pages

    // Opened again, the window offers the same choices and the PDF folder.
    bool remembered = false;
    onPrintWindow([&](QWidget& form) {
      remembered = form.findChild<QAbstractButton*>("chkPdf")->isChecked() &&
                   form.findChild<QAbstractButton*>("optBooklet")->isChecked() &&
                   form.findChild<QLineEdit*>("txtTitle")->text() == "Class 4b";
      form.findChild<QAbstractButton*>("cmdOK")->click();
    });
    game.trigger("mnuprint");
    QVERIFY(remembered);
    QCOMPARE(QDir(game.files.requests.last().defaultDir).canonicalPath(),
             QDir(game.folder.path("out")).canonicalPath());
  }

  void theSinglePrintAsksFirstAndPrintsTheSheetWithItsLettersOnly() {
    Game game;
    QVERIFY(game.start());
    game.prompter.answers.enqueue(kMsgNo);
    game.trigger("mnuprintpuzzle");
    QCOMPARE(game.prompter.messages.last().prompt, QString("Print current puzzle and its solution?"));
    QVERIFY(!QFile::exists(game.folder.path("printer.pdf")));

    game.prompter.answers.enqueue(kMsgYes);
    game.trigger("mnuprintpuzzle");
    const QString pdf = game.folder.path("printer.pdf");
    QCOMPARE(pageCount(pdf), 1);
    const QString printed = pdfText(pdf);
    QVERIFY(printed.contains("- Puz# 2:"));
    // The sheet shows the given letters; the solved board below shows them all.
    const PuzzleState& puzzle = game.window->puzzle();
    int shownLetters = 0;
    for (const QString& line : printed.split('\n'))
      if (!line.contains("Puz#"))  // the header names the collection's path
        for (const QChar c : line) shownLetters += c.isUpper() ? 1 : 0;
    int freeLetters = 0;
    const Board& board = game.window->board();
    for (int n = 1; n <= board.hexCount(); ++n)
      for (int k = 1; k <= 6; ++k) {
        const int cell = board.InsideCells(n, k);
        freeLetters += board.FreeCell(board.CellRow(cell), board.CellCol(cell));
      }
    QVERIFY(puzzle.PuzzleSize == 7 && freeLetters < 42);
    QVERIFY2(shownLetters == freeLetters + 42, qPrintable(printed));
  }

  void cluesGoToATextFileByteForByteAndNeverOverAnInput() {
    Game game;
    QVERIFY(game.start());
    const PuzzleState& puzzle = game.window->puzzle();
    const QString listing = game.folder.path("clues");
    game.files.paths.enqueue(listing);
    game.trigger("mnucluesfile");
    QCOMPARE(game.files.requests.last().mode, QString("SAVE"));

    QByteArray expected = " Combwise - hexagonal crosswords (word letters can be in any order)\r\n Puz# 2: " +
                          game.folder.path("four.txt").toUtf8() + "\r\n\r\n INSIDE CLUES:\r\n";
    for (int hex = 1; hex <= 7; ++hex)
      expected += QString(" 0%1. ").arg(hex).toUtf8() + puzzle.ClueTexts[2 * hex].c_str() + "\r\n";
    expected += "\r\n OUTSIDE CLUES:\r\n";
    for (int hex = 1; hex <= 7; ++hex)
      expected += QString(" 0%1. ").arg(hex).toUtf8() + puzzle.ClueTexts[2 * hex - 1].c_str() + "\r\n";
    QFile written(listing + ".txt");  // the default extension
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), expected);
    written.close();
    QCOMPARE(game.prompter.messages.last().prompt, "Puzzle printed to file:\r\n" + listing + ".txt");
    QVERIFY(game.prompter.confirmations.isEmpty());

    // Declining the overwrite question leaves the file as it was.
    QFile::resize(listing + ".txt", 10);
    game.prompter.confirmAnswer = false;
    game.files.paths.enqueue(listing + ".txt");
    game.trigger("mnucluesfile");
    QCOMPARE(game.prompter.confirmations.last(), "OverWrite file: " + listing + ".txt ?");
    QCOMPARE(QFileInfo(listing + ".txt").size(), 10);

    // The open collection is never replaced by its listing.
    game.prompter.confirmAnswer = true;
    const QString collection = game.folder.path("four.txt");
    const qint64 size = QFileInfo(collection).size();
    game.files.paths.enqueue(collection);
    game.trigger("mnucluesfile");
    QCOMPARE(QFileInfo(collection).size(), size);
    QCOMPARE(game.prompter.messages.last().style, QString("vbok+vbcritical"));
  }

  void copiedPicturesFollowTheGridAndTheSolutionShowsEveryLetterWithoutTouchingTheBoard() {
    Game game;
    QVERIFY(game.start());
    const MainWindow& window = *game.window;
    const QImage screenBefore = screenBoard(window);
    game.trigger("mnucopypuzzle");
    game.trigger("mnucopysolution");
    QCOMPARE(game.clipboard.images.size(), 2);
    const QImage puzzle = game.clipboard.images[0];
    const QImage solution = game.clipboard.images[1];

    // The picture is what is drawn with a small white margin around it.
    QPoint origin;
    QCOMPARE(puzzle, pageImage(game.output->currentPage(), LetterMode::Sheet, &origin));
    QCOMPARE(solution.size(), puzzle.size());
    const auto drawnAt = [&puzzle](int x0, int y0, int x1, int y1) {
      for (int x = x0; x <= x1; ++x)
        for (int y = y0; y <= y1; ++y)
          if (puzzle.pixel(x, y) != qRgb(255, 255, 255)) return true;
      return false;
    };
    const int right = puzzle.width() - 1;
    const int bottom = puzzle.height() - 1;
    constexpr int m = kImageMargin;
    QVERIFY(!drawnAt(0, 0, right, m - 1) && !drawnAt(0, bottom - m + 1, right, bottom));
    QVERIFY(!drawnAt(0, 0, m - 1, bottom) && !drawnAt(right - m + 1, 0, right, bottom));
    QVERIFY(drawnAt(m, m, m, bottom - m) && drawnAt(right - m, m, right - m, bottom - m));
    QVERIFY(drawnAt(m, m, right - m, m) && drawnAt(m, bottom - m, right - m, bottom - m));
    // A size-7 board with its header fits a small picture.
    QVERIFY2(puzzle.width() < 900 && puzzle.height() < 600,
             qPrintable(QString("%1 x %2").arg(puzzle.width()).arg(puzzle.height())));

    // The middle letters of cells to fill: white on the puzzle, drawn on the solution.
    const Board& board = window.board();
    int checked = 0;
    for (int n = 1; n <= board.hexCount(); ++n)
      for (int k : {2, 5}) {
        const int cell = board.InsideCells(n, k);
        const bool given = board.FreeCell(board.CellRow(cell), board.CellCol(cell)) == 1;
        const int onPuzzle = darkPixelsInLetter(puzzle, origin, window, n, k);
        const int onSolution = darkPixelsInLetter(solution, origin, window, n, k);
        QCOMPARE(onPuzzle > 0, given);
        QVERIFY(onSolution > 0);  // nothing is cut off
        if (!given) ++checked;
      }
    QVERIFY(checked > 0);
    QCOMPARE(screenBoard(window), screenBefore);
  }

  void randomizeReportsItsCopy() {
    Game game;
    QVERIFY(game.start());
    const QStringList lines = GameFolder::readymade("7").mid(0, 2);
    const QString source = game.folder.writeCollection("twice.txt", lines + lines);
    game.files.paths.enqueue(source);
    game.trigger("mnuloadpuzfile");
    game.trigger("mnurandomize");
    const QString output = game.folder.path("twice-noduprandom.txt");
    QCOMPARE(game.prompter.notices.last(), output + " randomized");
    QVERIFY(game.window->statusText().startsWith("random"));
    QFile copy(output);
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll().count('\n'), 2);
  }

  void theBatchAsksFirstThenAppendsToItsFileAndSaysDone() {
    Game game;
    QVERIFY(game.start());
    game.output->setBatchCount(2);
    const QString batch = game.folder.path("puz-18sepsize17D.txt");
    game.prompter.answers.enqueue(kMsgNo);
    game.trigger("mnubatch");
    QVERIFY(!QFile::exists(batch));
    QVERIFY(game.prompter.notices.isEmpty());

    // While the batch runs, its window shows the count, and the status
    // line does not stay on reading the word files.
    bool shown = false;
    QStringList statuses;
    QTimer watch;
    connect(&watch, &QTimer::timeout, [&] {
      const auto* progress = game.window->findChild<QWidget*>("batchprogress");
      const auto* count = game.window->findChild<QLabel*>("lblbatchcount");
      if (!progress || !count || count->text() == "Puzzles made: 0") return;
      shown = shown || progress->isVisible();
      statuses << game.window->statusText();
    });
    watch.start(0);
    game.prompter.answers.enqueue(kMsgYes);
    game.trigger("mnubatch");
    watch.stop();
    QVERIFY(shown);
    QVERIFY2(!statuses.isEmpty() && !statuses.contains("Reading Meanings file ..."), qPrintable(statuses.join('|')));
    QCOMPARE(game.prompter.notices, QStringList{"done"});
    QFile made(batch);
    QVERIFY(made.open(QIODevice::ReadOnly));
    const QList<QByteArray> puzzles = made.readAll().split('\n');
    QCOMPARE(puzzles.size(), 3);  // two lines and the end
    QVERIFY(puzzles[0].startsWith("17;"));
    QCOMPARE(game.window->puzzle().PuzzleSize, 7);  // the puzzle shown stays
    // The batch's size and dictionary are the ones in use afterwards.
    QCOMPARE(game.window->findChild<QLabel*>("lblsize")->text(), QString("17"));
    QCOMPARE(QString::fromStdString(game.window->settings().dictionaryPath), game.folder.path("english3.txt"));
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestOutput)
#include "tst_output.moc"
