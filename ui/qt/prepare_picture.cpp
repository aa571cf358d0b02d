// prepare-picture SVG NAME WIDTHxHEIGHT...: makes of a drawing what the program can show without
// reading SVG: NAME.strokes, for any size, and NAME-WIDTHxHEIGHT, the pixels for the usual ones.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>

namespace {

// In a square of one by one.
bool SaveStrokes(QSvgRenderer& drawing, const QString& path) {
    QPicture strokes;
    QPainter painter(&strokes);
    drawing.render(&painter, QRectF(0, 0, 1, 1));
    painter.end();
    return strokes.save(path);
}

bool SavePixels(QSvgRenderer& drawing, QSize size, const QString& path) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    QFile file(path);
    const auto* bits = reinterpret_cast<const char*>(image.constBits());
    return file.open(QFile::WriteOnly) && file.write(bits, image.sizeInBytes()) >= 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    QSvgRenderer drawing(QFile::decodeName(argv[1]));
    const QString name = QFile::decodeName(argv[2]);
    bool done = drawing.isValid() && SaveStrokes(drawing, name + ".strokes");
    for (int i = 3; i < argc; ++i) {
        const QList<QByteArray> sides = QByteArray(argv[i]).split('x');
        const QSize size(sides.first().toInt(), sides.last().toInt());
        done = done && SavePixels(drawing, size, name + "-" + argv[i]);
    }
    return done ? 0 : 1;
}
