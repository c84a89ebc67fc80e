// Prints through Qt's printing support on the system's printers.
#include "gui/output/printertarget.h"

#include <QPageLayout>
#include <QPrinterInfo>

#include "gui/output/printerchooser.h"

namespace combwise {

void usePrintersOwnPaper(QPrinter& printer) {
  // Qt keeps the paper of the printer chosen before when the new one takes
  // it too; the pages are laid out for the paper the printer is set up with.
  const QPageSize paper = QPrinterInfo(printer).defaultPageSize();
  if (paper.isValid()) printer.setPageSize(paper);
}

PrinterTarget::PrinterTarget(const QString& printerName)
    : m_own(std::make_unique<QPrinter>(QPrinter::HighResolution)), m_printer(m_own.get()) {
  if (!printerName.isEmpty()) m_printer->setPrinterName(printerName);
  // Printers installed without a default one: the first will do, rather
  // than saying there is none.
  const QStringList installed = QPrinterInfo::availablePrinterNames();
  if (m_printer->printerName().isEmpty() && !installed.isEmpty()) m_printer->setPrinterName(installed.first());
  usePrintersOwnPaper(*m_printer);
  m_printer->setDocName("Combwise");
  // The page positions are measured from the paper's edge.
  m_printer->setFullPage(true);
}

PrinterTarget::PrinterTarget(QPrinter& printer) : m_printer(&printer) { m_printer->setFullPage(true); }

PrinterTarget::~PrinterTarget() { endDocument(); }

QString PrinterTarget::printerName() const { return m_printer->printerName(); }

QString PrinterTarget::choosePrinter(QWidget* parent) {
  PrinterChooser chooser(QPrinterInfo::availablePrinterNames(), m_printer->printerName(), parent);
  if (chooser.exec() != QDialog::Accepted || chooser.chosen().isEmpty()) return {};
  m_printer->setPrinterName(chooser.chosen());
  usePrintersOwnPaper(*m_printer);
  m_printer->setFullPage(true);
  return m_printer->printerName();
}

QMarginsF PrinterTarget::printableMargins() const {
  QPageLayout layout = m_printer->pageLayout();
  layout.setUnits(QPageLayout::Point);
  return layout.minimumMargins() * 20;  // twips
}

QPainter* PrinterTarget::beginDocument() {
  endDocument();
  m_painter = std::make_unique<QPainter>();
  if (!m_painter->begin(m_printer)) {
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
