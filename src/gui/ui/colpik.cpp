// ColPik: sliders, their values and the swatch kept in step with the colour.
#include "gui/ui/colpik.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

namespace combwise {

ColPik::ColPik(QWidget* parent) : QWidget(parent) {
  setObjectName("ColPik");
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(2);

  const std::array<const char*, 3> names{"Red", "Green", "Blue"};
  for (std::size_t i = 0; i < m_sliders.size(); ++i) {
    const QString name = names[i];
    auto* caption = new QLabel(name, this);
    auto* slider = new QSlider(Qt::Horizontal, this);
    slider->setObjectName("sld" + name);
    slider->setRange(0, 255);
    slider->setPageStep(16);
    slider->setToolTip(name + " part of the colour");
    auto* value = new QLabel("0", this);
    value->setObjectName("lbl" + name + "Value");
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance("0000"));
    grid->addWidget(caption, static_cast<int>(i), 0);
    grid->addWidget(slider, static_cast<int>(i), 1);
    grid->addWidget(value, static_cast<int>(i), 2);
    connect(slider, &QSlider::valueChanged, this, &ColPik::sliderMoved);
    m_sliders[i] = slider;
    m_values[i] = value;
  }
  grid->setColumnStretch(1, 1);

  m_swatch = new QLabel(this);
  m_swatch->setObjectName("lblSwatch");
  m_swatch->setToolTip("The chosen colour");
  m_swatch->setFrameShape(QFrame::Box);
  m_swatch->setMinimumSize(44, 44);
  m_swatch->setAutoFillBackground(true);
  // Window colours must not repaint the swatch.
  m_swatch->setProperty("schemeRole", "keep");
  grid->addWidget(m_swatch, 0, 3, 3, 1);
  showColour();
}

void ColPik::setBackColor(const QColor& colour) {
  const QColor opaque = colour.toRgb();
  const std::array<int, 3> parts{opaque.red(), opaque.green(), opaque.blue()};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const QSignalBlocker quiet(m_sliders[i]);
    m_sliders[i]->setValue(parts[i]);
  }
  sliderMoved();
}

void ColPik::sliderMoved() {
  const QColor colour(m_sliders[0]->value(), m_sliders[1]->value(), m_sliders[2]->value());
  const bool changed = colour != m_colour;
  m_colour = colour;
  showColour();
  if (changed) emit backColorChanged(m_colour);
}

void ColPik::showColour() {
  const std::array<int, 3> parts{m_colour.red(), m_colour.green(), m_colour.blue()};
  for (std::size_t i = 0; i < parts.size(); ++i) m_values[i]->setNum(parts[i]);
  QPalette palette = m_swatch->palette();
  palette.setColor(QPalette::Window, m_colour);
  m_swatch->setPalette(palette);
}

}  // namespace combwise
