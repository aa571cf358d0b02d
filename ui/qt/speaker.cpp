#include "ui/qt/speaker.h"

#include <QAccessible>
#include <QApplication>
#include <QMetaObject>

#include "ui/qt/accessibility_bus.h"
#include "ui/qt/look.h"

namespace keplin::qt {

Speaker::Speaker(QWidget& window, const ISPMain& model) : window_(window), texts_(model) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { FollowFocus(now); });
}

void Speaker::Changed(const Control& control, Aspect aspect) {
    if (!QAccessible::isActive() || !texts_.Changed(control, aspect) || due_) return;
    due_ = true;
    QMetaObject::invokeMethod(
        this, [this] { Speak(); }, Qt::QueuedConnection);
}

// What comes while the focused button is out of sight waits for the focus.
void Speaker::Speak() {
    due_ = false;
    if (focused_ == nullptr || !focused_->isVisible()) return;
    const std::string news = texts_.Take();
    if (news.empty()) return;
    Describe(news);
    Announce(*focused_, ToQt(news));
}

// Qt tells of this before it tells a screen reader.
void Speaker::FollowFocus(QWidget* now) {
    if (now == nullptr || now == &window_ || now->window() != &window_ || now == focused_) return;
    if (focused_ != nullptr) Describe("");
    focused_ = now;
    const std::string news = texts_.Take();
    Describe(news.empty() ? texts_.Latest() : news);
}

void Speaker::Describe(const std::string& news) {
    focused_->setAccessibleDescription(ToQt(news));
}

}  // namespace keplin::qt
