// Form4: the help window. It shows the page "combwise.htm" from the program
// folder; links inside the page move within it, links to the web open in
// the system's browser, and a missing page is said so in the window.
#pragma once

#include <QWidget>

class QTextBrowser;

namespace combwise {

class Form4 : public QWidget {
  Q_OBJECT

 public:
  // programFolder: the folder that holds combwise.htm, with or without a
  // trailing separator.
  explicit Form4(const QString& programFolder, QWidget* parent = nullptr);

  // Reads the page again; false (and a notice in the window) when it is missing.
  bool loadPage();
  QString pagePath() const { return m_pagePath; }
  QTextBrowser* browser() const { return m_browser; }

 private:
  QString m_pagePath;
  QTextBrowser* m_browser;
};

}  // namespace combwise
