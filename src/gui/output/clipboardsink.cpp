// The system clipboard.
#include "gui/output/clipboardsink.h"

#include <QClipboard>
#include <QGuiApplication>

namespace combwise {

void SystemClipboard::setImage(const QImage& image) { QGuiApplication::clipboard()->setImage(image); }

}  // namespace combwise
