// Where the copied board picture goes: the system clipboard in the game, a
// recorder in tests.
#pragma once

#include <QImage>

namespace combwise {

class ClipboardSink {
 public:
  virtual ~ClipboardSink() = default;
  virtual void setImage(const QImage& image) = 0;
};

class SystemClipboard : public ClipboardSink {
 public:
  void setImage(const QImage& image) override;
};

}  // namespace combwise
