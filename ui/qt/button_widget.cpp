#include "ui/qt/button_widget.h"

#include <QKeyEvent>
#include <QStyleOptionButton>

namespace keplin::qt {

namespace {

std::optional<PressKey> PressKeyOf(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return PressKey::Enter;
        case Qt::Key_Space:
        case Qt::Key_Select:
            return PressKey::Space;
        default:
            return std::nullopt;
    }
}

}  // namespace

ButtonWidget::ButtonWidget(const Button& button, const Look& look, Follower& follower,
                           QWidget* parent)
    : QPushButton(parent), button_(button), look_(look), follower_(follower) {
    SetUp(*this, button, look.scale);
    ApplyCaption();
    connect(this, &QPushButton::clicked, this, [this] { follower_.Press(button_); });
}

void ButtonWidget::Apply(Aspect aspect) {
    ApplyCommon(*this, button_, look_.scale, aspect);
    if (aspect == Aspect::Caption) ApplyCaption();
}

void ButtonWidget::ApplyCaption() {
    setText(ToQt(button_.CaptionWithoutShortcut()));
}

void ButtonWidget::keyPressEvent(QKeyEvent* event) {
    const auto key = PressKeyOf(event->key());
    const KeyEffect effect =
        key ? follower_.KeyDown(button_, *key, event->isAutoRepeat()) : KeyEffect::PassOn;
    if (effect == KeyEffect::PassOn) QPushButton::keyPressEvent(event);
    if (effect == KeyEffect::Press) click();
}

// Comes before a screen reader is told.
void ButtonWidget::focusInEvent(QFocusEvent* event) {
    follower_.FocusCame(button_);
    QPushButton::focusInEvent(event);
}

void ButtonWidget::mousePressEvent(QMouseEvent* event) {
    if (follower_.MouseDown(button_)) QPushButton::mousePressEvent(event);
}

// The focus shows from the start, not only after the first use of the keyboard.
void ButtonWidget::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (hasFocus()) option->state |= QStyle::State_KeyboardFocusChange;
}

}  // namespace keplin::qt
