// The window on the desktop: draws the model and hands back what the technician does.
#pragma once

#include <QWidget>
#include <unordered_map>

#include "ui/follower.h"
#include "ui/qt/drawn.h"

namespace keplin::qt {

class MainWindow : public QWidget, public Drawing {
  public:
    // Draws the model as it stands and follows it from here on; hidden until the model's window is
    // visible. The model must outlive it. Needs a QApplication. `clock` tells since when a button
    // can be pressed.
    explicit MainWindow(ISPMain& model, PressGuard::Clock clock = std::chrono::steady_clock::now);

    void Apply(const Control& control, Aspect aspect) override;
    void Refit(const Label& label) override;
    [[nodiscard]] const Button* Focused() const override;
    void Focus(const Button* button) override;
    void CallForAttention() override;
    [[nodiscard]] bool IsHeard() const override;
    void SpeakSoon() override;
    void Describe(const Button& button, const std::string& news) override;
    void Announce(const Button& button, const std::string& news) override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void ApplyToWindow(Aspect aspect);
    void ShowCentred();
    [[nodiscard]] QWidget& WidgetOf(const Button& button) const;

    const Form& model_;
    const Look look_;
    Follower follower_;
    std::unordered_map<const Control*, Drawn*> drawn_;
};

}  // namespace keplin::qt
