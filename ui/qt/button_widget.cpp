#include "ui/qt/button_widget.h"

#include <QKeyEvent>
#include <QStyleOptionButton>

namespace keplin::qt {

ButtonWidget::ButtonWidget(const Button& button, const Look& look, FocusKeeper& focus,
                           QWidget* parent)
    : QPushButton(parent), button_(button), look_(look), focus_(focus) {
    setFocusPolicy(Qt::StrongFocus);
    ApplyCommon(*this, button, look.scale);
    ApplyCaption();
    focus.Add(button, *this);
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

// A key that is held down presses once, and one that was struck twice does not start what the first
// has only led to.
void ButtonWidget::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool meant = !event->isAutoRepeat() && !focus_.CameJustNow();
    if (!meant && (enter || event->key() == Qt::Key_Space)) return;
    if (enter) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

// The focus shows from the start, not only after the first use of the keyboard.
void ButtonWidget::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (hasFocus()) option->state |= QStyle::State_KeyboardFocusChange;
}

}  // namespace keplin::qt
