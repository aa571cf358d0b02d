#include "demo/change_printer.h"

#include <iostream>

#include "ui/describe.h"

namespace keplin {
namespace {

bool IsWorthALine(Aspect aspect) {
    return aspect == Aspect::Caption || aspect == Aspect::Visible || aspect == Aspect::Enabled ||
           aspect == Aspect::Value;
}

}  // namespace

void ChangePrinter::Changed(const Control& control, Aspect aspect) {
    if (IsWorthALine(aspect)) std::cout << Describe(control, aspect) << std::endl;
}

}  // namespace keplin
