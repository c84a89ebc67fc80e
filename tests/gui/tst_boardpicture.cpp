// The board picture as the player sees it: the letter under the selection
// marker stays readable. Where the outlines lie is the board scene's test.
#include <QtTest>

#include "gui/play/boardpicture.h"

namespace combwise {

class TestBoardPicture : public QObject {
  Q_OBJECT

  // A size-7 board at 15 twips a pixel, zoomed large enough for its pixels
  // to be told apart.
  struct Picture {
    Picture() {
      setUpPuzzle(board, state, 7);
      layout = LayOutBoard({7, board.rows(), board.cols(), 900, 1500, 15, 15});
      picture.applyLayout();
      BoardView view;
      view.font = boardFont("DejaVu Sans", 40);
      view.colours.fill = QColor(250, 250, 250);
      view.colours.entries = QColor(10, 100, 10);
      picture.setView(view);
    }
    Board board;
    PuzzleState state;
    BoardLayout layout;
    BoardPicture picture{board, state, layout};
  };

  // Pixels close (summed channel difference) to a colour.
  static bool near(QRgb pixel, const QColor& colour) {
    return std::abs(qRed(pixel) - colour.red()) + std::abs(qGreen(pixel) - colour.green()) +
               std::abs(qBlue(pixel) - colour.blue()) <
           90;
  }

 private slots:
  void theLetterUnderTheMarkerStaysReadable() {
    Picture p;
    p.state.Entries.at(3, 8).assign(1, 'W');
    const QImage plain = p.picture.grab().toImage();
    p.picture.showMarkerAt(3, 8);
    const QImage marked = p.picture.grab().toImage();
    const QRect marker = p.picture.marker()->geometry();
    QVERIFY(marker.width() >= 20);

    // Inside the marker's frame, the letter's strokes are where they were
    // and the space between them is still light.
    const QColor entry = p.picture.view().colours.entries;
    const int inset = marker.width() / 5;
    int letter = 0;
    int agree = 0;
    int total = 0;
    for (int y = marker.top() + inset; y <= marker.bottom() - inset; ++y) {
      for (int x = marker.left() + inset; x <= marker.right() - inset; ++x) {
        const bool wasLetter = near(plain.pixel(x, y), entry);
        letter += wasLetter ? 1 : 0;
        agree += wasLetter == near(marked.pixel(x, y), entry) ? 1 : 0;
        ++total;
      }
    }
    QVERIFY2(letter > total / 20, "the letter reaches under the marker");
    QVERIFY2(letter < total * 9 / 10, "the letter leaves space between its strokes");
    QVERIFY2(agree >= total * 95 / 100, qPrintable(QString("%1 of %2 pixels kept").arg(agree).arg(total)));
  }
};

}  // namespace combwise

QTEST_MAIN(combwise::TestBoardPicture)
#include "tst_boardpicture.moc"
