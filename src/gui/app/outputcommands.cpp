// The output and collection-tool commands of the main window.
#include "gui/app/outputcommands.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPainter>

#include "core/files/browsing.h"
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
  PrintTarget& target = printer();
  QPainter* painter = target.beginDocument();
  if (!painter) return;
  const PagePuzzle page = currentPage();
  PrintPuzzle(*painter, page, kPageLeft, kSheetTop, 0);
  PrintPuzzle(*painter, page, kPageLeft, kSinglePrintSolvedTop, 1);
  target.endDocument();
}

void OutputCommands::printPuzzleRange(PrintTarget& target, int first, int last) {
  const PuzzleState& state = m_window.puzzle();
  const std::string path = state.CollectionPath;
  const int shownBefore = state.PuzzleNumber;
  const PageLoader load = [this, &path](int n) -> std::optional<PagePuzzle> {
    if (!m_window.showPuzzle(path, n)) return std::nullopt;
    return currentPage();
  };
  RangeOutcome outcome;
  {
    BusyPointer busy;
    outcome = PrintPuzzleRange(target, first, last, state.PuzzleCount, load, false, letEventsRun);
    m_window.showPuzzle(path, shownBefore);
  }
  if (!outcome.opened) {
    m_window.prompter().ShowMessage("Cannot print to " + target.printerName(), "vbok+vbcritical");
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
  form.exec();
  const std::optional<PrintRange> range = form.chosenRange(state.PuzzleNumber);
  if (!range) return;
  if (form.saveAsPdf())
    printToPdf(range->first, range->last);
  else
    printPuzzleRange(target, range->first, range->last);
}

void OutputCommands::printToPdf(int first, int last) {
  const QString chosen = m_window.fileChooser().chooseFile(
      {"Save as PDF", "*.pdf", "PDF Files", text(m_window.programFolder()), "SAVE", {}});
  if (chosen.trimmed().isEmpty()) return;
  const QString path = text(withDefaultExtension(chosen.toStdString(), kPdfExtension));
  if (nonEmptyFile(path.toStdString()) && !m_window.prompter().confirm("OverWrite file: " + path + " ?")) return;
  std::unique_ptr<PrintTarget> file = m_services.pdfFile ? m_services.pdfFile(path) : std::make_unique<PdfTarget>(path);
  printPuzzleRange(*file, first, last);
}

void OutputCommands::printClues() {
  if (!ready()) return;
  if (m_window.prompter().ShowMessage("Print current clues to printer?", "vbquestion+vbyesno") != kMsgYes) return;
  PrintTarget& target = printer();
  QPainter* painter = target.beginDocument();
  if (!painter) return;
  PrintClueList(*painter, currentPage(), kClueListLeft, kClueListTop, [&target] { target.newPage(); });
  target.endDocument();
}

void OutputCommands::cluesToTextFile() {
  if (!ready()) return;
  const QString chosen =
      m_window.fileChooser().chooseFile({"Select output file",
                                         "*.txt",
                                         m_banner.productName.empty() ? "Files" : text(m_banner.productName + " Files"),
                                         text(m_window.programFolder()),
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
