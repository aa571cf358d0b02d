// draw-icon SIZE PNG SVG...: draws a square icon of SIZE pixels, each drawing over the one before.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char** argv) {
    if (argc < 4) return 2;
    const int size = QByteArray(argv[1]).toInt();
    const QString path = QFile::decodeName(argv[2]);
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (int i = 3; i < argc; ++i) {
        QSvgRenderer drawing(QFile::decodeName(argv[i]));
        if (!drawing.isValid()) return 1;
        drawing.render(&painter);
    }
    painter.end();
    const bool saved = QDir().mkpath(QFileInfo(path).path()) && image.save(path, "PNG");
    return saved ? 0 : 1;
}
