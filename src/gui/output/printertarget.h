// Printed pages sent to a printer of the system (CUPS), the default one
// until the user chooses another in the print dialog.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "render/printtarget.h"

namespace combwise {

// Sets the printer's paper to the one the printer is set up with.
void usePrintersOwnPaper(QPrinter& printer);

class PrinterTarget : public PrintTarget {
 public:
  // The system's default printer, or the one named.
  explicit PrinterTarget(const QString& printerName = {});
  // Draws on a printer someone else owns (the print preview's).
  explicit PrinterTarget(QPrinter& printer);
  ~PrinterTarget() override;

  QString printerName() const override;
  QString choosePrinter(QWidget* parent) override;
  QPainter* beginDocument() override;
  bool newPage() override;
  bool endDocument() override;
  QMarginsF printableMargins() const override;

  QPrinter& printer() { return *m_printer; }

 private:
  std::unique_ptr<QPrinter> m_own;
  QPrinter* m_printer = nullptr;
  std::unique_ptr<QPainter> m_painter;
};

}  // namespace combwise
