// Renders TALVERO's SVG icon as square PNG pictures for the icon theme, at build time.
// Usage: talvero-render-icon ICON.svg OUTPUT_DIR SIZE... (writes OUTPUT_DIR/SIZExSIZE.png)
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "usage: talvero-render-icon ICON.svg OUTPUT_DIR SIZE...\n");
    return 2;
  }
  // No application object: the picture has no text, and the raster painter needs no display.
  QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
  if (!svg.isValid()) {
    std::fprintf(stderr, "talvero-render-icon: %s is no SVG picture\n", argv[1]);
    return 1;
  }
  for (int i = 3; i < argc; ++i) {
    const int size = std::atoi(argv[i]);
    if (size <= 0) {
      std::fprintf(stderr, "talvero-render-icon: %s is no size\n", argv[i]);
      return 2;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    svg.render(&painter);
    painter.end();
    const QString out = QStringLiteral("%1/%2x%2.png").arg(QString::fromLocal8Bit(argv[2])).arg(size);
    if (!image.save(out, "PNG")) {
      std::fprintf(stderr, "talvero-render-icon: cannot write %s\n", qPrintable(out));
      return 1;
    }
  }
  return 0;
}
