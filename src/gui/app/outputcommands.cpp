// The output and collection-tool commands of the main window.
#include "gui/app/outputcommands.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

#include "core/files/browsing.h"
#include "core/files/collectiontools.h"
#include "core/files/dictionary.h"
#include "core/files/errorlog.h"
#include "core/files/puzzlefile.h"
#include "core/files/textfile.h"
#include "core/generator/batch.h"
#include "core/generator/puzzlemaker.h"
#include "core/model/random.h"
#include "core/model/text.h"
#include "gui/app/busypointer.h"
#include "gui/app/mainwindow.h"
#include "gui/output/printertarget.h"
#include "gui/output/prntform.h"
#include "gui/play/boardpicture.h"
#include "gui/ui/prompter.h"
#include "render/pageimage.h"
#include "render/pdftarget.h"
#include "render/rangeprinter.h"

namespace combwise {
namespace {

QString text(const std::string& value) { return QString::fromStdString(value); }

void letEventsRun() { QCoreApplication::processEvents(); }

// The batch's small progress window: its caption and label show the
// running count.
class BatchProgress : public QWidget {
 public:
  explicit BatchProgress(QWidget* parent) : QWidget(parent, Qt::Tool), m_count(new QLabel(this)) {
    setObjectName("batchprogress");
    m_count->setObjectName("lblbatchcount");
    m_count->setMinimumWidth(180);
    m_count->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_count);
    show(0);
  }
  void show(int count) {
    const QString caption = text(Str(count));
    setWindowTitle(caption);
    m_count->setText("Puzzles made:" + caption);
  }

 private:
  QLabel* m_count;
};

}  // namespace

OutputCommands::OutputCommands(MainWindow& window, OutputServices services)
    : QObject(&window), m_window(window), m_services(std::move(services)), m_batchCount(kBatchCount) {
  setObjectName("outputcommands");
  addActions();
}

OutputCommands::~OutputCommands() = default;

void OutputCommands::setServices(OutputServices services) { m_services = std::move(services); }

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

bool OutputCommands::ready() const {
  return !m_busy && m_window.createEnabled() && m_window.puzzle().PuzzleSize > 0;
}

PagePuzzle OutputCommands::currentPage() const {
  const Settings& settings = m_window.settings();
  PrintLook look;
  look.fontName = text(settings.boardFontName.empty() ? "Arial" : settings.boardFontName);
  look.fontSize = settings.BoardFontSize > 0 ? settings.BoardFontSize : 10;
  look.outlineWidth = settings.OutlineWidth > 0 ? settings.OutlineWidth : 2;
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
  PuzzleState& state = m_window.puzzle();
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
  if (!ready() || state.PuzzleCount <= 0 || state.CollectionPath.empty()) return;
  PrintTarget& target = printer();
  PrntForm form(target.printerName(), text(state.CollectionPath), state.PuzzleCount, m_window.prompter(),
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
  std::unique_ptr<PrintTarget> file =
      m_services.pdfFile ? m_services.pdfFile(path) : std::make_unique<PdfTarget>(path);
  printPuzzleRange(*file, first, last);
}

void OutputCommands::printClues() {
  if (!ready()) return;
  if (m_window.prompter().ShowMessage("Print current clues to printer?", "vbquestion+vbyesno") != kMsgYes) return;
  PrintTarget& target = printer();
  QPainter* painter = target.beginDocument();
  if (!painter) return;
  PrintClueList(*painter, currentPage(), kClueListLeft, kClueListTop);
  target.endDocument();
}

void OutputCommands::cluesToTextFile() {
  if (!ready()) return;
  const QString chosen = m_window.fileChooser().chooseFile(
      {"Select output file", "*.txt", m_banner.productName.empty() ? "Files" : text(m_banner.productName + " Files"),
       text(m_window.programFolder()), "SAVE", {}});
  if (chosen.trimmed().isEmpty()) return;
  const std::string path = withDefaultExtension(chosen.toStdString());
  const PuzzleState& state = m_window.puzzle();
  // The listing replaces its file: never the collection it lists, nor the
  // meanings the clues come from.
  if (outputIsAnInput(path, {state.CollectionPath, m_window.programFolder() + "mean3456.txt"})) {
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

void OutputCommands::randomize() {
  const std::string source = m_window.puzzle().CollectionPath;
  if (m_busy || !m_window.createEnabled() || source.empty() || !randomizedPath(source)) return;
  m_busy = true;
  RandomSource random;
  const RandomizeResult result = randomizeCollection(
      source, random, [this](const std::string& progress) { m_window.setStatus(text(progress)); }, letEventsRun);
  m_busy = false;
  m_window.prompter().notify(text(result.message));
}

void OutputCommands::makeBatch() {
  if (m_busy || !m_window.createEnabled()) return;
  const std::string& folder = m_window.programFolder();
  if (m_window.prompter().ShowMessage("Make " + text(NumberText(m_batchCount)) + " puzzles of size 17 into " +
                                          text(folder + kBatchFile) + "?",
                                      "vbquestion+vbyesno") != kMsgYes)
    return;
  // The batch works on a board and word data of its own, so the puzzle on
  // the screen stays; afterwards its size and dictionary are the ones in use.
  ErrorLog log(folder);
  Board board;
  PuzzleState state;
  Dictionary dictionary(&log);
  Meanings meanings(&log);
  PuzzleMaker maker(board, state, dictionary, meanings);
  BatchProgress progress(&m_window);
  m_busy = true;
  m_window.setCreateEnabled(false);
  LineRunOptions options;
  options.count = m_batchCount;
  const Status made = maker.runBatch(
      folder, options,
      [&progress](int made) {
        progress.show(made);
        letEventsRun();
      },
      [this](const std::string& status) {
        m_window.setStatus(text(status));
        letEventsRun();
      });
  m_busy = false;
  m_window.setCreateEnabled(true);
  progress.close();
  m_window.showSize(kBatchSize);
  m_window.readDictionary(folder + "english3.txt");
  m_window.prompter().notify(made.ok() ? QString("done") : text(made.error));
}

}  // namespace combwise
