#include "demo/change_printer.h"

#include <iostream>

namespace keplin {
namespace {

bool IsWorthALine(Aspect aspect) {
    return aspect == Aspect::Caption || aspect == Aspect::Text || aspect == Aspect::Visible ||
           aspect == Aspect::Enabled || aspect == Aspect::Value;
}

}  // namespace

void ChangePrinter::Changed(const Control&, const PropertyBase& property) {
    if (IsWorthALine(property.Which)) std::cout << property.Line() << std::endl;
}

}  // namespace keplin
