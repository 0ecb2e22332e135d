#include "interface/canvas.h"

#include <QPainter>
#include <cmath>

namespace pics {

QImage Canvas(QSize size, qreal dpr) {
  QImage img(QSize(static_cast<int>(std::ceil(size.width() * dpr)), static_cast<int>(std::ceil(size.height() * dpr))),
             QImage::Format_ARGB32_Premultiplied);
  img.setDevicePixelRatio(dpr);
  img.fill(Qt::transparent);
  return img;
}

void Smooth(QPainter& p) {
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  p.setRenderHint(QPainter::SmoothPixmapTransform);
}

}  // namespace pics
