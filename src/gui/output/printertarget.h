// Printed pages sent to a printer of the system (CUPS), the default one
// until the user chooses another in the print dialog.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "render/printtarget.h"

namespace combwise {

class PrinterTarget : public PrintTarget {
 public:
  // The system's default printer, or the one named.
  explicit PrinterTarget(const QString& printerName = {});
  ~PrinterTarget() override;

  QString printerName() const override;
  QString choosePrinter(QWidget* parent) override;
  QPainter* beginDocument() override;
  bool newPage() override;
  bool endDocument() override;

  QPrinter& printer() { return *m_printer; }

 private:
  std::unique_ptr<QPrinter> m_printer;
  std::unique_ptr<QPainter> m_painter;
};

}  // namespace combwise
