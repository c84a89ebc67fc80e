// The window's questions and file choices go through these two small
// interfaces, so the game can be driven by tests that answer "Yes" or pick a
// file without a human. The real ones show MsgForm, the platform's plain
// message box and the file-name dialog; fakes live with the tests.
#pragma once

#include <QString>

namespace combwise {

// Result codes of a message box.
enum MessageCode { kMsgOk = 1, kMsgCancel = 2, kMsgAbort = 3, kMsgRetry = 4, kMsgIgnore = 5, kMsgYes = 6, kMsgNo = 7 };

class Prompter {
 public:
  virtual ~Prompter() = default;
  // The program's own box, MsgForm: a prompt and a style text such as
  // "vbquestion+vbyesno"; returns the chosen button's result code.
  virtual int ShowMessage(const QString& prompt, const QString& style) = 0;
  // The platform's plain box with one "OK" (the Save and Randomize reports,
  // the batch "done", the options form's missing-scheme notice).
  virtual void notify(const QString& text) = 0;
  // The platform's plain Yes/No question (the overwrite question); true for Yes.
  virtual bool confirm(const QString& text) = 0;
};

// What a file-name dialog is asked for: its title, the pattern ("*.txt")
// and the pattern's name ("Combwise Files"), the starting folder, and the
// action, "OPEN" or "SAVE" in any letter case.
struct FileRequest {
  QString title;
  QString fileTypes;
  QString fileTypesName;
  QString defaultDir;
  QString mode;
  QString defaultName;
};

class FileChooser {
 public:
  virtual ~FileChooser() = default;
  // The chosen full path, or an empty text when the user cancels. The
  // working folder is the same afterwards as before.
  virtual QString chooseFile(const FileRequest& request) = 0;
};

}  // namespace combwise
