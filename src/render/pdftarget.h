// Printed pages written to a PDF file: what "Save as PDF" and the makers'
// tool use, and how the tests print without a printer.
#pragma once

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <memory>

#include "render/printtarget.h"

namespace combwise {

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

 private:
  QString m_path;
  QPageSize::PageSizeId m_paper;
  int m_resolution;
  std::unique_ptr<QPdfWriter> m_writer;
  std::unique_ptr<QPainter> m_painter;
};

}  // namespace combwise
