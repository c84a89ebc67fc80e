// The game's entry point: reads the command line and opens the main window.
// The command line is read before any window system is reached, so --help,
// --version and a mistyped option answer on a terminal without a display.
#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <optional>
#include <string>

#include "core/files/programfolder.h"
#include "gui/app/mainwindow.h"
#include "gui/app/screenshot.h"

namespace {

// The toolkit's own options, taken by QApplication; accepted here so that
// they are not mistaken for unknown ones.
void acceptToolkitOptions(QCommandLineParser& parser) {
  for (const char* name : {"platform", "display", "style", "stylesheet", "qwindowgeometry", "qwindowtitle",
                           "qwindowicon", "platformpluginpath", "platformtheme", "session"}) {
    QCommandLineOption option(name, QString(), "value");
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(option);
  }
  for (const char* name : {"reverse", "widgetcount", "nograb", "dograb", "sync"}) {
    QCommandLineOption option(name);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(option);
  }
}

QStringList argumentsOf(int argc, char* argv[]) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  return arguments;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QString version =
      QStringLiteral("%1.%2.%3").arg(COMBWISE_VERSION_MAJOR).arg(COMBWISE_VERSION_MINOR).arg(COMBWISE_VERSION_PATCH);
  QCoreApplication::setApplicationName("combwise");
  QCoreApplication::setApplicationVersion(version);

  QCommandLineParser parser;
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  parser.setApplicationDescription("Combwise: hexagonal crossword puzzles");
  const QCommandLineOption help({"h", "help"}, "Show this help and exit.");
  const QCommandLineOption showVersion({"v", "version"}, "Show the version and exit.");
  const QCommandLineOption home("home", "Use DIR as the program folder (dictionary, meanings, settings).", "DIR");
  const QCommandLineOption screenshot(
      "screenshot", "Start as usual, save the window to FILE (PNG) once the first board is drawn, and exit.", "FILE");
  const QCommandLineOption reveal("reveal", "With --screenshot: fill in the first N hexagons as a player would.", "N");
  const QCommandLineOption saveOptions("save-options",
                                       "With --screenshot: then save the settings as Save Options does.");
  parser.addOptions({help, showVersion, home, screenshot, reveal, saveOptions});
  acceptToolkitOptions(parser);
  parser.addPositionalArgument("collection", "With --screenshot: the collection to show.", "[COLLECTION [N]]");

  QTextStream out(stdout);
  QTextStream err(stderr);
  if (!parser.parse(argumentsOf(argc, argv))) {
    err << "combwise: " << parser.errorText() << "\nTry 'combwise --help' for the options.\n";
    return 2;
  }
  if (parser.isSet(help)) {
    // Without an application object the parser cannot know the program's
    // name, which is fixed anyway.
    out << parser.helpText().replace("<executable_name>", "combwise");
    return 0;
  }
  if (parser.isSet(showVersion)) {
    out << "combwise " << version << "\n";
    return 0;
  }
  std::optional<std::string> homeOption;
  if (parser.isSet(home)) {
    if (parser.value(home).isEmpty()) {
      err << "combwise: --home needs a folder\n";
      return 2;
    }
    homeOption = parser.value(home).toStdString();
  }

  QApplication app(argc, argv);
  QApplication::setApplicationName("Combwise");
  // Lets the desktop match the window to the menu entry and its icon.
  QGuiApplication::setDesktopFileName("combwise");
  QApplication::setStyle("Fusion");

  combwise::MainWindow window(combwise::programFolder(homeOption));
  if (parser.isSet(screenshot)) {
    const QStringList positional = parser.positionalArguments();
    if (!positional.isEmpty()) {
      const int number = positional.size() > 1 ? positional.at(1).toInt() : 1;
      window.setStartCollection(positional.at(0).toStdString(), number);
    }
    combwise::scheduleScreenshot(window,
                                 {parser.value(screenshot), parser.value(reveal).toInt(), parser.isSet(saveOptions)});
  }
  window.show();
  return QApplication::exec();
}
