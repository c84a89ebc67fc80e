// The output commands on a running window: range printing into a PDF file
// and the booklet, the single print and its question, the clue text file,
// the clipboard pictures, and the collection tools.
#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QTimer>
#include <functional>

#include "gui/output/outputcommands.h"
#include "render/pageimage.h"
#include "render/pdftarget.h"
#include "support/gamewindow.h"
#include "support/modal.h"

namespace combwise {

class RecordingClipboard : public ClipboardSink {
 public:
  void setImage(const QImage& image) override { images.append(image); }
  QList<QImage> images;
};

// A PDF file that answers as a system without printers does.
class NoPrinter : public PdfTarget {
 public:
  using PdfTarget::PdfTarget;
  QString printerName() const override { return {}; }
};

// A PDF file whose end fails as on a full disk.
class FullDisk : public PdfTarget {
 public:
  using PdfTarget::PdfTarget;
  bool endDocument() override {
    PdfTarget::endDocument();
    return false;
  }
  std::string error() const override { return "Cannot write D/full.pdf: No space left on device"; }
};

class TestOutput : public QObject {
  Q_OBJECT

  // Four puzzles of size 7, the window showing the second; the printer
  // writes "printer.pdf".
  struct Game : testing::GameWindow<> {
    RecordingClipboard clipboard;
    std::unique_ptr<PdfTarget> printer;
    OutputCommands* output = nullptr;

    bool start() {
      configure(2, "7", 4);
      if (!GameWindow::start()) return false;
      output = window->findChild<OutputCommands*>();
      printer = std::make_unique<PdfTarget>(folder.path("printer.pdf"));
      if (output) output->setServices({printer.get(), &clipboard, {}, {}});
      return output != nullptr;
    }
  };

  static QString run(const QString& program, const QStringList& args) {
    QProcess process;
    process.start(program, args);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
  }
  static int pageCount(const QString& pdf) {
    const auto match = QRegularExpression("Pages:\\s+(\\d+)").match(run("pdfinfo", {pdf}));
    return match.hasMatch() ? match.captured(1).toInt() : 0;
  }
  static QString pdfText(const QString& pdf) { return run("pdftotext", {"-layout", pdf, "-"}); }

  // Runs `act` on the print range window once it is open.
  static void onPrintWindow(const std::function<void(QWidget&)>& act) {
    testing::onModal([act](QWidget& form) {
      if (form.objectName() == "PrntForm") act(form);
    });
  }
  // Chooses a range and the layout in the print window and prints to a PDF.
  static void printRange(QWidget& form, const QString& range, const char* layout) {
    form.findChild<QAbstractButton*>("optRange")->click();
    form.findChild<QLineEdit*>("Text1")->setText(range);
    form.findChild<QAbstractButton*>(layout)->click();
    form.findChild<QAbstractButton*>("chkPdf")->setChecked(true);
  }

 private slots:
  // Pages go to the chosen file, one a puzzle or as a booklet; the window
  // shows its puzzle again and remembers the choices.
  void thePrintWindowPrintsARangeOrABookletToAPdfFile() {
    Game game;
    QVERIFY(game.start());
    const QString pdf = game.folder.path("chosen.pdf");
    game.files.paths.enqueue(pdf);
    onPrintWindow([](QWidget& form) {
      printRange(form, "3-4", "optPages");
      form.findChild<QAbstractButton*>("cmdOK")->click();
    });
    game.trigger("mnuprint");
    QCOMPARE(pageCount(pdf), 2);
    QVERIFY(pdfText(pdf).contains("- Puz# 3:" + game.folder.path("ten.txt")));
    QVERIFY(!QFile::exists(game.folder.path("printer.pdf")));
    QCOMPARE(game.prompter.messages.last().prompt, QString("2 puzzles printed"));
    QCOMPARE(game.puzzle().PuzzleNumber, 2);

    const QString previewed = game.folder.path("preview.pdf");
    game.output->setServices({game.printer.get(), &game.clipboard, {}, [&](const auto& draw) {
                                PdfTarget preview(previewed);
                                draw(preview);
                              }});
    QVERIFY(QDir().mkpath(game.folder.path("out")));
    const QString booklet = game.folder.path("out/booklet.pdf");
    game.files.paths.enqueue(booklet);
    onPrintWindow([](QWidget& form) {
      printRange(form, "1-4", "optBooklet");
      form.findChild<QLineEdit*>("txtTitle")->setText("Class 4b");
      form.findChild<QAbstractButton*>("cmdPreview")->click();
      form.findChild<QAbstractButton*>("cmdOK")->click();
    });
    game.trigger("mnuprint");
    QCOMPARE(pageCount(previewed), 5);  // four puzzles and a page of keys
    QCOMPARE(pageCount(booklet), 5);
    QVERIFY(pdfText(booklet).contains("Class 4b"));

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

    // A file that cannot be written in full says why instead of counting pages.
    FullDisk full(game.folder.path("full.pdf"));
    game.output->printPuzzleRange(full, 1, 2);
    QCOMPARE(game.prompter.messages.last().prompt, QString("Cannot write D/full.pdf: No space left on device"));
    QCOMPARE(game.puzzle().PuzzleNumber, 2);
  }

  // The single print asks first; without a printer each print command says
  // so and offers a PDF file, here the sheet with its given letters over the
  // solved board.
  void theSinglePrintAsksFirstAndWithoutAPrinterThePrintCommandsOfferAPdfFile() {
    Game game;
    QVERIFY(game.start());
    NoPrinter none(game.folder.path("never.pdf"));
    game.output->setServices({&none, &game.clipboard, {}, {}});
    game.prompter.answers << kMsgNo;
    game.trigger("mnuprintpuzzle");
    QCOMPARE(game.prompter.messages.last().prompt, QString("Print current puzzle and its solution?"));
    QVERIFY(game.files.requests.isEmpty());
    const QString single = game.folder.path("single.pdf");
    game.files.paths.enqueue(single);
    game.prompter.answers << kMsgYes << kMsgYes;
    game.trigger("mnuprintpuzzle");
    QCOMPARE(game.prompter.messages.last().prompt,
             QString("No printer is installed.\r\nSave the puzzle and its solution as a PDF file instead?"));
    QCOMPARE(pageCount(single), 1);
    const QString printed = pdfText(single);
    int shownLetters = 0;
    for (const QString& line : printed.split('\n'))
      if (!line.contains("Puz#"))  // the header names the collection's path
        shownLetters += int(std::count_if(line.begin(), line.end(), [](QChar c) { return c.isUpper(); }));
    const Board& board = game.window->board();
    int givenLetters = 0;
    for (int n = 1; n <= board.hexCount(); ++n)
      for (int k = 1; k <= 6; ++k) {
        const int cell = board.InsideCells(n, k);
        givenLetters += board.FreeCell(board.CellRow(cell), board.CellCol(cell)) == 1 ? 1 : 0;
      }
    QVERIFY(board.hexCount() == 7 && givenLetters < 42);
    QVERIFY2(shownLetters == givenLetters + 42, qPrintable(printed));

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
    QVERIFY(!QFile::exists(game.folder.path("never.pdf")));
  }

  // The listing's layout is the clue listing's own test; here it is the
  // shown puzzle's, in the chosen file.
  void cluesGoToATextFileAndNeverOverAnInput() {
    Game game;
    QVERIFY(game.start());
    const QString listing = game.folder.path("clues");
    game.files.paths.enqueue(listing);
    game.trigger("mnucluesfile");
    QFile written(listing + ".txt");  // the default extension
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    written.close();
    QVERIFY(text.contains(" Puz# 2: " + game.folder.path("ten.txt").toUtf8() + "\r\n"));
    QVERIFY(text.contains(QByteArray(" 07. ") + game.puzzle().ClueTexts[13].c_str() + "\r\n"));
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
    const QString collection = game.folder.path("ten.txt");
    const qint64 size = QFileInfo(collection).size();
    game.files.paths.enqueue(collection);
    game.trigger("mnucluesfile");
    QCOMPARE(QFileInfo(collection).size(), size);
    QCOMPARE(game.prompter.messages.last().style, QString("vbok+vbcritical"));
  }

  void copiedPicturesAreTheSheetAndTheSolutionCutToWhatIsDrawn() {
    Game game;
    QVERIFY(game.start());
    game.trigger("mnucopypuzzle");
    game.trigger("mnucopysolution");
    QCOMPARE(game.clipboard.images.size(), 2);
    const QImage puzzle = game.clipboard.images[0];
    const QImage solution = game.clipboard.images[1];

    // The picture is what is drawn with a small white margin around it.
    QCOMPARE(puzzle, pageImage(game.output->currentPage(), LetterMode::Sheet));
    QRect drawn;
    for (int y = 0; y < puzzle.height(); ++y)
      for (int x = 0; x < puzzle.width(); ++x)
        if (puzzle.pixel(x, y) != qRgb(255, 255, 255)) drawn |= QRect(x, y, 1, 1);
    QCOMPARE(drawn, puzzle.rect().marginsRemoved(QMargins(kImageMargin, kImageMargin, kImageMargin, kImageMargin)));

    // Which letters each mode draws is the board scene's rule.
    QCOMPARE(solution, pageImage(game.output->currentPage(), LetterMode::Solution));
    QVERIFY(solution != puzzle);
  }

  // Which puzzles the copy keeps is the collection tool's rule.
  void randomizeReportsItsCopy() {
    Game game;
    QVERIFY(game.start());
    game.trigger("mnurandomize");
    const QString output = game.folder.path("ten-noduprandom.txt");
    QCOMPARE(game.prompter.notices.last(), output + " randomized");
    QFile copy(output);
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll().count('\n'), 4);
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
    QCOMPARE(game.puzzle().PuzzleSize, 7);  // the puzzle shown stays
    // The batch's size and dictionary are the ones in use afterwards.
    QCOMPARE(game.window->findChild<QLabel*>("lblsize")->text(), QString("17"));
    QCOMPARE(QString::fromStdString(game.window->settings().dictionaryPath), game.folder.path("english3.txt"));
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestOutput)
#include "tst_output.moc"
