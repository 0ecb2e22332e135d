#include "interface/pictures_art.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QTransform>
#include <array>
#include <cmath>

#include "interface/canvas.h"

namespace pics {
namespace {

QFont PixelFont(const QString& family, qreal pixels, int weight = QFont::Bold) {
  QFont f(family);
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
  f.setWeight(static_cast<QFont::Weight>(weight));
  f.setStyleStrategy(QFont::PreferAntialias);
  f.setHintingPreference(QFont::PreferNoHinting);
  return f;
}

// The outline of `text` in `font`, centred on `centre`, shrunk if needed to fit `maxWidth`.
QPainterPath TextPath(const QString& text, const QFont& font, QPointF centre, qreal maxWidth, qreal spacing = 0) {
  QFont f = font;
  if (spacing != 0) f.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
  QPainterPath path;
  path.addText(0, 0, f, text);
  QRectF b = path.boundingRect();
  qreal scale = 1;
  if (b.width() > maxWidth) scale = maxWidth / b.width();
  QTransform t;
  t.translate(centre.x(), centre.y());
  t.scale(scale, scale);
  t.translate(-b.center().x(), -b.center().y());
  return t.map(path);
}

}  // namespace

QImage Digit(int digit, DigitColour colour, QSize size, qreal dpr) {
  // Seven segments: a top, b upper right, c lower right, d bottom, e lower left, f upper
  // left, g middle.
  static const std::array<const char*, 10> lit = {"abcdef", "bc",     "abdeg", "abcdg",   "bcfg",
                                                  "acdfg",  "acdefg", "abc",   "abcdefg", "abcdfg"};
  QImage img = Canvas(size, dpr);
  img.fill(kDisplayWindow);
  QPainter p(&img);
  Smooth(p);
  p.scale(size.width() / 16.0, size.height() / 22.0);

  const qreal gap = 0.35;
  auto horizontal = [&](qreal y0) {
    const qreal x1 = 3 + gap, x2 = 13 - gap, yc = y0 + 1;
    QPolygonF poly;
    poly << QPointF(x1, yc) << QPointF(x1 + 1, y0) << QPointF(x2 - 1, y0) << QPointF(x2, yc) << QPointF(x2 - 1, y0 + 2)
         << QPointF(x1 + 1, y0 + 2);
    return poly;
  };
  auto vertical = [&](qreal x0, qreal y1, qreal y2) {
    y1 += gap;
    y2 -= gap;
    const qreal xc = x0 + 1;
    QPolygonF poly;
    poly << QPointF(xc, y1) << QPointF(x0 + 2, y1 + 1) << QPointF(x0 + 2, y2 - 1) << QPointF(xc, y2)
         << QPointF(x0, y2 - 1) << QPointF(x0, y1 + 1);
    return poly;
  };
  const std::array<QPolygonF, 7> segments = {
      horizontal(1),         // a
      vertical(12, 2, 11),   // b
      vertical(12, 11, 20),  // c
      horizontal(19),        // d
      vertical(2, 11, 20),   // e
      vertical(2, 2, 11),    // f
      horizontal(10),        // g
  };

  QColor on;
  switch (colour) {
    case DigitColour::Red: on = QColor(255, 48, 40); break;
    case DigitColour::Blue: on = QColor(64, 150, 255); break;
    case DigitColour::Grey: on = QColor(200, 200, 204); break;
  }
  QColor ghost = on;
  ghost.setAlpha(22);
  QColor glow = on;
  glow.setAlpha(70);

  const QString segs = QString::fromLatin1(lit[static_cast<std::size_t>(digit % 10)]);
  p.setPen(Qt::NoPen);
  for (int s = 0; s < 7; ++s) {
    if (segs.contains(QChar('a' + s))) continue;
    p.setBrush(ghost);
    p.drawPolygon(segments[static_cast<std::size_t>(s)]);
  }
  // A soft halo first, then the lit segment with a brighter core.
  for (int s = 0; s < 7; ++s) {
    if (!segs.contains(QChar('a' + s))) continue;
    p.setPen(QPen(glow, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolygon(segments[static_cast<std::size_t>(s)]);
  }
  p.setPen(Qt::NoPen);
  for (int s = 0; s < 7; ++s) {
    if (!segs.contains(QChar('a' + s))) continue;
    p.setBrush(on);
    p.drawPolygon(segments[static_cast<std::size_t>(s)]);
  }
  p.end();
  return img;
}

QImage PlayFace(const QString& word, bool pressed, QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  // The panel around the button shows in the corners.
  img.fill(QColor(0x70, 0x70, 0x70));
  QPainter p(&img);
  Smooth(p);
  const QRectF outer = QRectF(QPointF(0, 0), QSizeF(size)).adjusted(1.5, 1.5, -1.5, -1.5);
  const qreal radius = size.height() * 0.22;

  // Drop shadow under the released button.
  if (!pressed) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 90));
    p.drawRoundedRect(outer.translated(1.5, 2), radius, radius);
  }
  const QRectF body = pressed ? outer.translated(1, 1.5) : outer;

  // Gold rim.
  QLinearGradient rim(body.topLeft(), body.bottomLeft());
  rim.setColorAt(0, pressed ? QColor(150, 110, 30) : QColor(255, 226, 120));
  rim.setColorAt(1, pressed ? QColor(90, 60, 10) : QColor(160, 100, 10));
  p.setBrush(rim);
  p.setPen(QPen(QColor(40, 20, 0), 1));
  p.drawRoundedRect(body, radius, radius);

  // Red body.
  const QRectF face = body.adjusted(3, 3, -3, -3);
  QLinearGradient fill(face.topLeft(), face.bottomLeft());
  if (pressed) {
    fill.setColorAt(0, QColor(110, 8, 4));
    fill.setColorAt(0.5, QColor(160, 20, 10));
    fill.setColorAt(1, QColor(200, 40, 20));
  } else {
    fill.setColorAt(0, QColor(255, 90, 60));
    fill.setColorAt(0.5, QColor(215, 30, 18));
    fill.setColorAt(1, QColor(140, 10, 6));
  }
  p.setBrush(fill);
  p.setPen(Qt::NoPen);
  p.drawRoundedRect(face, radius - 2, radius - 2);

  // Gloss on the upper half, or the inner shadow of a pressed button.
  if (!pressed) {
    QRectF gloss = face.adjusted(3, 2, -3, -face.height() * 0.52);
    QLinearGradient g(gloss.topLeft(), gloss.bottomLeft());
    g.setColorAt(0, QColor(255, 255, 255, 150));
    g.setColorAt(1, QColor(255, 255, 255, 18));
    p.setBrush(g);
    p.drawRoundedRect(gloss, radius - 4, radius - 4);
  } else {
    QLinearGradient s(face.topLeft(), face.topLeft() + QPointF(0, 8));
    s.setColorAt(0, QColor(0, 0, 0, 120));
    s.setColorAt(1, QColor(0, 0, 0, 0));
    p.setBrush(s);
    p.drawRoundedRect(face, radius - 2, radius - 2);
  }

  // The word, white with a dark edge.
  const QPointF centre = face.center() + QPointF(0, 1);
  const QPainterPath text =
      TextPath(word, PixelFont(QStringLiteral("Liberation Sans"), size.height() * 0.46, QFont::Black), centre,
               face.width() - 16, 1.5);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(60, 0, 0, 160));
  p.drawPath(text.translated(1, 1.5));
  p.setPen(QPen(QColor(90, 10, 0), 1.2));
  p.setBrush(pressed ? QColor(235, 225, 210) : QColor(255, 255, 255));
  p.drawPath(text);
  p.end();
  return img;
}

QImage RowTitle(const QString& text, QColor colour, QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  const QPainterPath path = TextPath(text, PixelFont(QStringLiteral("Liberation Sans"), size.height() * 0.72),
                                     QPointF(size.width() / 2.0, size.height() / 2.0), size.width() - 2, 1);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0, 0, 0, 200));
  p.drawPath(path.translated(0.8, 0.8));
  p.setBrush(colour);
  p.drawPath(path);
  p.end();
  return img;
}

QImage RowBackground(QColor accent, int windowLeft, int windowRight, int windowTop, int windowBottom, QSize size,
                     qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  const QRectF r = QRectF(QPointF(0, 0), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5);
  QLinearGradient g(r.topLeft(), r.bottomLeft());
  g.setColorAt(0, QColor(58, 58, 62));
  g.setColorAt(0.4, QColor(36, 36, 40));
  g.setColorAt(1, QColor(24, 24, 26));
  p.setBrush(g);
  QColor edge = accent;
  edge.setAlpha(150);
  p.setPen(QPen(edge, 1));
  p.drawRoundedRect(r, 6, 6);

  // A thin accent line under the title band.
  QColor line = accent;
  line.setAlpha(90);
  p.setPen(QPen(line, 1));
  p.drawLine(QPointF(8, windowTop - 2.5), QPointF(size.width() - 8, windowTop - 2.5));

  // The recessed digit window.
  const QRectF w(windowLeft, windowTop, windowRight - windowLeft, windowBottom - windowTop);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0, 0, 0));
  p.drawRoundedRect(w.adjusted(-1.5, -1.5, 1.5, 1.5), 3, 3);
  p.setBrush(QColor(90, 90, 96));
  p.drawRoundedRect(w.adjusted(-1.5, -0.5, 1.5, 1.5), 3, 3);
  p.setBrush(kDisplayWindow);
  p.drawRect(w);
  p.end();
  return img;
}

QImage GameTitle(int form, QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  const QPainterPath text =
      TextPath(QStringLiteral("TALVERO"), PixelFont(QStringLiteral("Liberation Serif"), size.height() * 0.95),
               QPointF(size.width() / 2.0, size.height() / 2.0 + 0.5), size.width() - 6, 4);
  const QRectF b = text.boundingRect();
  if (form == 2) {
    // Lit: a warm halo around a pale gold.
    for (int i = 4; i >= 1; --i) {
      p.setPen(QPen(QColor(255, 140, 20, 34), i * 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      p.setBrush(Qt::NoBrush);
      p.drawPath(text);
    }
  }
  QLinearGradient g(b.topLeft(), b.bottomLeft());
  if (form == 2) {
    g.setColorAt(0, QColor(255, 255, 235));
    g.setColorAt(0.5, QColor(255, 236, 140));
    g.setColorAt(1, QColor(255, 190, 60));
  } else {
    g.setColorAt(0, QColor(255, 236, 150));
    g.setColorAt(0.5, QColor(226, 170, 40));
    g.setColorAt(1, QColor(150, 95, 10));
  }
  p.setPen(QPen(form == 2 ? QColor(140, 60, 0) : QColor(70, 40, 0), 1));
  p.setBrush(g);
  p.drawPath(text);
  p.end();
  return img;
}

namespace {
// Two beamed quavers in a 36 by 38 box. The stems stand apart, so that the number of the
// piece, written over the button's centre, sits between them under the beam.
QPainterPath NotesPath() {
  auto head = [](QPointF c) {
    QPainterPath e;
    e.addEllipse(QPointF(0, 0), 5, 3.5);
    QTransform r;
    r.translate(c.x(), c.y());
    r.rotate(-22);
    return r.map(e);
  };
  QPainterPath path = head(QPointF(7.6, 30)).united(head(QPointF(27.6, 27)));
  QPainterPath stems;
  stems.addRect(QRectF(10.6, 7.5, 2.2, 22.5));
  stems.addRect(QRectF(30.6, 4.5, 2.2, 22.5));
  QPainterPath beam;
  beam.moveTo(10.6, 7.5);
  beam.lineTo(32.8, 3.3);
  beam.lineTo(32.8, 8.1);
  beam.lineTo(10.6, 12.3);
  beam.closeSubpath();
  return path.united(stems).united(beam);
}

// A hand with the index finger raised, in a 24 by 24 box; the finger's tip is near (4, 1).
QPainterPath HandPath() {
  QPainterPath p;
  p.addRoundedRect(QRectF(2, 0, 5.2, 14), 2.6, 2.6);      // index finger
  p.addRoundedRect(QRectF(6.4, 7.2, 4.6, 8), 2.3, 2.3);   // middle
  p.addRoundedRect(QRectF(10.2, 8.2, 4.4, 7), 2.2, 2.2);  // ring
  p.addRoundedRect(QRectF(13.8, 9.4, 4, 6.4), 2, 2);      // little finger
  p.addRoundedRect(QRectF(2, 10.5, 15.8, 12.5), 4, 4);    // palm
  QPainterPath thumb;
  thumb.addRoundedRect(QRectF(-2.5, -2, 5, 9), 2.5, 2.5);
  QTransform t;
  t.translate(1.6, 15);
  t.rotate(-40);
  p.addPath(t.map(thumb));
  return p.simplified();
}
}  // namespace

QImage MusicIcon(bool on, QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  p.scale(size.width() / 36.0, size.height() / 38.0);
  const QPainterPath notes = NotesPath();
  p.setPen(QPen(QColor(30, 20, 0, 200), 1.2));
  if (on) {
    QLinearGradient g(0, 4, 0, 34);
    g.setColorAt(0, QColor(250, 205, 90));
    g.setColorAt(1, QColor(170, 105, 10));
    p.setBrush(g);
  } else {
    p.setBrush(QColor(150, 150, 150));
  }
  p.drawPath(notes);
  if (!on) {
    p.setPen(QPen(QColor(40, 0, 0), 5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(5, 34), QPointF(31, 4));
    p.setPen(QPen(QColor(230, 30, 20), 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(5, 34), QPointF(31, 4));
  }
  p.end();
  return img;
}

QImage AdviceIcon(QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  p.scale(size.width() / 32.0, size.height() / 32.0);
  // Rays.
  p.setPen(QPen(QColor(255, 230, 90, 220), 1.6, Qt::SolidLine, Qt::RoundCap));
  for (int a = -150; a <= -30; a += 30) {
    const qreal rad = a * M_PI / 180.0;
    p.drawLine(QPointF(16 + 11.5 * std::cos(rad), 12 + 11.5 * std::sin(rad)),
               QPointF(16 + 15 * std::cos(rad), 12 + 15 * std::sin(rad)));
  }
  // Glass.
  QPainterPath glass;
  glass.addEllipse(QPointF(16, 12), 8.5, 8.5);
  QPainterPath neck;
  neck.addRoundedRect(QRectF(11.5, 15, 9, 7.5), 2, 2);
  glass = glass.united(neck);
  QRadialGradient g(QPointF(13.5, 9), 11);
  g.setColorAt(0, QColor(255, 255, 230));
  g.setColorAt(0.45, QColor(255, 230, 80));
  g.setColorAt(1, QColor(230, 160, 0));
  p.setPen(QPen(QColor(110, 70, 0), 1.1));
  p.setBrush(g);
  p.drawPath(glass);
  // Screw base.
  QLinearGradient m(11, 0, 21, 0);
  m.setColorAt(0, QColor(120, 120, 130));
  m.setColorAt(0.5, QColor(230, 230, 235));
  m.setColorAt(1, QColor(110, 110, 120));
  p.setBrush(m);
  p.setPen(QPen(QColor(50, 50, 55), 0.9));
  p.drawRoundedRect(QRectF(11.5, 22, 9, 6), 1.5, 1.5);
  p.drawLine(QPointF(11.5, 24), QPointF(20.5, 24));
  p.drawLine(QPointF(11.5, 26), QPointF(20.5, 26));
  p.setBrush(QColor(60, 60, 66));
  p.drawRoundedRect(QRectF(13.5, 28, 5, 2.5), 1, 1);
  p.end();
  return img;
}

QImage HandIcon(QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  p.translate(size.width() * 0.14, size.height() * 0.06);
  p.scale(size.width() / 28.0, size.height() / 28.0);
  p.setPen(QPen(QColor(40, 30, 20), 1.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  QLinearGradient g(0, 0, 18, 24);
  g.setColorAt(0, QColor(255, 236, 210));
  g.setColorAt(1, QColor(225, 180, 140));
  p.setBrush(g);
  p.drawPath(HandPath());
  p.end();
  return img;
}

QImage CardPointer(qreal dpr) {
  const QSize size(24, 24);
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  p.translate(0.5, 0.6);
  p.setPen(QPen(Qt::black, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.setBrush(Qt::white);
  p.drawPath(HandPath());
  // Knuckle lines.
  p.setPen(QPen(QColor(0, 0, 0, 150), 0.8));
  p.drawLine(QPointF(7.4, 12), QPointF(7.4, 15));
  p.drawLine(QPointF(11, 12.6), QPointF(11, 15));
  p.drawLine(QPointF(14.6, 13), QPointF(14.6, 15));
  p.end();
  return img;
}

namespace {
const QString kSuitSymbols[4] = {QStringLiteral("\u2663"), QStringLiteral("\u2666"), QStringLiteral("\u2665"),
                                 QStringLiteral("\u2660")};

QColor SuitInk(int suit) { return (suit == 1 || suit == 2) ? QColor(210, 20, 20) : QColor(20, 20, 20); }

// A tiny card: a back, a suit alone, or an index in the top-left corner over a large suit.
void MiniCard(QPainter& p, const QRectF& r, const QString& rank, int suit, bool back = false) {
  const qreal radius = r.width() * 0.16;
  p.setPen(QPen(QColor(40, 40, 40), 0.8));
  if (back) {
    QLinearGradient g(r.topLeft(), r.bottomRight());
    g.setColorAt(0, QColor(230, 40, 40));
    g.setColorAt(1, QColor(140, 0, 0));
    p.setBrush(g);
    p.drawRoundedRect(r, radius, radius);
    p.setPen(QPen(QColor(255, 255, 255, 180), 0.7));
    p.setBrush(Qt::NoBrush);
    const qreal m = r.width() * 0.16;
    p.drawRoundedRect(r.adjusted(m, m, -m, -m), radius * 0.6, radius * 0.6);
    return;
  }
  p.setBrush(QColor(252, 252, 248));
  p.drawRoundedRect(r, radius, radius);
  p.setPen(Qt::NoPen);
  p.setBrush(SuitInk(suit));
  const QFont symbols = PixelFont(QStringLiteral("DejaVu Sans"), r.height() * 0.7);
  if (rank.isEmpty()) {
    p.drawPath(TextPath(kSuitSymbols[suit], symbols, r.center(), r.width() * 0.8));
    return;
  }
  const qreal corner = r.left() + r.width() * 0.24;
  p.drawPath(TextPath(rank, PixelFont(QStringLiteral("Liberation Sans"), r.height() * 0.27),
                      QPointF(corner, r.top() + r.height() * 0.16), r.width() * 0.4));
  p.drawPath(TextPath(kSuitSymbols[suit], PixelFont(QStringLiteral("DejaVu Sans"), r.height() * 0.24),
                      QPointF(corner, r.top() + r.height() * 0.38), r.width() * 0.4));
  p.drawPath(TextPath(kSuitSymbols[suit], PixelFont(QStringLiteral("DejaVu Sans"), r.height() * 0.5),
                      QPointF(r.center().x() + r.width() * 0.1, r.top() + r.height() * 0.66), r.width() * 0.6));
}
}  // namespace

QImage ClassicGameIcon(QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  p.scale(size.width() / 87.0, size.height() / 87.0);
  // A royal flush held as a fan.
  static const char* const ranks[5] = {"10", "J", "Q", "K", "A"};
  const QSizeF card(28, 40);
  const QPointF pivot(43.5, 82);
  for (int i = 0; i < 5; ++i) {
    p.save();
    p.translate(pivot);
    p.rotate(-24 + 12 * i);
    MiniCard(p, QRectF(QPointF(-card.width() / 2, -22 - card.height()), card), QString::fromLatin1(ranks[i]), 2);
    p.restore();
  }
  p.end();
  return img;
}

QImage GridGameIcon(QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  p.scale(size.width() / 87.0, size.height() / 87.0);
  const qreal w = 11, h = 12.6, gx = 2.6, gy = 1.2;
  const qreal left = (87 - (5 * w + 4 * gx)) / 2, top = (87 - (5 * h + 4 * gy)) / 2;
  for (int row = 0; row < 5; ++row) {
    for (int col = 0; col < 5; ++col) {
      const QRectF r(left + col * (w + gx), top + row * (h + gy), w, h);
      const int k = row * 5 + col;
      MiniCard(p, r, QString(), (k * 7 + row) % 4, (k * 11) % 7 == 3);
    }
  }
  // Two of the lines that can be played, in the colour of the lines on the grid.
  p.setPen(QPen(QColor(255, 255, 0, 230), 1.6, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(left - 2, top + h / 2), QPointF(87 - left + 2, top + h / 2));
  p.drawLine(QPointF(left - 1, top - 1), QPointF(87 - left + 1, 87 - top + 1));
  p.end();
  return img;
}

QImage PowerIcon(QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  p.scale(size.width() / 24.0, size.height() / 24.0);
  const QRectF ring(4.5, 5, 15, 15);
  for (int pass = 0; pass < 2; ++pass) {
    const QColor c = pass == 0 ? QColor(60, 0, 0) : QColor(255, 70, 50);
    const qreal w = pass == 0 ? 4.6 : 2.6;
    p.setPen(QPen(c, w, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(ring, 120 * 16, 300 * 16);
    p.drawLine(QPointF(12, 2.5), QPointF(12, 11.5));
  }
  p.end();
  return img;
}

QImage FlagIcon(bool english, QSize size, qreal dpr) {
  QImage img = Canvas(size, dpr);
  QPainter p(&img);
  Smooth(p);
  const QRectF r = QRectF(QPointF(0, 0), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5);
  QPainterPath clip;
  clip.addRoundedRect(r, 2, 2);
  p.setClipPath(clip);
  const qreal w = r.width(), h = r.height();
  if (english) {
    const QColor blue(1, 33, 105), red(200, 16, 46);
    p.fillRect(r, blue);
    p.setPen(QPen(Qt::white, h * 0.2));
    p.drawLine(r.topLeft(), r.bottomRight());
    p.drawLine(r.bottomLeft(), r.topRight());
    p.setPen(QPen(red, h * 0.07));
    p.drawLine(r.topLeft(), r.bottomRight());
    p.drawLine(r.bottomLeft(), r.topRight());
    p.fillRect(QRectF(r.left(), r.center().y() - h * 0.17, w, h * 0.34), Qt::white);
    p.fillRect(QRectF(r.center().x() - h * 0.17, r.top(), h * 0.34, h), Qt::white);
    p.fillRect(QRectF(r.left(), r.center().y() - h * 0.1, w, h * 0.2), red);
    p.fillRect(QRectF(r.center().x() - h * 0.1, r.top(), h * 0.2, h), red);
  } else {
    p.fillRect(QRectF(r.left(), r.top(), w / 3, h), QColor(0, 35, 149));
    p.fillRect(QRectF(r.left() + w / 3, r.top(), w / 3, h), Qt::white);
    p.fillRect(QRectF(r.left() + 2 * w / 3, r.top(), w / 3, h), QColor(237, 41, 57));
  }
  p.setClipping(false);
  p.setPen(QPen(QColor(0, 0, 0, 160), 1));
  p.setBrush(Qt::NoBrush);
  p.drawRoundedRect(r, 2, 2);
  p.end();
  return img;
}

}  // namespace pics
