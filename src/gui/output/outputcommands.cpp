// The output and collection-tool commands of the main window.
#include "gui/output/outputcommands.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "core/files/browsing.h"
#include "core/files/printchoices.h"
#include "core/files/programfiles.h"
#include "core/files/puzzlefile.h"
#include "core/files/textfile.h"
#include "core/model/text.h"
#include "gui/app/mainwindow.h"
#include "gui/output/printertarget.h"
#include "gui/output/prntform.h"
#include "gui/play/boardpicture.h"
#include "gui/ui/batchprogress.h"
#include "gui/ui/busypointer.h"
#include "gui/ui/prompter.h"
#include "render/bookletprinter.h"
#include "render/pageimage.h"
#include "render/pdftarget.h"
#include "render/rangeprinter.h"

namespace combwise {
namespace {

QString text(const std::string& value) { return QString::fromStdString(value); }

void letEventsRun() { QCoreApplication::processEvents(); }

}  // namespace

OutputCommands::OutputCommands(MainWindow& window, OutputServices services)
    : QObject(&window), m_window(window), m_services(std::move(services)) {
  setObjectName("outputcommands");
  addActions();
}

OutputCommands::~OutputCommands() = default;

void OutputCommands::setServices(OutputServices services) { m_services = std::move(services); }

void OutputCommands::setBatchCount(int count) { m_window.session().setBatchCount(count); }

void OutputCommands::addActions() {
  if (QAction* print = m_window.fileMenu()->findChild<QAction*>("mnuprint"))
    connect(print, &QAction::triggered, this, &OutputCommands::printFileCommand);

  QMenu* menu = m_window.puzzleMenu();
  menu->addSeparator();
  const auto add = [this, menu](const QString& name, const QString& caption, void (OutputCommands::*command)()) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, command);
  };
  add("mnuprintpuzzle", "Print current &puzzle", &OutputCommands::printCurrentPuzzle);
  add("mnuprintclues", "Print c&lues", &OutputCommands::printClues);
  add("mnucluesfile", "Clues to &text file...", &OutputCommands::cluesToTextFile);
  add("mnucopypuzzle", "Copy puzzle", &OutputCommands::copyPuzzle);
  add("mnucopysolution", "Copy solution", &OutputCommands::copySolution);
  menu->addSeparator();
  add("mnurandomize", "Randomi&ze", &OutputCommands::randomize);
  add("mnubatch", "Make &batch of puzzles...", &OutputCommands::makeBatch);
}

PrintTarget& OutputCommands::printer() {
  if (m_services.printer) return *m_services.printer;
  // The system's printer is looked up on first use, not when the window opens.
  if (!m_ownPrinter) m_ownPrinter = std::make_unique<PrinterTarget>();
  return *m_ownPrinter;
}

ClipboardSink& OutputCommands::clipboard() {
  if (m_services.clipboard) return *m_services.clipboard;
  if (!m_ownClipboard) m_ownClipboard = std::make_unique<SystemClipboard>();
  return *m_ownClipboard;
}

bool OutputCommands::ready() const { return m_window.session().outputReady(); }

PagePuzzle OutputCommands::currentPage() const {
  const BoardLook board = m_window.session().look();
  PrintLook look;
  look.fontName = text(board.fontName);
  look.fontSize = board.fontSize;
  look.outlineWidth = board.outlineWidth;
  look.screenCellWidth = m_window.layout().CellWidth;
  look.screenCellHeight = m_window.layout().CellHeight;
  look.banner = m_banner;
  look.wrapFont = m_window.boardPicture()->view().font;
  return PagePuzzle{m_window.board(), m_window.puzzle(), look};
}

void OutputCommands::printCurrentPuzzle() {
  if (!ready()) return;
  if (m_window.prompter().ShowMessage("Print current puzzle and its solution?", "vbquestion+vbyesno") != kMsgYes)
    return;
  printDocument("the puzzle and its solution", [this](QPainter& painter, PrintTarget&) {
    const PagePuzzle page = currentPage();
    PrintPuzzle(painter, page, kPageLeft, kSheetTop, 0);
    PrintPuzzle(painter, page, kPageLeft, kSinglePrintSolvedTop, 1);
  });
}

void OutputCommands::printDocument(const QString& what, const std::function<void(QPainter&, PrintTarget&)>& draw) {
  bool declined = false;
  std::unique_ptr<PrintTarget> pdf = pdfInsteadOfPrinter(what, declined);
  if (declined) return;
  PrintTarget& target = pdf ? *pdf : printer();
  QPainter* painter = target.beginDocument();
  if (!painter) {
    m_window.prompter().ShowMessage("Cannot print to " + target.printerName(), "vbok+vbcritical");
    return;
  }
  draw(*painter, target);
  target.endDocument();
}

std::string OutputCommands::printChoicesPath() const { return m_window.session().files().writePath(kPrintChoicesFile); }

std::unique_ptr<PrintTarget> OutputCommands::choosePdfFile() {
  PrintChoices choices = readPrintChoices(printChoicesPath());
  const QString folder = choices.pdfFolder.empty() || !QDir(text(choices.pdfFolder)).exists()
                             ? text(m_window.session().saveFolder())
                             : text(choices.pdfFolder);
  const QString chosen = m_window.fileChooser().chooseFile({"Save as PDF", "*.pdf", "PDF Files", folder, "SAVE", {}});
  if (chosen.trimmed().isEmpty()) return nullptr;
  const QString path = text(withDefaultExtension(chosen.toStdString(), kPdfExtension));
  if (nonEmptyFile(path.toStdString()) && !m_window.prompter().confirm("OverWrite file: " + path + " ?"))
    return nullptr;
  // The next PDF starts in the same folder; failing to remember it is no
  // reason to stop the printing.
  choices.pdfFolder = QFileInfo(path).absolutePath().toStdString();
  writePrintChoices(printChoicesPath(), choices);
  return m_services.pdfFile ? m_services.pdfFile(path) : std::make_unique<PdfTarget>(path);
}

std::unique_ptr<PrintTarget> OutputCommands::pdfInsteadOfPrinter(const QString& what, bool& declined) {
  declined = false;
  if (!printer().printerName().isEmpty()) return nullptr;
  declined = true;
  if (m_window.prompter().ShowMessage("No printer is installed.\r\nSave " + what + " as a PDF file instead?",
                                      "vbquestion+vbyesno") != kMsgYes)
    return nullptr;
  std::unique_ptr<PrintTarget> pdf = choosePdfFile();
  declined = !pdf;
  return pdf;
}

RangeOutcome OutputCommands::drawRange(PrintTarget& target, int first, int last, bool booklet, const QString& title) {
  const PuzzleState& state = m_window.puzzle();
  const std::string path = state.CollectionPath;
  const int shownBefore = state.PuzzleNumber;
  const PageLoader load = [this, &path](int n) -> std::optional<PagePuzzle> {
    if (!m_window.showPuzzle(path, n)) return std::nullopt;
    return currentPage();
  };
  BusyPointer busy;
  const RangeOutcome outcome =
      booklet ? PrintBooklet(target, first, last, state.PuzzleCount, load, title.isEmpty() ? kBookletTitle : title,
                             letEventsRun)
              : PrintPuzzleRange(target, first, last, state.PuzzleCount, load, false, letEventsRun);
  m_window.showPuzzle(path, shownBefore);
  return outcome;
}

void OutputCommands::printPuzzleRange(PrintTarget& target, int first, int last, bool booklet, const QString& title) {
  const RangeOutcome outcome = drawRange(target, first, last, booklet, title);
  if (!outcome.opened || !outcome.written) {
    const QString name = target.printerName();
    const std::string error = target.error();
    m_window.prompter().ShowMessage(!error.empty()   ? text(error)
                                    : name.isEmpty() ? QString("No printer is installed")
                                                     : "Cannot print to " + name,
                                    "vbok+vbcritical");
    return;
  }
  m_window.prompter().ShowMessage(text(NumberText(outcome.printed)) + " puzzles printed", "vbinformation+vbok");
}

void OutputCommands::printFileCommand() {
  const PuzzleState& state = m_window.puzzle();
  if (!m_window.session().printRangeReady()) return;
  PrintTarget& target = printer();
  PrntForm form(
      target.printerName(), text(state.CollectionPath), state.PuzzleCount, m_window.prompter(),
      [this, &target] { return target.choosePrinter(&m_window); }, &m_window);
  const PrintChoices remembered = readPrintChoices(printChoicesPath());
  form.setChoices(remembered.saveAsPdf, remembered.booklet, text(remembered.title));
  const int current = state.PuzzleNumber;
  form.setPreview([this, current](PrintRange range, bool booklet, const QString& title) {
    if (range.first == 0) range = {current, current};
    preview(range.first, range.last, booklet, title);
  });
  form.exec();
  const std::optional<PrintRange> range = form.chosenRange(state.PuzzleNumber);
  if (!range) return;
  PrintChoices choices = readPrintChoices(printChoicesPath());
  // Without a printer the tick is forced on; that is not the user's choice.
  if (!form.printerName().isEmpty()) choices.saveAsPdf = form.saveAsPdf();
  choices.booklet = form.booklet();
  choices.title = form.title().toStdString();
  writePrintChoices(printChoicesPath(), choices);
  if (form.saveAsPdf())
    printToPdf(range->first, range->last, form.booklet(), form.title());
  else
    printPuzzleRange(target, range->first, range->last, form.booklet(), form.title());
}

void OutputCommands::printToPdf(int first, int last, bool booklet, const QString& title) {
  std::unique_ptr<PrintTarget> file = choosePdfFile();
  if (file) printPuzzleRange(*file, first, last, booklet, title);
}

void OutputCommands::preview(int first, int last, bool booklet, const QString& title) {
  const auto draw = [&](PrintTarget& target) { drawRange(target, first, last, booklet, title); };
  if (m_services.preview) {
    m_services.preview(draw);
    return;
  }
  QPrinter printer(QPrinter::HighResolution);
  const QString name = this->printer().printerName();
  if (!name.isEmpty()) printer.setPrinterName(name);
  usePrintersOwnPaper(printer);
  QPrintPreviewDialog dialog(&printer, &m_window);
  dialog.setWindowTitle(booklet ? "Booklet preview" : "Print preview");
  connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* shown) {
    PrinterTarget target(*shown);
    draw(target);
  });
  dialog.exec();
}

void OutputCommands::printClues() {
  if (!ready()) return;
  if (m_window.prompter().ShowMessage("Print current clues to printer?", "vbquestion+vbyesno") != kMsgYes) return;
  printDocument("the clues", [this](QPainter& painter, PrintTarget& target) {
    PrintClueList(painter, currentPage(), kClueListLeft, kClueListTop, [&target] { target.newPage(); });
  });
}

void OutputCommands::cluesToTextFile() {
  if (!ready()) return;
  const QString chosen =
      m_window.fileChooser().chooseFile({"Select output file",
                                         "*.txt",
                                         m_banner.productName.empty() ? "Files" : text(m_banner.productName + " Files"),
                                         text(m_window.session().saveFolder()),
                                         "SAVE",
                                         {}});
  if (chosen.trimmed().isEmpty()) return;
  const std::string path = withDefaultExtension(chosen.toStdString());
  const PuzzleState& state = m_window.puzzle();
  // The listing replaces its file: never the collection it lists, nor the
  // meanings the clues come from.
  if (outputIsAnInput(path, {state.CollectionPath, m_window.session().meaningsPath()})) {
    m_window.prompter().ShowMessage(text(path) + " is read by the game; choose another file", "vbok+vbcritical");
    return;
  }
  if (nonEmptyFile(path) && !m_window.prompter().confirm("OverWrite file: " + text(path) + " ?")) return;
  Status written;
  {
    BusyPointer busy;
    written = writeClueListing(path, state, m_banner);
  }
  if (!written.ok()) {
    m_window.prompter().ShowMessage(text(written.error), "vbok+vbcritical");
    return;
  }
  m_window.prompter().ShowMessage("Puzzle printed to file:\r\n" + text(path), "vbinformation+vbok");
}

void OutputCommands::copyPuzzle() {
  if (!ready()) return;
  clipboard().setImage(pageImage(currentPage(), LetterMode::Sheet));
}

void OutputCommands::copySolution() {
  if (!ready()) return;
  // The picture draws every letter itself; the free cells are not touched.
  clipboard().setImage(pageImage(currentPage(), LetterMode::Solution));
}

void OutputCommands::randomize() { m_window.paint(m_window.session().randomize()); }

void OutputCommands::makeBatch() {
  // The small window with the running count opens once the run starts.
  std::unique_ptr<BatchProgress> progress;
  const CommandResult result = m_window.session().makeBatch([this, &progress](int made) {
    if (!progress) progress = std::make_unique<BatchProgress>(&m_window);
    progress->showCount(made);
  });
  if (progress) progress->close();
  progress.reset();
  m_window.paint(result);
}

}  // namespace combwise
