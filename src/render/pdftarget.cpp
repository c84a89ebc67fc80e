// Writes printed pages to a PDF file.
#include "render/pdftarget.h"

#include <QFileInfo>
#include <QPageLayout>

#include "core/files/atomicfile.h"

namespace combwise {

namespace {

// Hands the PDF writer's bytes to the file that takes the target's place
// once complete; a failed write fails every later one.
class AtomicFileDevice : public QIODevice {
 public:
  explicit AtomicFileDevice(AtomicFile& file) : m_file(file) {}
  bool isSequential() const override { return true; }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char* data, qint64 size) override {
    return m_file.write({data, static_cast<std::size_t>(size)}) ? size : -1;
  }

 private:
  AtomicFile& m_file;
};

}  // namespace

PdfTarget::PdfTarget(QString path, QPageSize::PageSizeId paper, int resolution)
    : m_path(std::move(path)), m_paper(paper), m_resolution(resolution) {}

PdfTarget::~PdfTarget() { endDocument(); }

QString PdfTarget::printerName() const { return "PDF file " + QFileInfo(m_path).fileName(); }

QString PdfTarget::choosePrinter(QWidget*) { return {}; }

QPainter* PdfTarget::beginDocument() {
  endDocument();
  m_error.clear();
  // The file is opened here, so a folder that cannot be written is said
  // with its cause before any page is drawn.
  m_file = std::make_unique<AtomicFile>(m_path.toStdString());
  if (const Status opened = m_file->open(); !opened.ok()) {
    m_error = opened.error;
    m_file.reset();
    return nullptr;
  }
  m_device = std::make_unique<AtomicFileDevice>(*m_file);
  m_device->open(QIODevice::WriteOnly);
  m_writer = std::make_unique<QPdfWriter>(m_device.get());
  m_writer->setResolution(m_resolution);
  m_writer->setCreator("Combwise");
  // Positions are measured from the paper's edge, as on a printer used full page.
  m_writer->setPageLayout(QPageLayout(QPageSize(m_paper), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  m_painter = std::make_unique<QPainter>();
  if (!m_painter->begin(m_writer.get())) {
    m_error =
        m_file->failed() ? m_file->error() : "Cannot write " + m_path.toStdString() + ": the PDF cannot be started";
    m_painter.reset();
    m_writer.reset();
    m_device.reset();
    m_file.reset();
    return nullptr;
  }
  return m_painter.get();
}

// A page after a failed write is not worth drawing.
bool PdfTarget::newPage() { return m_writer && m_writer->newPage() && !m_file->failed(); }

bool PdfTarget::endDocument() {
  if (!m_painter) return false;
  const bool ended = m_painter->end();
  m_painter.reset();
  m_writer.reset();
  m_device.reset();
  const Status written = m_file->commit();
  m_file.reset();
  if (!written.ok()) m_error = written.error;
  return ended && written.ok();
}

}  // namespace combwise
