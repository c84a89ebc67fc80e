// The pdf command: the pages the game's range printing makes (each puzzle's
// sheet with its small solved board, and optionally its clue listing on the
// pages after it), or the booklet for handing out, drawn by the game's own
// page code into a PDF file. Qt runs offscreen, so no display is needed.
#include <QGuiApplication>
#include <memory>
#include <optional>
#include <ostream>

#include "cli/args.h"
#include "cli/commands.h"
#include "core/files/config.h"
#include "core/files/dictionary.h"
#include "core/files/errorlog.h"
#include "core/files/puzzlefile.h"
#include "core/files/textfile.h"
#include "core/model/text.h"
#include "core/play/printrange.h"
#include "render/boardpainter.h"
#include "render/bookletprinter.h"
#include "render/pdftarget.h"
#include "render/rangeprinter.h"

namespace combwise::cli {
namespace {

constexpr const char* kPdfHelp =
    "Usage: combwise-cli pdf FILE RANGE --output OUT.pdf [--clues] [--paper A4|Letter]\n"
    "       combwise-cli pdf FILE RANGE --output OUT.pdf --booklet [--title T] [--paper A4|Letter]\n"
    "\n"
    "Prints puzzles of the collection FILE to the PDF file OUT.pdf, one page\n"
    "each: the puzzle to solve with its solved board below, as the game\n"
    "prints them. RANGE is N, N-M or all; a range ending past the last puzzle\n"
    "stops there. --clues adds each puzzle's clue listing on the pages after it.\n"
    "\n"
    "--booklet prints a booklet for handing out instead: a page for each puzzle\n"
    "with its board and its clues, headed by the title T (default \"Combwise\n"
    "puzzles\") and the puzzle's number, then the answer keys.\n"
    "--paper chooses the paper (default A4).\n"
    "The letter font, its size and the border width come from the program\n"
    "folder's configuration.\n";

// A Qt application for the drawing, made offscreen unless one is running.
class OffscreenQt {
 public:
  OffscreenQt() {
    if (QCoreApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    m_app = std::make_unique<QGuiApplication>(m_argc, m_argv);
  }

 private:
  int m_argc = 1;
  char m_name[14] = "combwise-cli";
  char* m_argv[2] = {m_name, nullptr};
  std::unique_ptr<QGuiApplication> m_app;
};

std::optional<QPageSize::PageSizeId> paperOf(const std::string& name) {
  const QString paper = QString::fromStdString(name);
  if (paper.compare("A4", Qt::CaseInsensitive) == 0) return QPageSize::A4;
  if (paper.compare("Letter", Qt::CaseInsensitive) == 0) return QPageSize::Letter;
  return std::nullopt;
}

// configFolder: the folder that holds the configuration in use.
PrintLook lookOf(const std::string& configFolder) {
  Settings settings;
  ReadcfgFile(configFolder, settings);
  PrintLook look;
  if (!settings.boardFontName.empty()) look.fontName = QString::fromStdString(settings.boardFontName);
  if (settings.BoardFontSize > 0) look.fontSize = settings.BoardFontSize;
  if (settings.OutlineWidth > 0) look.outlineWidth = settings.OutlineWidth;
  look.wrapFont = boardFont(look.fontName, look.fontSize);
  return look;
}

}  // namespace

int runPdf(Context& context, const Arguments& args) {
  ParsedArgs parsed = parseArgs(args, {"--output", "--title", "--paper"}, {"--clues", "--booklet", "--help"});
  if (parsed.has("--help")) {
    context.out << kPdfHelp;
    return 0;
  }
  const auto output = parsed.value("--output");
  if (parsed.error.empty() && parsed.positional.size() != 2) parsed.error = "give a collection FILE and a RANGE";
  if (parsed.error.empty() && (!output || output->empty())) parsed.error = "--output is required";
  const std::string paperName = parsed.value("--paper").value_or("A4");
  const std::optional<QPageSize::PageSizeId> paper = paperOf(paperName);
  if (parsed.error.empty() && !paper) parsed.error = "--paper must be A4 or Letter, not " + paperName;
  if (parsed.error.empty() && parsed.has("--booklet") && parsed.has("--clues"))
    parsed.error = "--booklet has the clues on its pages already; leave out --clues";
  if (parsed.error.empty() && parsed.value("--title") && !parsed.has("--booklet"))
    parsed.error = "--title is for --booklet";
  if (!parsed.error.empty()) {
    context.err << "combwise-cli pdf: " << parsed.error << "\n\n" << kPdfHelp;
    return 2;
  }
  const std::string& path = parsed.positional[0];
  const int count = countPuzzles(path);
  if (count == 0) {
    const auto reason = unreadableReason(path);
    context.err << "combwise-cli pdf: " << (reason ? *reason : path + " holds no puzzles") << "\n";
    return 1;
  }
  const PrintRangeCheck range = parseToolRange(parsed.positional[1], count);
  if (!range.ok()) {
    context.err << "combwise-cli pdf: " << range.message << "\n";
    return 2;
  }
  if (outputIsAnInput(*output, {path, context.meaningsPath()})) {
    context.err << "combwise-cli pdf: " << *output << " is an input of this command; it is not overwritten\n";
    return 1;
  }

  OffscreenQt qt;
  ErrorLog log(context.errorLogFolder());
  Meanings meanings(&log);
  Board board;
  PuzzleState state;
  state.PuzzleCount = count;
  const PrintLook look = lookOf(context.files.readFolder(kConfigFile));
  const PageLoader load = [&](int n) -> std::optional<PagePuzzle> {
    const PuzzleReadResult read = readPuzzle(path, n, board, state, ClueSource{&meanings, context.meaningsPath(), {}});
    if (!read.loaded()) {
      context.err << "combwise-cli pdf: " << readFailure(path, read) << " (skipped)\n";
      return std::nullopt;
    }
    return PagePuzzle{board, state, look};
  };
  PdfTarget pdf(QString::fromStdString(*output), *paper);
  const int first = range.range->first;
  const int last = range.range->last;
  const RangeOutcome printed =
      parsed.has("--booklet") ? PrintBooklet(pdf, first, last, count, load,
                                             QString::fromStdString(parsed.value("--title").value_or(kBookletTitle)))
                              : PrintPuzzleRange(pdf, first, last, count, load, parsed.has("--clues"));
  if (!printed.opened || !printed.written) {
    // Nothing was left behind: the file appears only when written in full.
    context.err << "combwise-cli pdf: " << (pdf.error().empty() ? "Cannot write " + *output : pdf.error()) << "\n";
    return 1;
  }
  context.out << NumberText(printed.printed) << " puzzles printed to " << *output << "\n";
  return printed.printed > 0 ? 0 : 1;
}

}  // namespace combwise::cli
