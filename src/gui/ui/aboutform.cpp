// AboutForm: a small fixed dialog with one OK button.
#include "gui/ui/aboutform.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "gui/ui/boxcontrol.h"
#include "gui/ui/messageicons.h"

namespace combwise {

AboutForm::AboutForm(QWidget* parent) : QDialog(parent) {
  setObjectName("AboutForm");
  setWindowTitle("About Combwise");

  auto* logo = new QLabel(this);
  logo->setObjectName("logo");
  logo->setPixmap(programLogo(72, devicePixelRatioF()));
  logo->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

  auto* name = new QLabel("Combwise", this);
  QFont nameFont = name->font();
  nameFont.setPointSizeF(nameFont.pointSizeF() * 1.6);
  nameFont.setBold(true);
  name->setFont(nameFont);

  auto* text = new QLabel(description(), this);
  text->setObjectName("description");
  text->setWordWrap(true);
  auto* version = new QLabel(versionText(), this);
  version->setObjectName("version");

  auto* ok = new BoxControl("OK", this);
  ok->setObjectName("cmdok");
  ok->setMinimumWidth(90);
  connect(ok, &BoxControl::click, this, [this](int button) {
    if (button == 1) accept();
  });

  auto* words = new QVBoxLayout;
  words->addWidget(name);
  words->addWidget(text);
  words->addWidget(version);
  words->addStretch();
  auto* top = new QHBoxLayout;
  top->addWidget(logo);
  top->addSpacing(12);
  top->addLayout(words, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 18, 18, 14);
  layout->addLayout(top);
  layout->addSpacing(10);
  layout->addLayout(buttons);

  setFixedWidth(440);
  ok->setFocus();
}

QString AboutForm::description() {
  return "Combwise: hexagonal crossword puzzles. Fill the honeycomb from two clues a hexagon, or make new "
         "puzzles of 7, 10, 17 or 22 hexagons from the dictionary.";
}

QString AboutForm::versionText() {
  return QString("Version %1.%2").arg(COMBWISE_VERSION_MAJOR).arg(COMBWISE_VERSION_MINOR);
}

}  // namespace combwise
