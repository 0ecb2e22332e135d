// The surface every picture of the game is drawn on: an image of a logical size rendered at
// `dpr` device pixels per logical pixel and tagged with that ratio, so that it stays sharp on
// high-density screens.
#pragma once

#include <QImage>
#include <QSize>

class QPainter;

namespace pics {

// A transparent image of `size` logical pixels at `dpr`; painters on it work in logical
// pixels.
QImage Canvas(QSize size, qreal dpr);
// Antialiased shapes, text and scaled pictures.
void Smooth(QPainter& p);

}  // namespace pics
