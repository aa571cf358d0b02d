#include "ui/qt/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "ui/qt/accessible.h"
#include "ui/qt/font_choice.h"
#include "ui/qt/picture_widget.h"
#include "ui/qt/widget_factory.h"

namespace keplin::qt {
namespace {

// No maximise control: the size is fixed.
constexpr Qt::WindowFlags kFrame = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                   Qt::WindowCloseButtonHint;

// Pixels that the desktop's frame may take of the screen: its sides together, its title bar.
constexpr QSize kFrameRoom{4, 40};

// As many dots per inch as the desktop has, or fewer on a screen that could not show all buttons.
// One without a size stands for none at all: the desktop has its screens switched off.
double DotsPerInch(const QWidget& window, const Form& form) {
    const QSize room = window.screen()->availableSize() - kFrameRoom;
    if (room.isEmpty()) return window.logicalDpiY();
    const float height = form.ClientHeight() - form.Height + kShownHeight;
    return std::min({double(window.logicalDpiY()), Scale::Fitting(form.Width, room.width()),
                     Scale::Fitting(height, room.height())});
}

}  // namespace

MainWindow::MainWindow(ISPMain& model, PressGuard::Clock clock)
    : QWidget(nullptr, kFrame),
      model_(model),
      look_{model, model.Controls(), Scale(DotsPerInch(*this, model)), {}},
      focus_(*this),
      guard_(model, std::move(clock)),
      speaker_(*this, model) {
    InstallAccessible();
    look_.font = ChooseFont(look_);
    setFont(look_.font);
    setWindowIcon(ProgramIcon());
    WidgetFactory factory(*this, look_, focus_, guard_);
    for (const Control* control : model.Controls())
        control->Accept(factory);
    drawn_ = std::move(factory.Made);
    for (const Aspect aspect : {Aspect::Caption, Aspect::Height})
        ApplyToWindow(aspect);
    focus_.AfterChange();
    guard_.AfterChange();
    following_.emplace(model, *this);
}

// Whether the window closes is the model's to decide. A request that waited for a pause to end, or
// came just after it, is passed over like a press of Close. A desktop that logs out asks the same
// way; it is not held up, and ends the program by itself where the model does not.
void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (guard_.Takes(model_.cmdExit)) model_.RequestClose();
}

void MainWindow::Changed(const Control& control, Aspect aspect) {
    const bool reach = aspect == Aspect::Visible || aspect == Aspect::Enabled;
    if (reach) focus_.BeforeChange();
    Apply(control, aspect);
    if (reach) {
        focus_.AfterChange();
        guard_.AfterChange();
        if (EndsAWait(model_, control, aspect) && !isActiveWindow()) CallForAttention();
    }
    speaker_.Changed(control, aspect);
}

// The desktop marks the window until the technician turns to it. Qt passes no alert on to a Wayland
// compositor; one that is asked to activate the window marks it, as nobody has pressed anything.
void MainWindow::CallForAttention() {
    if (QGuiApplication::platformName() == "wayland") {
        activateWindow();
    } else {
        QApplication::alert(this);
    }
}

void MainWindow::Apply(const Control& control, Aspect aspect) {
    if (&control == &model_) {
        ApplyToWindow(aspect);
        return;
    }
    drawn_.at(&control)->Apply(aspect);
    if (aspect != Aspect::Visible) return;
    for (const auto& [other, drawn] : drawn_) {
        if (other->Container == control.Container) drawn->Refit();
    }
}

void MainWindow::ApplyToWindow(Aspect aspect) {
    const Form& form = model_;
    if (aspect == Aspect::Caption) setWindowTitle(ToQt(form.Caption));
    if (aspect == Aspect::Height) ApplySize();
    if (aspect == Aspect::Visible && form.Visible) ShowCentred();
    if (aspect == Aspect::Visible && !form.Visible) hide();
    if (aspect == Aspect::WindowState && form.WindowState.Get() == Form::State::Minimised) {
        showMinimized();
    }
}

void MainWindow::ApplySize() {
    const Form& form = model_;
    setFixedSize(look_.scale.Pixels(form.Width), look_.scale.Pixels(form.ClientHeight()));
    for (const StatusBar* bar : {&model_.StatusBar1, &model_.StatusBar2})
        drawn_.at(bar)->Apply(Aspect::Top);  // they follow the bottom edge
}

// The frame's height is the model's word: the desktop tells its own only after the window is shown.
void MainWindow::ShowCentred() {
    const QRect screenArea = screen()->availableGeometry();
    QRect outer(0, 0, width(), look_.scale.Pixels(model_.Height));
    outer.moveCenter(screenArea.center());
    move(outer.topLeft());
    show();
}

}  // namespace keplin::qt
