// Printed pages written to a PDF file: what "Save as PDF" and the makers'
// tool use, and how the tests print without a printer.
#pragma once

#include <QIODevice>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <memory>
#include <string>

#include "render/printtarget.h"

namespace combwise {

class AtomicFile;

// The file appears only once the whole document is written: a full disk or
// a folder that cannot be written leaves no file (or the old one) behind.
class PdfTarget : public PrintTarget {
 public:
  // Pages of `paper` (A4 unless told) at `resolution` dots per inch, drawn
  // from the paper's edge.
  explicit PdfTarget(QString path, QPageSize::PageSizeId paper = QPageSize::A4, int resolution = 600);
  ~PdfTarget() override;

  QString printerName() const override;
  QString choosePrinter(QWidget* parent) override;
  QPainter* beginDocument() override;
  bool newPage() override;
  bool endDocument() override;

  const QString& path() const { return m_path; }
  // Why the file could not be written, naming it and the cause ("Cannot
  // write D/p.pdf: No space left on device"); empty after a success.
  std::string error() const override { return m_error; }

 private:
  QString m_path;
  QPageSize::PageSizeId m_paper;
  int m_resolution;
  std::string m_error;
  std::unique_ptr<AtomicFile> m_file;
  std::unique_ptr<QIODevice> m_device;
  std::unique_ptr<QPdfWriter> m_writer;
  std::unique_ptr<QPainter> m_painter;
};

}  // namespace combwise
