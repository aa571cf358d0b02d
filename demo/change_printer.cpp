#include "demo/change_printer.h"

#include <iostream>
#include <utility>

#include "ui/describe.h"

namespace keplin {
namespace {

bool IsWorthALine(Aspect aspect) {
    return aspect == Aspect::Caption || aspect == Aspect::Visible || aspect == Aspect::Enabled ||
           aspect == Aspect::Value;
}

}  // namespace

ChangePrinter::ChangePrinter(Observer& drawing,
                             std::function<void(const Control&, Aspect)> afterwards)
    : drawing_(drawing), afterwards_(std::move(afterwards)) {}

void ChangePrinter::Changed(const Control& control, Aspect aspect) {
    drawing_.Changed(control, aspect);
    if (IsWorthALine(aspect)) std::cout << Describe(control, aspect) << std::endl;
    if (afterwards_) afterwards_(control, aspect);
}

}  // namespace keplin
