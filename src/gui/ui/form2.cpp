// Form2: building the options window and its events.
#include "gui/ui/form2.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>
#include <QVBoxLayout>
#include <utility>

#include "core/files/boardoptions.h"
#include "gui/ui/boxcontrol.h"
#include "gui/ui/colpik.h"
#include "gui/ui/prompter.h"
#include "gui/ui/schemepainter.h"

namespace combwise {

namespace {

struct ColourLabelDesign {
  const char* objectName;
  const char* caption;
  const char* toolTip;
};

constexpr std::array<ColourLabelDesign, Form2::kBoardColours> kColourLabels{{
    {"lblBorderColour", "Border", "Set Border Colour; select colour first"},
    {"lblFixedColour", "Fixed letters", "Set Fixed Letters Colour; select colour first"},
    {"lblGridColour", "Grid", "Set Grid Colour; select colour first"},
    {"lblUserColour", "User letters", "Set User Colour; select colour first"},
    {"lblFillColour", "Hex fill", "Set Hex Fill Colour; select colour first"},
}};

SampleClick sampleClick(Qt::MouseButton button) {
  return button == Qt::RightButton ? SampleClick::Right : SampleClick::Left;
}

// The scheme name without its extension: the text before the first ".".
QString listName(const std::string& schemeName) {
  const QString name = QString::fromStdString(schemeName);
  return name.left(name.indexOf('.'));
}

// A hexagon as the board draws it (flat top and bottom, half a cell beyond
// its columns on each side) with the chosen colours, and the width beside it.
QPixmap borderPicture(int width, const QColor& border, const QColor& fill, const QColor& text, const QFont& font,
                      qreal ratio) {
  const QSize size(200, 84);
  QPixmap picture(size * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const double w = 24, h = 30, px = 34, py = 12;
  const QPolygonF hexagon{
      {px, py}, {px - w, py + h}, {px, py + 2 * h}, {px + 2 * w, py + 2 * h}, {px + 3 * w, py + h}, {px + 2 * w, py}};
  painter.setPen(QPen(border, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(fill);
  painter.drawPolygon(hexagon);
  painter.setPen(text);
  painter.setFont(font);
  painter.drawText(QRectF(px + 3 * w + 14, 0, size.width() - px - 3 * w - 14, size.height()),
                   Qt::AlignVCenter | Qt::AlignLeft, QString("Width %1").arg(width));
  return picture;
}

// The board shows Latin capitals: fonts without them (other scripts' fonts)
// or that put other signs on their code points (symbol fonts, which claim
// Latin too) would turn the letters into Greek or pictures.
QStringList latinFontFamilies() {
  QStringList families;
  for (const QString& family : QFontDatabase::families()) {
    const QList<QFontDatabase::WritingSystem> systems = QFontDatabase::writingSystems(family);
    if (systems.contains(QFontDatabase::Latin) && !systems.contains(QFontDatabase::Symbol)) families << family;
  }
  return families;
}

}  // namespace

Form2::Form2(const Settings& settings, const ColourScheme& scheme, QString programFolder, Prompter& prompter,
             QWidget* parent)
    : QDialog(parent),
      m_settings(settings),
      m_scheme(scheme),
      m_pending(scheme),
      m_programFolder(std::move(programFolder)),
      m_prompter(prompter) {
  setObjectName("Form2");
  setWindowTitle("Combwise Options");
  buildControls();
  loadFromWindow();
}

void Form2::buildControls() {
  m_cmbScheme = new QComboBox(this);
  m_cmbScheme->setObjectName("cmbScheme");
  m_cmbScheme->setToolTip("Colour scheme of the windows");
  for (const auto& name : schemeList(schemeFilePath(m_programFolder.toStdString()))) {
    m_cmbScheme->addItem(QString::fromStdString(name));
  }
  connect(m_cmbScheme, &QComboBox::activated, this, [this](int index) { chooseScheme(m_cmbScheme->itemText(index)); });
  auto* lblScheme = new QLabel("Colour &scheme", this);
  lblScheme->setObjectName("lblScheme");
  lblScheme->setBuddy(m_cmbScheme);
  auto* schemeRow = new QHBoxLayout;
  schemeRow->addWidget(lblScheme);
  schemeRow->addWidget(m_cmbScheme, 1);

  auto* fraColours = new QGroupBox("Board colours", this);
  fraColours->setObjectName("fraColours");
  auto* colourGrid = new QGridLayout;
  for (int i = 0; i < kBoardColours; ++i) {
    const auto& design = kColourLabels[static_cast<std::size_t>(i)];
    auto* swatch = new QLabel(fraColours);
    swatch->setObjectName(design.objectName);
    swatch->setToolTip(design.toolTip);
    swatch->setFrameShape(QFrame::Box);
    swatch->setFixedSize(40, 20);
    swatch->setAutoFillBackground(true);
    swatch->setCursor(Qt::PointingHandCursor);
    swatch->setProperty("schemeRole", "keep");
    swatch->installEventFilter(this);
    auto* caption = new QLabel(design.caption, fraColours);
    caption->setToolTip(design.toolTip);
    colourGrid->addWidget(swatch, i % 3, (i / 3) * 2);
    colourGrid->addWidget(caption, i % 3, (i / 3) * 2 + 1);
    m_colourLabels[static_cast<std::size_t>(i)] = swatch;
  }
  colourGrid->setColumnStretch(1, 1);
  colourGrid->setColumnStretch(3, 1);
  m_picker = new ColPik(fraColours);
  auto* colourBox = new QVBoxLayout(fraColours);
  colourBox->addLayout(colourGrid);
  colourBox->addSpacing(6);
  colourBox->addWidget(m_picker);

  auto* fraBorder = new QGroupBox("Hexagon border", this);
  fraBorder->setObjectName("fraBorder");
  m_lblBorder = new QLabel(fraBorder);
  m_lblBorder->setObjectName("lblBorder");
  m_lblBorder->setToolTip("Click to set hexagon border width");
  m_lblBorder->setAlignment(Qt::AlignCenter);
  m_lblBorder->setMinimumSize(220, 90);
  m_lblBorder->setCursor(Qt::PointingHandCursor);
  m_lblBorder->installEventFilter(this);
  auto* borderBox = new QVBoxLayout(fraBorder);
  borderBox->addWidget(m_lblBorder);

  auto* fraFont = new QGroupBox("Board letters", this);
  fraFont->setObjectName("fraFont");
  m_lstFonts = new QListWidget(fraFont);
  m_lstFonts->setObjectName("lstFonts");
  m_lstFonts->setToolTip("Font of the board's letters");
  m_lstFonts->addItems(latinFontFamilies());
  m_lstFonts->setMinimumHeight(110);
  connect(m_lstFonts, &QListWidget::currentTextChanged, this, &Form2::chooseFont);
  // The caption is a fixed sample text; the sample shows the chosen font in it.
  m_lblFont = new QLabel("Courier New", fraFont);
  m_lblFont->setObjectName("lblFont");
  m_lblFont->setToolTip("Left-Rightclick to set font size");
  m_lblFont->setAlignment(Qt::AlignCenter);
  m_lblFont->setMinimumSize(280, 64);
  m_lblFont->setCursor(Qt::PointingHandCursor);
  m_lblFont->installEventFilter(this);
  m_lblFontName = new QLabel(fraFont);
  m_lblFontName->setObjectName("lblFontName");
  m_lblFontName->setAlignment(Qt::AlignCenter);
  auto* fontBox = new QVBoxLayout(fraFont);
  fontBox->addWidget(m_lstFonts, 1);
  fontBox->addWidget(m_lblFont);
  fontBox->addWidget(m_lblFontName);

  m_cmdApply = new BoxControl("Apply", this);
  m_cmdApply->setObjectName("cmdApply");
  m_cmdApply->setToolTipText1("Apply changes");
  connect(m_cmdApply, &BoxControl::click, this, [this](int button) {
    if (button == 1) apply();
  });
  m_cmdExit = new BoxControl("Exit", this);
  m_cmdExit->setObjectName("cmdExit");
  m_cmdExit->setToolTipText1("Close this window");
  connect(m_cmdExit, &BoxControl::click, this, [this](int button) {
    if (button == 1) close();
  });
  auto* buttonRow = new QHBoxLayout;
  buttonRow->addStretch(1);
  buttonRow->addWidget(m_cmdApply);
  buttonRow->addWidget(m_cmdExit);

  auto* fraPlay = new QGroupBox("Play", this);
  fraPlay->setObjectName("fraPlay");
  m_chkCleanBoard = new QCheckBox("Start each puzzle with a clean board", fraPlay);
  m_chkCleanBoard->setObjectName("chkCleanBoard");
  m_chkCleanBoard->setToolTip("Clear your letters whenever another puzzle is shown");
  m_chkNoWordTwice = new QCheckBox("No word twice in a puzzle", fraPlay);
  m_chkNoWordTwice->setObjectName("chkNoWordTwice");
  m_chkNoWordTwice->setToolTip("Created puzzles use each word once only");
  auto* playBox = new QVBoxLayout(fraPlay);
  playBox->addWidget(m_chkCleanBoard);
  playBox->addWidget(m_chkNoWordTwice);

  auto* left = new QVBoxLayout;
  left->addLayout(schemeRow);
  left->addWidget(fraColours);
  left->addWidget(fraBorder);
  left->addWidget(fraPlay);
  left->addStretch(1);
  auto* columns = new QHBoxLayout;
  columns->addLayout(left, 1);
  columns->addWidget(fraFont, 1);
  auto* form = new QVBoxLayout(this);
  form->addLayout(columns, 1);
  form->addLayout(buttonRow);
}

void Form2::loadFromWindow() {
  m_pending = m_scheme;
  m_cmbScheme->setCurrentIndex(m_cmbScheme->findText(listName(m_scheme.name)));
  m_colours = boardColours(m_settings);
  for (int i = 0; i < kBoardColours; ++i) showColour(static_cast<BoardColour>(i));
  m_borderWidth = m_settings.OutlineWidth;
  m_fontSize = m_settings.BoardFontSize;
  m_fontName = QString::fromStdString(m_settings.boardFontName);
  if (const auto found = m_lstFonts->findItems(m_fontName, Qt::MatchFixedString); !found.isEmpty()) {
    const QSignalBlocker quiet(m_lstFonts);
    m_lstFonts->setCurrentItem(found.first());
    m_lstFonts->scrollToItem(found.first(), QAbstractItemView::PositionAtCenter);
  }
  showBorder();
  showFont();
}

QColor Form2::boardColour(BoardColour which) const { return toQColor(m_colours[static_cast<std::size_t>(which)]); }

OptionsChoice Form2::choice() const {
  OptionsChoice choice;
  choice.scheme = m_pending;
  const QString schemeText = m_cmbScheme->currentText();
  if (!schemeText.isEmpty()) choice.scheme.name = (schemeText + ".col").toStdString();
  choice.colours = m_colours;
  choice.outlineWidth = m_borderWidth;
  choice.fontSize = m_fontSize;
  choice.fontName = m_fontName.toStdString();
  return choice;
}

void Form2::setPlayOptions(bool cleanBoard, bool noWordTwice) {
  m_chkCleanBoard->setChecked(cleanBoard);
  m_chkNoWordTwice->setChecked(noWordTwice);
}

bool Form2::cleanBoardChecked() const { return m_chkCleanBoard->isChecked(); }

bool Form2::noWordTwiceChecked() const { return m_chkNoWordTwice->isChecked(); }

void Form2::chooseScheme(const QString& name) {
  DesignedColours designed;
  designed.listBox = toSchemeColour(QApplication::palette("QListWidget").color(QPalette::Base));
  designed.formBrush = toSchemeColour(QApplication::palette(this).color(QPalette::Window));
  const SchemeLoad load = loadOptionsScheme(schemeFilePath(m_programFolder.toStdString()),
                                            (name + ".col").toStdString(), m_pending, designed);
  if (load.message.empty()) {
    // A scheme chosen here brings its own button colour.
    m_pending[ColourScheme::kButtonOverride] = 0;
  } else {
    m_prompter.notify(QString::fromStdString(load.detail.empty() ? load.message : load.message + "\n" + load.detail));
  }
  m_picker->setBackColor(toQColor(load.colour));
}

void Form2::clickColourLabel(BoardColour which) {
  m_colours[static_cast<std::size_t>(which)] = toSchemeColour(m_picker->BackColor());
  showColour(which);
  if (which == kBorder || which == kHexFill) showBorder();
}

void Form2::clickBorder(Qt::MouseButton button) {
  m_borderWidth = nextOutlineWidth(m_borderWidth, sampleClick(button));
  showBorder();
}

void Form2::clickFontSample(Qt::MouseButton button) {
  m_fontSize = nextBoardFontSize(m_fontSize, sampleClick(button));
  showFont();
}

void Form2::chooseFont(const QString& family) {
  if (family.isEmpty()) return;
  m_fontName = family;
  showFont();
}

void Form2::apply() {
  ColourScheme painted = choice().scheme;
  prepareSchemePaint(painted);
  applyScheme(this, painted);
  emit applied();
}

void Form2::showEvent(QShowEvent* event) {
  loadFromWindow();
  applyScheme(this, m_scheme);
  QDialog::showEvent(event);
}

bool Form2::eventFilter(QObject* watched, QEvent* event) {
  // The sample's width text follows the label's text colour.
  if (watched == m_lblBorder && event->type() == QEvent::PaletteChange) showBorder();
  if (event->type() != QEvent::MouseButtonRelease) return QDialog::eventFilter(watched, event);
  const auto* mouse = static_cast<QMouseEvent*>(event);
  auto* label = qobject_cast<QLabel*>(watched);
  if (!label || !label->rect().contains(mouse->position().toPoint())) return false;
  const Qt::MouseButton button = mouse->button();
  if (button != Qt::LeftButton && button != Qt::RightButton) return false;
  if (label == m_lblBorder) {
    clickBorder(button);
  } else if (label == m_lblFont) {
    clickFontSample(button);
  } else {
    for (int i = 0; i < kBoardColours; ++i) {
      if (label == m_colourLabels[static_cast<std::size_t>(i)]) clickColourLabel(static_cast<BoardColour>(i));
    }
  }
  return true;
}

void Form2::showBorder() {
  m_lblBorder->setPixmap(borderPicture(m_borderWidth, boardColour(kBorder), boardColour(kHexFill),
                                       m_lblBorder->palette().color(QPalette::WindowText), m_lblBorder->font(),
                                       devicePixelRatioF()));
  m_lblBorder->setAccessibleName(QString("Border width %1").arg(m_borderWidth));
}

void Form2::showFont() {
  QFont font(m_fontName);
  font.setPointSize(m_fontSize);
  m_lblFont->setFont(font);
  m_lblFontName->setText(QString("%1, %2 pt").arg(m_fontName).arg(m_fontSize));
}

void Form2::showColour(BoardColour which) {
  QLabel* label = m_colourLabels[static_cast<std::size_t>(which)];
  QPalette palette = label->palette();
  palette.setColor(QPalette::Window, boardColour(which));
  label->setPalette(palette);
}

}  // namespace combwise
