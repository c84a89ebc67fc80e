// Prints through Qt's printing support on the system's printers.
#include "gui/output/printertarget.h"

#include <QPrintDialog>

namespace combwise {

PrinterTarget::PrinterTarget(const QString& printerName)
    : m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
  if (!printerName.isEmpty()) m_printer->setPrinterName(printerName);
  m_printer->setDocName("Combwise");
  // The page positions are measured from the paper's edge.
  m_printer->setFullPage(true);
}

PrinterTarget::~PrinterTarget() { endDocument(); }

QString PrinterTarget::printerName() const { return m_printer->printerName(); }

QString PrinterTarget::choosePrinter(QWidget* parent) {
  QPrintDialog dialog(m_printer.get(), parent);
  dialog.setWindowTitle("Select a printer");
  dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize);
  if (dialog.exec() != QDialog::Accepted) return {};
  m_printer->setFullPage(true);
  return m_printer->printerName();
}

QPainter* PrinterTarget::beginDocument() {
  endDocument();
  m_painter = std::make_unique<QPainter>();
  if (!m_painter->begin(m_printer.get())) {
    m_painter.reset();
    return nullptr;
  }
  return m_painter.get();
}

bool PrinterTarget::newPage() { return m_painter && m_printer->newPage(); }

bool PrinterTarget::endDocument() {
  if (!m_painter) return false;
  const bool ended = m_painter->end();
  m_painter.reset();
  return ended;
}

}  // namespace combwise
