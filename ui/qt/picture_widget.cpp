#include "ui/qt/picture_widget.h"

#include <QPainter>
#include <QPicture>
#include <QResource>

// Resources of a static library are known only after this.
static void InitPictures() {
    Q_INIT_RESOURCE(pictures);
}

namespace keplin::qt {
namespace {

// The icon has drawings of its own for small sizes, with fewer and bolder lines.
QString IconName(int pixels) {
    if (pixels <= 16) return ":/keplin-16";
    return pixels <= 32 ? ":/keplin-32" : ":/keplin";
}

QPixmap DrawStrokes(const QString& name, QSize pixels) {
    QPicture strokes;
    strokes.load(name + ".strokes");
    QPixmap pixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.scale(pixels.width(), pixels.height());
    painter.drawPicture(0, 0, strokes);
    return pixmap;
}

// From the pixels where they were prepared for this size; these stay where they are.
QPixmap Draw(const QString& name, QSize pixels) {
    InitPictures();
    const QResource prepared(
        QString("%1-%2x%3").arg(name).arg(pixels.width()).arg(pixels.height()));
    if (!prepared.isValid()) return DrawStrokes(name, pixels);
    return QPixmap::fromImage(QImage(prepared.data(), pixels.width(), pixels.height(),
                                     QImage::Format_ARGB32_Premultiplied));
}

}  // namespace

PictureWidget::PictureWidget(const Picture& picture, const Look& look, QWidget* parent)
    : QLabel(parent), picture_(picture), look_(look) {
    SetUp(*this, picture, look.scale);
    Render();
}

void PictureWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, picture_, look_.scale, aspect);
}

void PictureWidget::Render() {
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    const bool icon = picture_.Shows == Picture::Image::Icon;
    QPixmap drawn = Draw(icon ? IconName(pixels.width()) : ":/getting-started", pixels);
    drawn.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(drawn);
}

void PictureWidget::paintEvent(QPaintEvent* event) {
    if (pixmap(Qt::ReturnByValue).devicePixelRatio() != devicePixelRatioF()) Render();
    QLabel::paintEvent(event);
}

// Where a larger one is shown the desktop takes it from its own theme, by the desktop entry.
QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        icon.addPixmap(Draw(IconName(size), {size, size}));
    }
    return icon;
}

}  // namespace keplin::qt
