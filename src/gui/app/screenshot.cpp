// Saves the window once the first board is drawn.
#include "gui/app/screenshot.h"

#include <QCoreApplication>
#include <QImage>
#include <QTextStream>
#include <QTimer>

#include "gui/app/mainwindow.h"

namespace combwise {

void revealHexagons(MainWindow& window, int count) { window.paint(window.session().revealHexagons(count)); }

void scheduleScreenshot(MainWindow& window, const ScreenshotRequest& request) {
  auto* poll = new QTimer(&window);
  poll->setInterval(10);
  QObject::connect(poll, &QTimer::timeout, &window, [&window, request, poll] {
    if (!window.startedUp()) return;
    poll->stop();
    if (request.revealHexagons > 0) revealHexagons(window, request.revealHexagons);
    QCoreApplication::processEvents();
    bool saved = window.grab().save(request.file, "PNG");
    if (!saved) QTextStream(stderr) << "Cannot write " << request.file << "\n";
    if (request.saveOptions) {
      const CommandResult options = window.session().saveOptions();
      if (options.status) {
        QTextStream(stderr) << QString::fromStdString(*options.status) << "\n";
        saved = false;
      }
    }
    QCoreApplication::exit(saved ? 0 : 1);
  });
  poll->start();
}

}  // namespace combwise
