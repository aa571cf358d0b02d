#include "ui/property.h"

#include <cmath>

#include "ui/control.h"

namespace keplin {
const char* NameOf(Aspect aspect) {
    switch (aspect) {
        case Aspect::Visible:
            return "Visible";
        case Aspect::Enabled:
            return "Enabled";
        case Aspect::Left:
            return "Left";
        case Aspect::Top:
            return "Top";
        case Aspect::Height:
            return "Height";
        case Aspect::Caption:
            return "Caption";
        case Aspect::Text:
            return "Text";
        case Aspect::Bold:
            return "Bold";
        case Aspect::Min:
            return "Min";
        case Aspect::Max:
            return "Max";
        case Aspect::Value:
            return "Value";
        case Aspect::WindowState:
            return "WindowState";
    }
    return "";
}

std::string Written(const std::string& text) {
    return '"' + text + '"';
}

std::string Written(bool value) {
    return value ? "True" : "False";
}

std::string Written(float value) {
    return std::to_string(std::lround(value));
}

std::string PropertyBase::Line() const {
    return owner_.Name + "." + NameOf(Which) + " = " + WrittenValue();
}

void PropertyBase::TellObservers() const {
    owner_.Tell(*this);
}

}  // namespace keplin
