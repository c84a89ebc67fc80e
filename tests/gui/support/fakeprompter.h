// Scripted answers for the window's questions and file dialogs: each call is
// recorded, and the answer is taken from a queue (or a default).
#pragma once

#include <QQueue>
#include <QString>
#include <QStringList>

#include "gui/ui/prompter.h"

namespace combwise {

class FakePrompter : public Prompter {
 public:
  struct Asked {
    QString prompt;
    QString style;
  };

  int ShowMessage(const QString& prompt, const QString& style) override {
    messages.append({prompt, style});
    return answers.isEmpty() ? defaultAnswer : answers.dequeue();
  }
  void notify(const QString& text) override { notices.append(text); }
  bool confirm(const QString& text) override {
    confirmations.append(text);
    return confirmAnswer;
  }

  QList<Asked> messages;
  QStringList notices;
  QStringList confirmations;
  QQueue<int> answers;
  int defaultAnswer = kMsgOk;
  bool confirmAnswer = true;
};

class FakeFileChooser : public FileChooser {
 public:
  QString chooseFile(const FileRequest& request) override {
    requests.append(request);
    return paths.isEmpty() ? QString() : paths.dequeue();
  }

  QList<FileRequest> requests;
  QQueue<QString> paths;  // an empty queue answers as a cancelled dialog
};

}  // namespace combwise
