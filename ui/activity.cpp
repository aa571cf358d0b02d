#include "ui/activity.h"

namespace keplin {
namespace {

constexpr float kLeftEnd = 120;
constexpr float kRightEnd = 5160;
constexpr float kStep = 15;

}  // namespace

void StartActivity(ISPMain& window) {
    window.Shape1.Visible = true;
    window.Shape2.Visible = true;
    window.Timer1.Enabled = true;
}

void StopActivity(ISPMain& window) {
    window.Shape1.Visible = false;
    window.Shape2.Visible = false;
    window.Timer1.Enabled = false;
}

void Timer1_Timer(ISPMain& window, Desktop& desktop) {
    Property<float>& left = window.Shape2.Left;
    desktop.YieldOnce();
    if (left < kRightEnd && !window.MovingLeft) {
        left = left + kStep;
    } else {
        window.MovingLeft = true;
    }
    if (left > kLeftEnd && window.MovingLeft) {
        left = left - kStep;
    } else {
        window.MovingLeft = false;
    }
    desktop.YieldOnce();
}

}  // namespace keplin
