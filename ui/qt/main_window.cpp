#include "ui/qt/main_window.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <utility>

#include "ui/qt/accessibility_bus.h"
#include "ui/qt/accessible.h"
#include "ui/qt/button_widget.h"
#include "ui/qt/picture_widget.h"
#include "ui/qt/widget_factory.h"

namespace keplin::qt {
namespace {

// No maximise control: the size is fixed.
constexpr Qt::WindowFlags kFrame = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                   Qt::WindowCloseButtonHint;

Scale ScaleOf(const QWidget& window, const Form& form) {
    return Scale(
        FittingDotsPerInch(window.logicalDpiY(), FromQt(window.screen()->availableSize()), form));
}

}  // namespace

MainWindow::MainWindow(ISPMain& model, PressGuard::Clock clock)
    : QWidget(nullptr, kFrame),
      model_(model),
      look_{model_,
            ScaleOf(*this, model_),
            {},
            TextFit(model.Controls(), look_.scale, look_.measure)},
      follower_(model, *this, std::move(clock)) {
    ServeScreenReaders();
    setFont(ToQt(look_.fit.Font()));
    setWindowIcon(ProgramIcon());
    WidgetFactory factory(*this, look_, follower_);
    for (const Control* control : model.Controls())
        control->Accept(factory);
    drawn_ = std::move(factory.Made);
    const auto& buttons = follower_.TabOrder();
    for (std::size_t i = 1; i < buttons.size(); ++i)
        setTabOrder(&WidgetOf(*buttons[i - 1]), &WidgetOf(*buttons[i]));
    follower_.Start();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    follower_.CloseAsked();
}

void MainWindow::Apply(const Control& control, Aspect aspect) {
    if (&control == &model_) {
        ApplyToWindow(aspect);
    } else {
        drawn_.at(&control)->Apply(aspect);
    }
}

void MainWindow::Refit(const Label& label) {
    drawn_.at(&label)->Refit();
}

const Button* MainWindow::Focused() const {
    const auto* focused = dynamic_cast<const ButtonWidget*>(focusWidget());
    return focused == nullptr ? nullptr : &focused->Model();
}

void MainWindow::Focus(const Button* button) {
    (button == nullptr ? *this : WidgetOf(*button)).setFocus();
}

// Qt passes no alert on to a Wayland compositor; one that is asked to activate the window marks it,
// as nobody has pressed anything.
void MainWindow::CallForAttention() {
    if (isActiveWindow()) return;
    if (QGuiApplication::platformName() == "wayland") {
        activateWindow();
    } else {
        QApplication::alert(this);
    }
}

bool MainWindow::IsHeard() const {
    return QAccessible::isActive();
}

void MainWindow::SpeakSoon() {
    QMetaObject::invokeMethod(
        this, [this] { follower_.Speak(); }, Qt::QueuedConnection);
}

void MainWindow::Describe(const Button& button, const std::string& news) {
    WidgetOf(button).setAccessibleDescription(ToQt(news));
}

void MainWindow::Announce(const Button& button, const std::string& news) {
    qt::Announce(WidgetOf(button), ToQt(news));
}

void MainWindow::ApplyToWindow(Aspect aspect) {
    const PixelSize client = look_.scale.ClientSize(model_);
    if (aspect == Aspect::Caption) setWindowTitle(ToQt(model_.Caption));
    if (aspect == Aspect::Height) setFixedSize(client.width, client.height);
    if (aspect == Aspect::Visible && model_.Visible) ShowCentred();
    if (aspect == Aspect::Visible && !model_.Visible) hide();
    if (aspect == Aspect::WindowState && model_.WindowState.Get() == Form::State::Minimised) {
        showMinimized();
    }
}

// The frame's height is the model's word: the desktop tells its own only after the window is shown.
void MainWindow::ShowCentred() {
    const PixelSize outer{width(), look_.scale.Pixels(model_.Height)};
    move(ToQt(Centred(outer, FromQt(screen()->availableGeometry()))).topLeft());
    show();
}

QWidget& MainWindow::WidgetOf(const Button& button) const {
    return *dynamic_cast<QWidget*>(drawn_.at(&button));
}

}  // namespace keplin::qt
