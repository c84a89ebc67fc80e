// The game's entry point: reads the command line and opens the main window.
#include <QApplication>
#include <QCommandLineParser>
#include <optional>
#include <string>

#include "core/files/programfolder.h"
#include "gui/app/mainwindow.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Combwise");
  QApplication::setApplicationVersion("1.0");

  QCommandLineParser parser;
  parser.setApplicationDescription("Combwise: hexagonal crossword puzzles");
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption home("home", "Use DIR as the program folder (dictionary, meanings, settings).", "DIR");
  parser.addOption(home);
  parser.process(app);

  std::optional<std::string> homeOption;
  if (parser.isSet(home)) homeOption = parser.value(home).toStdString();

  combwise::MainWindow window(combwise::programFolder(homeOption));
  window.show();
  return QApplication::exec();
}
