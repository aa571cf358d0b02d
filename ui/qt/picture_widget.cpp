#include "ui/qt/picture_widget.h"

#include <QPainter>
#include <QSvgRenderer>

// Resources of a static library are known only after this.
static void InitPictures() {
    Q_INIT_RESOURCE(pictures);
}

namespace keplin::qt {
namespace {

// The icon has drawings of its own for small sizes, with fewer and bolder lines.
QString IconSource(int pixels) {
    if (pixels <= 16) return ":/keplin-16.svg";
    return pixels <= 32 ? ":/keplin-32.svg" : ":/keplin.svg";
}

QPixmap Draw(const QString& source, QSize pixels) {
    InitPictures();
    QPixmap pixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(source).render(&painter, QRectF(QPointF(0, 0), pixels));
    return pixmap;
}

}  // namespace

PictureWidget::PictureWidget(const Picture& picture, const Look& look, QWidget* parent)
    : QLabel(parent), picture_(picture), look_(look) {
    ApplyCommon(*this, picture, look.scale);
    setAccessibleName(ToQt(picture.Description));
    Render();
}

void PictureWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, picture_, look_.scale, aspect);
}

void PictureWidget::Render() {
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    const bool icon = picture_.Shows == Picture::Image::Icon;
    QPixmap drawn = Draw(icon ? IconSource(pixels.width()) : ":/getting-started.svg", pixels);
    drawn.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(drawn);
}

void PictureWidget::paintEvent(QPaintEvent* event) {
    if (pixmap(Qt::ReturnByValue).devicePixelRatio() != devicePixelRatioF()) Render();
    QLabel::paintEvent(event);
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addPixmap(Draw(IconSource(size), {size, size}));
    }
    return icon;
}

}  // namespace keplin::qt
