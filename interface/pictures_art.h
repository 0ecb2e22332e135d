// The game's painted pictures: the digits, the PLAY faces, the amount rows, the title and the
// icons, all drawn with QPainter on images, so on any thread. (The card faces come from the SVG
// deck: interface/card_faces.h.)
//
// Every function returns an image of the given logical size, rendered at `dpr` device pixels
// per logical pixel (the table's scale times the screen's pixel ratio) and tagged with that
// ratio, so that it stays sharp at every scale and on high-density screens.
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

namespace pics {

// Digit pictures of the amount displays.
enum class DigitColour { Red, Blue, Grey };
constexpr QColor kDisplayWindow{12, 12, 14};  // the dark window the digits stand in
QImage Digit(int digit, DigitColour colour, QSize size, qreal dpr);

// The face of the PLAY button.
QImage PlayFace(const QString& word, bool pressed, QSize size, qreal dpr);

// The title of an amount row: the word in the row's accent colour on a clear ground.
QImage RowTitle(const QString& text, QColor colour, QSize size, qreal dpr);
// The background of an amount row; `windowLeft`..`windowRight` bound the digit window.
QImage RowBackground(QColor accent, int windowLeft, int windowRight, int windowTop, int windowBottom, QSize size,
                     qreal dpr);

// The game's name in the title bar, in one of its two blinking forms (1 or 2).
QImage GameTitle(int form, QSize size, qreal dpr);

// Music on and off.
QImage MusicIcon(bool on, QSize size, qreal dpr);
// The advice marker (a lamp) and the hand of manual selection.
QImage AdviceIcon(QSize size, qreal dpr);
QImage HandIcon(QSize size, qreal dpr);
// The mouse pointer over a card that can be acted on; its tip is at (4, 1).
QImage CardPointer(qreal dpr);

// The two game choices: five cards in a row and a 5 by 5 grid.
QImage ClassicGameIcon(QSize size, qreal dpr);
QImage GridGameIcon(QSize size, qreal dpr);

// Leaving the game, and the two languages as flags.
QImage PowerIcon(QSize size, qreal dpr);
QImage FlagIcon(bool english, QSize size, qreal dpr);

}  // namespace pics
