// The game's painted pictures: the digits, the PLAY faces, the amount rows, the title and the
// icons, all drawn with QPainter on the GUI thread. (The card faces come from the SVG deck:
// interface/card_faces.h.)
//
// Every function returns a pixmap of the given logical size, rendered at `dpr` device pixels
// per logical pixel and tagged with that ratio, so that it stays sharp on high-density screens.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace pics {

// Digit pictures of the amount displays.
enum class DigitColour { Red, Blue, Grey };
constexpr QColor kDisplayWindow{12, 12, 14};  // the dark window the digits stand in
QPixmap Digit(int digit, DigitColour colour, QSize size, qreal dpr);

// The face of the PLAY button.
QPixmap PlayFace(const QString& word, bool pressed, QSize size, qreal dpr);

// The title of an amount row: the word in the row's accent colour on a clear ground.
QPixmap RowTitle(const QString& text, QColor colour, QSize size, qreal dpr);
// The background of an amount row; `windowLeft`..`windowRight` bound the digit window.
QPixmap RowBackground(QColor accent, int windowLeft, int windowRight, int windowTop, int windowBottom, QSize size,
                      qreal dpr);

// The game's name in the title bar, in one of its two blinking forms (1 or 2).
QPixmap GameTitle(int form, QSize size, qreal dpr);

// Music on and off.
QPixmap MusicIcon(bool on, QSize size, qreal dpr);
// The advice marker (a lamp) and the hand of manual selection.
QPixmap AdviceIcon(QSize size, qreal dpr);
QPixmap HandIcon(QSize size, qreal dpr);
// The mouse pointer over a card that can be acted on; its tip is at (4, 1).
QPixmap CardPointer(qreal dpr);

// The two game choices: five cards in a row and a 5 by 5 grid.
QPixmap ClassicGameIcon(QSize size, qreal dpr);
QPixmap GridGameIcon(QSize size, qreal dpr);

// Leaving the game, and the two languages as flags.
QPixmap PowerIcon(QSize size, qreal dpr);
QPixmap FlagIcon(bool english, QSize size, qreal dpr);

}  // namespace pics
