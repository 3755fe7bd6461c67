// Draws the sizes of an icon that desktops ask for from its one drawing, as the packages are built.
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <array>
#include <cstdio>

namespace {

constexpr std::array<int, 8> Sides{16, 22, 24, 32, 48, 64, 128, 256};

bool DrawIcon(QSvgRenderer &drawing, int side, const QString &file) {
  QImage icon(side, side, QImage::Format_ARGB32);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  drawing.render(&painter);
  painter.end();
  return icon.save(file);
}

} // namespace

// Leaves FOLDER/16.png, FOLDER/22.png and so on.
int main(int argc, char *argv[]) {
  if (argc != 3) {
    std::fputs("Usage: tessoro-icons DRAWING FOLDER\n", stderr);
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  const QDir folder(QString::fromLocal8Bit(argv[2]));
  if (!drawing.isValid() || !folder.mkpath(QStringLiteral("."))) {
    std::fprintf(stderr, "tessoro-icons: %s into %s doesn't go\n", argv[1], argv[2]);
    return 1;
  }
  for (const int side : Sides) {
    if (!DrawIcon(drawing, side, folder.filePath(QStringLiteral("%1.png").arg(side)))) {
      std::fprintf(stderr, "tessoro-icons: size %d can't be written\n", side);
      return 1;
    }
  }
  return 0;
}
