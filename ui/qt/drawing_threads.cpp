#include "ui/qt/drawing_threads.h"

#include <QImage>
#include <QPainter>
#include <chrono>

namespace keplin::qt {
namespace {

using namespace std::chrono_literals;

constexpr auto kStart = 1s;   // not while the window comes up
constexpr auto kPause = 10s;  // a third of what ends an idle thread

// A soft edge down so many rows is as much as Qt ever shares out at a time.
void UseAll() {
    QImage image(4, 512, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 255, 128));
    painter.drawPolygon(QPolygonF({{0.3, 0.0}, {3.6, 0.0}, {3.1, 512.0}, {0.7, 512.0}}));
}

}  // namespace

DrawingThreads::DrawingThreads() {
    again_.callOnTimeout(UseAll);
    again_.start(kPause);
    QTimer::singleShot(kStart, &again_, UseAll);
}

}  // namespace keplin::qt
