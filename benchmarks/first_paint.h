// When a window has appeared.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <utility>

namespace keplin::benchmarks {

// Calls `action` once, from the event loop, when the first top-level window was painted.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(std::function<void()> action) : action_(std::move(action)) {
        qApp->installEventFilter(this);
    }

    // The window's own paint comes first, those of its parts follow within the same event.
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Paint && widget != nullptr && widget->isWindow()) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(0, action_);
        }
        return false;
    }

  private:
    std::function<void()> action_;
};

}  // namespace keplin::benchmarks
