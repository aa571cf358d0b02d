#include "ui/qt/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QElapsedTimer>

#include "ui/accessible_text.h"
#include "ui/qt/main_window.h"
#include "ui/qt/progress_bar_widget.h"
#include "ui/qt/status_bar_widget.h"

namespace keplin::qt {
namespace {

// Speaks of what the bar measures, not of the finer steps in which it is drawn.
class AccessibleBar final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit AccessibleBar(ProgressBarWidget& bar)
        : QAccessibleWidget(&bar, QAccessible::ProgressBar), bar_(bar) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type != QAccessible::ValueInterface) return QAccessibleWidget::interface_cast(type);
        return static_cast<QAccessibleValueInterface*>(this);
    }
    QString text(QAccessible::Text text) const override {
        const bool value = text == QAccessible::Value || text == QAccessible::Description;
        return value ? bar_.DoneText() : QAccessibleWidget::text(text);
    }
    QVariant currentValue() const override { return bar_.Model().Value.Get(); }
    QVariant minimumValue() const override { return bar_.Model().Min.Get(); }
    QVariant maximumValue() const override { return bar_.Model().Max.Get(); }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant&) override {}

  private:
    ProgressBarWidget& bar_;
};

QAccessibleInterface* Create(const QString&, QObject* object) {
    if (auto* window = dynamic_cast<MainWindow*>(object))
        return new QAccessibleWidget(window, QAccessible::Window);
    if (auto* bar = dynamic_cast<StatusBarWidget*>(object))
        return new QAccessibleWidget(bar, QAccessible::StatusBar);
    if (auto* bar = dynamic_cast<ProgressBarWidget*>(object)) return new AccessibleBar(*bar);
    return nullptr;
}

bool IsWorthTelling(const QAccessibleEvent& event) {
    static QElapsedTimer sinceStep;
    const auto* window = dynamic_cast<MainWindow*>(event.object());
    switch (event.type()) {
        case QAccessible::Focus:
            // It has the focus only while a press is at work. A screen reader that heard of it
            // would read the whole page again when the focus comes back.
            return window == nullptr;
        case QAccessible::DescriptionChanged:
            return false;  // announced with its text
        case QAccessible::ValueChanged:
            if (sinceStep.isValid() && sinceStep.elapsed() < kBetweenSpokenSteps.count())
                return false;
            sinceStep.start();
            return true;
        default:
            return true;
    }
}

void Tell(QAccessibleEvent* event) {
    if (!IsWorthTelling(*event)) return;
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(Tell);
}

}  // namespace

void ServeScreenReaders() {
    QAccessible::installFactory(Create);
    QAccessible::installUpdateHandler(Tell);
}

}  // namespace keplin::qt
