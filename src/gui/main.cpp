// The game's entry point: reads the command line and opens the main window.
#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <optional>
#include <string>

#include "core/files/programfolder.h"
#include "gui/app/mainwindow.h"
#include "gui/app/screenshot.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Combwise");
  QApplication::setApplicationVersion("1.0");
  QApplication::setStyle("Fusion");

  QCommandLineParser parser;
  parser.setApplicationDescription("Combwise: hexagonal crossword puzzles");
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption home("home", "Use DIR as the program folder (dictionary, meanings, settings).", "DIR");
  const QCommandLineOption screenshot(
      "screenshot", "Start as usual, save the window to FILE (PNG) once the first board is drawn, and exit.", "FILE");
  const QCommandLineOption reveal("reveal", "With --screenshot: fill in the first N hexagons as a player would.", "N");
  parser.addOption(home);
  parser.addOption(screenshot);
  parser.addOption(reveal);
  parser.addPositionalArgument("collection", "With --screenshot: the collection to show.", "[COLLECTION [N]]");
  parser.process(app);

  std::optional<std::string> homeOption;
  if (parser.isSet(home)) {
    if (parser.value(home).isEmpty()) {
      QTextStream(stderr) << "combwise: --home needs a folder\n";
      return 2;
    }
    homeOption = parser.value(home).toStdString();
  }

  combwise::MainWindow window(combwise::programFolder(homeOption));
  if (parser.isSet(screenshot)) {
    const QStringList positional = parser.positionalArguments();
    if (!positional.isEmpty()) {
      const int number = positional.size() > 1 ? positional.at(1).toInt() : 1;
      window.setStartCollection(positional.at(0).toStdString(), number);
    }
    combwise::scheduleScreenshot(window, {parser.value(screenshot), parser.value(reveal).toInt()});
  }
  window.show();
  return QApplication::exec();
}
