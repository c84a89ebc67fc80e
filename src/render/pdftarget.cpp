// Writes printed pages to a PDF file.
#include "render/pdftarget.h"

#include <QFileInfo>
#include <QPageLayout>

namespace combwise {

PdfTarget::PdfTarget(QString path, QPageSize::PageSizeId paper, int resolution)
    : m_path(std::move(path)), m_paper(paper), m_resolution(resolution) {}

PdfTarget::~PdfTarget() { endDocument(); }

QString PdfTarget::printerName() const { return "PDF file " + QFileInfo(m_path).fileName(); }

QString PdfTarget::choosePrinter(QWidget*) { return {}; }

QPainter* PdfTarget::beginDocument() {
  endDocument();
  m_writer = std::make_unique<QPdfWriter>(m_path);
  m_writer->setResolution(m_resolution);
  m_writer->setCreator("Combwise");
  // Positions are measured from the paper's edge, as on a printer used full page.
  m_writer->setPageLayout(QPageLayout(QPageSize(m_paper), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  m_painter = std::make_unique<QPainter>();
  if (!m_painter->begin(m_writer.get())) {
    m_painter.reset();
    m_writer.reset();
    return nullptr;
  }
  return m_painter.get();
}

bool PdfTarget::newPage() { return m_writer && m_writer->newPage(); }

bool PdfTarget::endDocument() {
  if (!m_painter) return false;
  const bool ended = m_painter->end();
  m_painter.reset();
  m_writer.reset();
  return ended;
}

}  // namespace combwise
