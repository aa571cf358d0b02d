// draw-icon SVG SIZE PNG: draws a square icon of SIZE pixels.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    QSvgRenderer drawing(QFile::decodeName(argv[1]));
    const int size = QByteArray(argv[2]).toInt();
    const QString path = QFile::decodeName(argv[3]);
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    const bool saved = QDir().mkpath(QFileInfo(path).path()) && image.save(path, "PNG");
    return drawing.isValid() && saved ? 0 : 1;
}
