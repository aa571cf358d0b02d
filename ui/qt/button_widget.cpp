#include "ui/qt/button_widget.h"

#include <QKeyEvent>
#include <QStyleOptionButton>

namespace keplin::qt {

ButtonWidget::ButtonWidget(const Button& button, const Look& look, FocusKeeper& focus,
                           PressGuard& guard, QWidget* parent)
    : QPushButton(parent), button_(button), look_(look), guard_(guard) {
    setFocusPolicy(Qt::StrongFocus);
    ApplyCommon(*this, button, look.scale);
    ApplyCaption();
    focus.Add(button, *this);
    guard.Add(button);
    connect(this, &QPushButton::clicked, this, [this, &focus] { focus.Press(button_); });
}

void ButtonWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, button_, look_.scale, aspect);
    if (aspect == Aspect::Caption) ApplyCaption();
}

// To Qt a single ampersand would be the mark of a shortcut.
void ButtonWidget::ApplyCaption() {
    setAccessibleName(ToQt(button_.Caption));
    setText(ToQt(button_.Caption).replace('&', "&&"));
}

// A key that is held down presses once.
void ButtonWidget::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool meant = !event->isAutoRepeat() && guard_.Takes(button_);
    if (!meant && (enter || key == Qt::Key_Space || key == Qt::Key_Select)) return;
    if (enter) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

void ButtonWidget::mousePressEvent(QMouseEvent* event) {
    if (guard_.Takes(button_)) QPushButton::mousePressEvent(event);
}

// The focus shows from the start, not only after the first use of the keyboard.
void ButtonWidget::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (hasFocus()) option->state |= QStyle::State_KeyboardFocusChange;
}

}  // namespace keplin::qt
