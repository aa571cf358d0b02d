// The window on the desktop: draws the model and hands back what the technician does.
#pragma once

#include <QWidget>
#include <optional>
#include <unordered_map>

#include "ui/isp_main.h"
#include "ui/press_guard.h"
#include "ui/qt/drawn.h"
#include "ui/qt/focus_keeper.h"
#include "ui/qt/speaker.h"

namespace keplin::qt {

class MainWindow : public QWidget, public Observer {
  public:
    // Draws the model as it stands and follows it from here on; hidden until the model's window is
    // visible. The model must outlive it. Needs a QApplication. `clock` tells since when a button
    // can be pressed.
    explicit MainWindow(ISPMain& model, PressGuard::Clock clock = std::chrono::steady_clock::now);

    void Changed(const Control& control, Aspect aspect) override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void Apply(const Control& control, Aspect aspect);
    void ApplyToWindow(Aspect aspect);
    void ApplySize();
    void ShowCentred();
    void CallForAttention();

    ISPMain& model_;
    Look look_;
    FocusKeeper focus_;
    PressGuard guard_;
    Speaker speaker_;
    std::unordered_map<const Control*, Drawn*> drawn_;
    std::optional<Observation> following_;
};

}  // namespace keplin::qt
