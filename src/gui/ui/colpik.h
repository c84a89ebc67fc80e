// ColPik: the colour picker of the options window. Three sliders (red,
// green, blue, 0 to 255) and a swatch; the chosen colour is its BackColor.
#pragma once

#include <QColor>
#include <QWidget>
#include <array>

class QLabel;
class QSlider;

namespace combwise {

class ColPik : public QWidget {
  Q_OBJECT

 public:
  explicit ColPik(QWidget* parent = nullptr);

  QColor BackColor() const { return m_colour; }
  // Moves the sliders to the colour; emits backColorChanged when it differs.
  void setBackColor(const QColor& colour);

 signals:
  void backColorChanged(const QColor& colour);

 private:
  void sliderMoved();
  void showColour();

  QColor m_colour{0, 0, 0};
  std::array<QSlider*, 3> m_sliders{};
  std::array<QLabel*, 3> m_values{};
  QLabel* m_swatch = nullptr;
};

}  // namespace combwise
