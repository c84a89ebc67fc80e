// The window's output and collection-tool commands: printing the puzzle,
// its solution and its clues, a range of puzzles to a printer or a PDF
// file, the clue listing as a text file, the board picture on the
// clipboard, the randomized copy of a collection and the batch of puzzles.
// It adds its actions to the window's menus; the printer, the PDF files
// and the clipboard come in as small interfaces, real ones by default.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "core/files/cluelisting.h"
#include "gui/output/clipboardsink.h"
#include "render/printedpage.h"
#include "render/printtarget.h"
#include "render/rangeprinter.h"

class QAction;

namespace combwise {

class MainWindow;

struct OutputServices {
  PrintTarget* printer = nullptr;      // null: the system's default printer
  ClipboardSink* clipboard = nullptr;  // null: the system clipboard
  // Opens a PDF file as a printer; null: a PDF writer.
  std::function<std::unique_ptr<PrintTarget>(const QString& path)> pdfFile;
  // Shows a print preview that draws its pages with the function given;
  // null: Qt's print preview window.
  std::function<void(const std::function<void(PrintTarget&)>& draw)> preview;
};

class OutputCommands : public QObject {
  Q_OBJECT

 public:
  explicit OutputCommands(MainWindow& window, OutputServices services = {});
  ~OutputCommands() override;

  // Tests hand in their printer and clipboard here.
  void setServices(OutputServices services);
  // The product name and the maker's site text of the printed headers and
  // the clue listing.
  ListingBanner& banner() { return m_banner; }
  // Puzzles a batch makes (2000).
  void setBatchCount(int count);

  // What a printed page of the current puzzle shows.
  PagePuzzle currentPage() const;

  // The commands.
  void printFileCommand();  // the print range window
  void printCurrentPuzzle();
  void printClues();
  void cluesToTextFile();
  void copyPuzzle();
  void copySolution();
  void randomize();
  void makeBatch();

  // Prints puzzles first..last of the open collection on `target` (as a
  // booklet with `title` when `booklet`), shows the puzzle shown before
  // again and reports the count.
  void printPuzzleRange(PrintTarget& target, int first, int last, bool booklet = false, const QString& title = {});

 private:
  void addActions();
  bool ready() const;  // false while the game is busy or there is no puzzle
  PrintTarget& printer();
  ClipboardSink& clipboard();
  void printToPdf(int first, int last, bool booklet, const QString& title);
  // The pages of first..last drawn on `target`, without reporting; the
  // puzzle shown before is shown again.
  RangeOutcome drawRange(PrintTarget& target, int first, int last, bool booklet, const QString& title);
  void preview(int first, int last, bool booklet, const QString& title);
  // Without a printer: asks whether to save `what` as a PDF file instead
  // and opens the file; null when there is a printer or the user declines.
  std::unique_ptr<PrintTarget> pdfInsteadOfPrinter(const QString& what, bool& declined);
  // One document of `what` on the printer (or, without one, a PDF file the
  // user agrees to): begun, drawn by `draw`, ended; a failure to begin is
  // told.
  void printDocument(const QString& what, const std::function<void(QPainter&, PrintTarget&)>& draw);
  // Asks for a PDF file name (in the folder used last) and opens it.
  std::unique_ptr<PrintTarget> choosePdfFile();
  std::string printChoicesPath() const;

  MainWindow& m_window;
  OutputServices m_services;
  std::unique_ptr<PrintTarget> m_ownPrinter;
  std::unique_ptr<ClipboardSink> m_ownClipboard;
  ListingBanner m_banner;
};

}  // namespace combwise
