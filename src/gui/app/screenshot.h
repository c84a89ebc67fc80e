// `combwise --screenshot FILE`: the window starts as usual, and once the
// start step has drawn the first board it is saved as a PNG and the program
// ends. It makes the README picture and lets start-up be timed.
#pragma once

#include <QString>

namespace combwise {

class MainWindow;

struct ScreenshotRequest {
  QString file;
  int revealHexagons = 0;    // the first N hexagons shown as if the player had filled them
  bool saveOptions = false;  // the settings saved as Save Options does, after the picture
};

// Waits for the start step, then saves the window (and the settings when
// asked); the exit status is 0 when everything was written.
void scheduleScreenshot(MainWindow& window, const ScreenshotRequest& request);

// Types the solution letters of the first `count` hexagons as entries.
void revealHexagons(MainWindow& window, int count);

}  // namespace combwise
