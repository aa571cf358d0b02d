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

constexpr auto kStart = 1s;      // not while the window comes up
constexpr auto kInterval = 10s;  // a third of what ends an idle thread
constexpr std::size_t kMost = 4;

// A soft edge down so many rows is as much as Qt ever shares out at a time.
void UseAll() {
    QImage image(4, 512, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(0.5);
    painter.drawEllipse(image.rect());
}

// Whether the system has threads left for that.
bool CanBeMade() try {
    std::array<std::jthread, kMost> threads;
    for (std::jthread& thread : threads)
        thread = std::jthread([] { std::this_thread::sleep_for(1ms); });
    return true;
} catch (const std::system_error&) {
    return false;
}

}  // namespace

DrawingThreads::DrawingThreads() {
    timer_.callOnTimeout([this] { Keep(); });
    timer_.start(kStart);
}

void DrawingThreads::Keep() {
    timer_.start(kInterval);
    if (!there_ && !CanBeMade()) return;
    UseAll();
    there_ = true;
}

}  // namespace keplin::qt
