#include "ui/qt/drawing_threads.h"

#include <QImage>
#include <QPainter>
#include <array>
#include <chrono>
#include <system_error>
#include <thread>

namespace keplin::qt {
namespace {

using namespace std::chrono_literals;

constexpr auto kStart = 1s;   // not while the window comes up
constexpr auto kPause = 10s;  // a third of what ends an idle thread
constexpr std::size_t kMost = 4;

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

// Whether the system has threads left for that.
bool CanBeMade() {
    try {
        std::array<std::jthread, kMost> threads;
        for (std::jthread& thread : threads)
            thread = std::jthread([] { std::this_thread::sleep_for(1ms); });
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

}  // namespace

DrawingThreads::DrawingThreads() {
    again_.callOnTimeout([this] { Keep(); });
    again_.start(kPause);
    QTimer::singleShot(kStart, &again_, [this] { Keep(); });
}

void DrawingThreads::Keep() {
    if (!there_ && !CanBeMade()) return;
    UseAll();
    there_ = true;
}

}  // namespace keplin::qt
