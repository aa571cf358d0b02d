// The real window on Qt's offscreen platform, with no program behind it.
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <functional>
#include <string>

#include "tests/support/shown_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/qt_desktop.h"

namespace keplin::test {

using qt::QtDesktop;

// Acts each time the widget is painted.
class WhenPainted : public QObject {
  public:
    WhenPainted(QWidget& widget, std::function<void()> act) : act_(std::move(act)) {
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) act_();
        return false;
    }

  private:
    const std::function<void()> act_;
};

// The window with its getting-started page, on the offscreen desktop.
class QtWindow : public ShownWindow<qt::MainWindow, QtDesktop, WatchedDescriptor> {
  protected:
    QtWindow() { QCoreApplication::processEvents(); }

    template <typename Widget = QWidget>
    Widget* Find(const Control& control) {
        return window.findChild<Widget*>(QString::fromStdString(control.Name));
    }

    // What a screen reader is told of the control.
    std::string Read(const Control& control, QAccessible::Text text = QAccessible::Name) {
        return QAccessible::queryAccessibleInterface(Find(control))->text(text).toStdString();
    }

    // Some pixel of the control as the window shows it, or of its uppermost rows, is of this colour
    // or nearly.
    bool IsPainted(const Control& control, const QColor& colour, int rows = 1000) {
        const QWidget* widget = Find(control);
        const QSize part(widget->width(), std::min(rows, widget->height()));
        const QImage image = window.grab({widget->mapTo(&window, QPoint()), part}).toImage();
        const auto isNear = [&](QRgb pixel) {
            return std::abs(qRed(pixel) - colour.red()) + std::abs(qGreen(pixel) - colour.green()) +
                       std::abs(qBlue(pixel) - colour.blue()) <
                   60;
        };
        const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
        return std::any_of(pixels, pixels + image.sizeInBytes() / 4, isNear);
    }

    std::string Focused() {
        const QWidget* focused = window.focusWidget();
        return focused == nullptr || focused == &window ? "" : focused->objectName().toStdString();
    }

    // One key, sent to whatever has the focus.
    void Type(int key, bool repeated = false) {
        QWidget* target = window.focusWidget() == nullptr ? &window : window.focusWidget();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, {}, repeated);
            QCoreApplication::sendEvent(target, &event);
        }
    }

    // The left button of the mouse, pressed and let go on the control.
    void Click(const Control& control) {
        QWidget* target = Find(control);
        const QPointF at = target->rect().center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, target->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(target, &event);
        }
    }
};

}  // namespace keplin::test
