// Form4: the help page in a text browser.
#include "gui/ui/helpform.h"

#include <QDir>
#include <QFileInfo>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

#include "core/files/programfiles.h"

namespace combwise {

Form4::Form4(const QString& programFolder, QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_pagePath(QDir(programFolder).absoluteFilePath(QString::fromLatin1(kHelpPage))),
      m_browser(new QTextBrowser(this)) {
  setObjectName("Form4");
  setWindowTitle("Combwise Help");
  m_browser->setObjectName("helpBrowser");
  m_browser->setOpenExternalLinks(true);
  m_browser->document()->setDocumentMargin(12);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_browser);
  resize(760, 640);
  loadPage();
}

bool Form4::loadPage() {
  if (QFileInfo(m_pagePath).isFile()) {
    m_browser->setSource(QUrl::fromLocalFile(m_pagePath));
    if (!m_browser->toPlainText().trimmed().isEmpty()) return true;
  }
  m_browser->setHtml(QString("<h2>Help is not available</h2>"
                             "<p>The help page could not be found. It should be here:</p>"
                             "<p><code>%1</code></p>"
                             "<p>Reinstalling Combwise puts it back.</p>")
                         .arg(m_pagePath.toHtmlEscaped()));
  return false;
}

}  // namespace combwise
