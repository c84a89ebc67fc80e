// The yardstick for start-up time: a bare Qt window of the game's size
// that opens, waits for its first paint, saves itself as a PNG and exits,
// just as `combwise --screenshot` does with the game.
#include <QApplication>
#include <QTimer>
#include <QWidget>

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setStyle("Fusion");
  const QString file = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString("bare.png");
  QWidget window;
  window.setWindowTitle("Bare window");
  window.resize(1180, 760);
  window.show();
  QTimer::singleShot(0, &window, [&] { QApplication::exit(window.grab().save(file, "PNG") ? 0 : 1); });
  return QApplication::exec();
}
