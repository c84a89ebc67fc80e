// The real answers to the window's questions and file choices: the
// program's own message box, the platform's plain boxes (title "Combwise")
// and the file-name dialog.
#pragma once

#include <QPointer>

#include "gui/ui/prompter.h"

class QWidget;

namespace combwise {

class MsgForm;

class WindowPrompter : public Prompter {
 public:
  explicit WindowPrompter(QWidget* parent);
  ~WindowPrompter() override;

  int ShowMessage(const QString& prompt, const QString& style) override;
  void notify(const QString& text) override;
  bool confirm(const QString& text) override;

  // The box, made on first use and kept (hidden) between messages; the
  // colour-scheme code paints it through this.
  MsgForm& messageForm();

 private:
  QWidget* m_parent;
  QPointer<MsgForm> m_form;
};

class DialogFileChooser : public FileChooser {
 public:
  explicit DialogFileChooser(QWidget* parent) : m_parent(parent) {}

  QString chooseFile(const FileRequest& request) override;

 private:
  QWidget* m_parent;
};

}  // namespace combwise
