// Scheme painting through palettes, so the Fusion style draws every control
// in the scheme's colours with its own shading.
#include "gui/ui/schemepainter.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTextEdit>
#include <QWidget>
#include <cmath>

#include "gui/ui/boxcontrol.h"

namespace combwise {

namespace {

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor blended(const QColor& a, const QColor& b) {
  return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

// A text colour for every colour group; disabled text half-way to the background.
void setText(QPalette& palette, QPalette::ColorRole role, const QColor& background) {
  const QColor text = readableTextOn(background);
  palette.setColor(QPalette::Active, role, text);
  palette.setColor(QPalette::Inactive, role, text);
  palette.setColor(QPalette::Disabled, role, blended(text, background));
}

// Background and text of a plain surface (labels, frames, check boxes).
void paintSurface(QWidget* widget, const QColor& colour) {
  QPalette palette = widget->palette();
  palette.setColor(QPalette::Window, colour);
  setText(palette, QPalette::WindowText, colour);
  widget->setPalette(palette);
  // Check boxes and option buttons would fill and write in the button roles.
  widget->setBackgroundRole(QPalette::Window);
  widget->setForegroundRole(QPalette::WindowText);
  widget->setAutoFillBackground(true);
}

// Lists: the entries' background.
void paintList(QWidget* widget, const QColor& colour) {
  QPalette palette = widget->palette();
  palette.setColor(QPalette::Base, colour);
  palette.setColor(QPalette::AlternateBase, colour.darker(106));
  setText(palette, QPalette::Text, colour);
  widget->setPalette(palette);
}

// Buttons and text boxes: the face and the edit area.
void paintControl(QWidget* widget, const QColor& colour) {
  QPalette palette = widget->palette();
  palette.setColor(QPalette::Button, colour);
  palette.setColor(QPalette::Base, colour);
  setText(palette, QPalette::ButtonText, colour);
  setText(palette, QPalette::Text, colour);
  widget->setPalette(palette);
}

// The window's own background, the shades the style derives from it, and
// the button colour that scroll bars and sliders inherit.
void paintWindow(QWidget* window, const QColor& colour, const QColor& buttons) {
  QPalette palette = window->palette();
  palette.setColor(QPalette::Button, buttons);
  setText(palette, QPalette::ButtonText, buttons);
  palette.setColor(QPalette::Window, colour);
  palette.setColor(QPalette::Light, colour.lighter(150));
  palette.setColor(QPalette::Midlight, colour.lighter(125));
  palette.setColor(QPalette::Mid, colour.darker(130));
  palette.setColor(QPalette::Dark, colour.darker(160));
  setText(palette, QPalette::WindowText, colour);
  window->setPalette(palette);
  window->setAutoFillBackground(true);
}

void paintChild(QWidget* widget, const QColor& background, const QColor& buttons) {
  const QString role = widget->property("schemeRole").toString();
  if (role == "keep") return;
  if (auto* box = qobject_cast<BoxControl*>(widget)) {
    box->setBackColor(buttons);
    box->setForeColor(readableTextOn(buttons));
  } else if (role == "picture" || qobject_cast<QCheckBox*>(widget) || qobject_cast<QRadioButton*>(widget) ||
             qobject_cast<QGroupBox*>(widget)) {
    paintSurface(widget, background);
  } else if (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget) ||
             qobject_cast<QAbstractSpinBox*>(widget) || qobject_cast<QComboBox*>(widget) ||
             qobject_cast<QTextEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget)) {
    paintControl(widget, buttons);
  } else if (qobject_cast<QAbstractItemView*>(widget)) {
    paintList(widget, background);
  } else if (qobject_cast<QLabel*>(widget) || qobject_cast<QFrame*>(widget)) {
    // Scroll areas are frames too; their viewport takes the colour with them.
    paintSurface(widget, background);
  }
}

}  // namespace

QColor toQColor(int colour) { return QColor(redOf(colour), greenOf(colour), blueOf(colour)); }

int toSchemeColour(const QColor& colour) {
  const QColor rgbColour = colour.toRgb();
  return rgb(rgbColour.red(), rgbColour.green(), rgbColour.blue());
}

QColor readableTextOn(const QColor& background) {
  // Contrast ratios against black and white; the larger one wins.
  const double light = luminance(background);
  const double withBlack = (light + 0.05) / 0.05;
  const double withWhite = 1.05 / (light + 0.05);
  return withBlack >= withWhite ? QColor(Qt::black) : QColor(Qt::white);
}

void applyScheme(QWidget* window, const ColourScheme& scheme) {
  ColourScheme settled = scheme;
  const SchemePaint paint = prepareSchemePaint(settled);
  if (paint.formBrush) {
    paintWindow(window, toQColor(*paint.formBrush), toQColor(paint.buttons));
  } else {
    // The designed background; the texts on it still follow it.
    QPalette designed = QApplication::palette(window);
    window->setPalette(designed);
  }
  const QColor background = toQColor(paint.background);
  const QColor buttons = toQColor(paint.buttons);
  for (QWidget* child : window->findChildren<QWidget*>()) {
    // Parts of composite controls (a combo's popup, a list's viewport,
    // a spin box's edit) follow their control.
    QWidget* parent = child->parentWidget();
    if (parent && parent != window &&
        (qobject_cast<QAbstractItemView*>(parent) || qobject_cast<QComboBox*>(parent) ||
         qobject_cast<QAbstractSpinBox*>(parent) || qobject_cast<BoxControl*>(parent))) {
      continue;
    }
    // Other windows owned by this one (the options, the message box) are painted on their own.
    if (child->window() != window) continue;
    paintChild(child, background, buttons);
  }
}

}  // namespace combwise
