// MsgForm: fills the box from the parsed style, lays it out in twips and
// turns button releases and Enter into the result code.
#include "gui/ui/msgform.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include "gui/ui/boxcontrol.h"
#include "gui/ui/messageicons.h"

namespace combwise {

namespace {

// The design, in twips (15 to a pixel on a 96-dpi screen).
constexpr int kLabelLeft = 900;
constexpr int kLabelTop = 240;
constexpr int kLabelWidth = 5100;
constexpr int kButtonWidth = 1200;
constexpr int kButtonHeight = 405;
constexpr int kIconLeft = 240;
constexpr int kIconTop = 180;
constexpr int kIconSize = 480;
// The layout's form height counts the title bar and borders; the window
// manager draws those outside the client area, which is this much smaller.
constexpr int kOutsideClient = 360;
constexpr int kFontPoints = 10;

QString withPlainLineBreaks(QString prompt) {
  prompt.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  prompt.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return prompt;
}

}  // namespace

MsgForm::MsgForm(QWidget* parent) : QDialog(parent) {
  setObjectName("MsgForm");
  setWindowTitle("Combwise Message");
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  setModal(true);
  setAutoFillBackground(true);
  setFont(QFont("Arial", kFontPoints));
  m_buttonColour = palette().color(QPalette::Button);

  for (int i = 0; i < kMessageIconCount; ++i) {
    auto* icon = new QLabel(this);
    icon->setObjectName(QString("icons%1").arg(i));
    icon->setAlignment(Qt::AlignCenter);
    icon->hide();
    m_icons.append(icon);
  }

  m_label = new QLabel(this);
  m_label->setObjectName("Label1");
  m_label->setTextFormat(Qt::PlainText);
  m_label->setWordWrap(true);
  m_label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  m_label->setAutoFillBackground(true);

  for (int i = 0; i < kMessageButtonPlaces; ++i) {
    auto* button = new BoxControl(QString(), this);
    button->setObjectName(QString("cmd%1").arg(i));
    button->installEventFilter(this);
    connect(button, &BoxControl::click, this, [this, i](int) { choose(i); });
    button->hide();
    m_cmd.append(button);
    m_tags.append(0);
  }

  m_text = new QLineEdit(this);
  m_text->setObjectName("Text1");
  m_text->hide();
}

MessageBoxDesign MsgForm::design() { return {kLabelLeft, kLabelTop, kLabelWidth, kButtonWidth, kButtonHeight}; }

double MsgForm::twipsPerPixel() const { return 1440.0 / std::max(1, logicalDpiX()); }

int MsgForm::toPixels(int twips) const { return qRound(twips / twipsPerPixel()); }

int MsgForm::ShowMessage(const QString& prompt, const QString& style) {
  prepareMessage(prompt, style);
  exec();
  return m_result;
}

void MsgForm::prepareMessage(const QString& prompt, const QString& style) {
  m_text->hide();
  applyColoursAndFont(prompt);

  const MessageStyle parsed = parseMessageStyle(style.toStdString());
  const qreal ratio = devicePixelRatioF();
  const int iconPixels = toPixels(kIconSize);
  for (int i = 0; i < kMessageIconCount; ++i) {
    QLabel* icon = m_icons[i];
    icon->setGeometry(toPixels(kIconLeft), toPixels(kIconTop), iconPixels, iconPixels);
    if (parsed.icons[i]) {
      icon->setPixmap(messageIcon(static_cast<MessageIcon>(i), iconPixels, ratio));
      icon->show();
      icon->raise();  // a later icon is drawn over an earlier one
    } else {
      icon->hide();
    }
  }
  for (int i = 0; i < static_cast<int>(parsed.buttons.size()); ++i) {
    m_cmd[i]->setCaption(QString::fromStdString(parsed.buttons[i].caption));
    m_tags[i] = parsed.buttons[i].result;
  }
  arrangeBox(parsed.lastButtonIndex());
}

void MsgForm::setColours(const QColor& button, const QColor& background, const QColor& text) {
  m_buttonColour = button;
  QPalette colours = palette();
  colours.setColor(QPalette::Window, background);
  colours.setColor(QPalette::WindowText, text);
  setPalette(colours);
}

void MsgForm::setSchemeTable(const QList<QColor>& table) { m_schemeTable = table; }

void MsgForm::applyColoursAndFont(const QString& prompt) {
  const QColor black(0, 0, 0);
  if (m_buttonColour.rgb() == black.rgb()) {
    QColor fallback = m_schemeTable.value(4);
    if (!fallback.isValid() || fallback.rgb() == black.rgb()) fallback = m_schemeTable.value(2);
    if (!fallback.isValid() || fallback.rgb() == black.rgb()) fallback = QPalette().color(QPalette::Button);
    m_buttonColour = fallback;
  }
  const QColor background = palette().color(QPalette::Window);
  const QColor text = palette().color(QPalette::WindowText);

  QPalette labelColours = m_label->palette();
  labelColours.setColor(QPalette::Window, background);
  labelColours.setColor(QPalette::WindowText, text);
  m_label->setPalette(labelColours);
  m_label->setFont(font());
  m_label->setText(withPlainLineBreaks(prompt));

  QFont buttonFont(font().family());
  buttonFont.setPointSizeF(std::max(1.0, font().pointSizeF() - 1));
  buttonFont.setBold(font().bold());
  for (BoxControl* button : m_cmd) {
    button->setBackColor(m_buttonColour);
    // Text on the buttons stays readable whatever the scheme's button colour.
    button->setForeColor(m_buttonColour.lightness() < 110 ? QColor(Qt::white) : QColor(Qt::black));
    button->setFont(buttonFont);
  }
}

void MsgForm::arrangeBox(int lastButtonIndex) {
  const double perPixel = twipsPerPixel();
  const QFontMetrics metrics(m_label->font());
  const int labelWidthPixels = toPixels(kLabelWidth);
  const QRect textRect = metrics.boundingRect(QRect(0, 0, labelWidthPixels, 100000), Qt::TextWordWrap,
                                              m_label->text().isEmpty() ? QString(" ") : m_label->text());
  const int textHeight = qRound(textRect.height() * perPixel);

  const MessageBoxLayout layout = arrangeMessageBox(design(), textHeight, lastButtonIndex);
  m_label->setGeometry(toPixels(kLabelLeft), toPixels(kLabelTop), labelWidthPixels, toPixels(layout.labelHeight));

  // Touching buttons: each left edge is the previous one's right edge in
  // pixels, so rounding never opens a gap or makes them overlap.
  const int top = toPixels(layout.buttonTop);
  const int height = toPixels(kButtonHeight);
  for (int i = 0; i < kMessageButtonPlaces; ++i) {
    m_cmd[i]->hide();
    if (i < layout.visibleButtons) {
      const int left = toPixels(layout.buttonLefts[i]);
      const int right = toPixels(layout.buttonLefts[i] + kButtonWidth);
      m_cmd[i]->setGeometry(left, top, right - left, height);
      m_cmd[i]->show();
    }
  }
  setFixedSize(toPixels(layout.formWidth), toPixels(layout.formHeight - kOutsideClient));
}

void MsgForm::choose(int index) {
  m_result = m_tags.value(index);
  done(m_result);
}

bool MsgForm::eventFilter(QObject* watched, QEvent* event) {
  const int index = m_cmd.indexOf(static_cast<BoxControl*>(watched));
  if (index < 0) return QDialog::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      choose(index);
      return true;
    }
    // The arrow keys walk along the row; Tab keeps its usual meaning.
    if (key->key() == Qt::Key_Left || key->key() == Qt::Key_Right) {
      const int step = key->key() == Qt::Key_Left ? -1 : 1;
      BoxControl* next = m_cmd.value(index + step);
      if (next && next->isVisible()) next->setFocus(Qt::TabFocusReason);
      return true;
    }
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) return false;
    return true;  // everything else, Escape and Space included, is swallowed
  }
  if (event->type() == QEvent::KeyRelease) return true;
  return QDialog::eventFilter(watched, event);
}

void MsgForm::keyPressEvent(QKeyEvent* event) { event->accept(); }

void MsgForm::closeEvent(QCloseEvent* event) { event->ignore(); }

void MsgForm::reject() {}

void MsgForm::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  m_cmd.first()->setFocus(Qt::ActiveWindowFocusReason);
}

}  // namespace combwise
