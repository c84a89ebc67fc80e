// WindowPrompter and DialogFileChooser.
#include "gui/ui/dialogservices.h"

#include <QMessageBox>

#include "gui/ui/fndialog.h"
#include "gui/ui/msgform.h"

namespace combwise {

namespace {
const QString kPlainBoxTitle = QStringLiteral("Combwise");
}

WindowPrompter::WindowPrompter(QWidget* parent) : m_parent(parent) {}

// The box is a child of the parent window when there is one, which then
// deletes it; a box without a parent is ours to delete.
WindowPrompter::~WindowPrompter() {
  if (m_form && !m_parent) delete m_form.data();
}

MsgForm& WindowPrompter::messageForm() {
  if (!m_form) m_form = new MsgForm(m_parent);
  return *m_form;
}

int WindowPrompter::ShowMessage(const QString& prompt, const QString& style) {
  return messageForm().ShowMessage(prompt, style);
}

void WindowPrompter::notify(const QString& text) {
  QMessageBox box(QMessageBox::NoIcon, kPlainBoxTitle, text, QMessageBox::Ok, m_parent);
  box.exec();
}

bool WindowPrompter::confirm(const QString& text) {
  QMessageBox box(QMessageBox::Question, kPlainBoxTitle, text, QMessageBox::Yes | QMessageBox::No, m_parent);
  // The question guards a file that would be replaced: Enter keeps it.
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

QString DialogFileChooser::chooseFile(const FileRequest& request) {
  FNDialog dialog(m_parent);
  dialog.setTitle(request.title);
  if (!request.fileTypes.isEmpty()) dialog.setFileTypes(request.fileTypes);
  if (!request.fileTypesName.isEmpty()) dialog.setFileTypesName(request.fileTypesName);
  dialog.setDefaultDir(request.defaultDir);
  dialog.setDefaultName(request.defaultName);
  return dialog.ShowDialog(request.mode);
}

}  // namespace combwise
