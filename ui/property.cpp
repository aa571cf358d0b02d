#include "ui/property.h"

#include <algorithm>
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

// std::to_chars would do it too, with tables of 170 KB.
std::string Written(float value) {
    constexpr std::size_t kMostDecimals = 9;
    double scale = 1;
    std::size_t decimals = 0;
    for (; decimals < kMostDecimals; ++decimals, scale *= 10)
        if (static_cast<float>(std::round(value * scale) / scale) == value) break;
    std::string text = std::to_string(std::llround(std::abs(value) * scale));
    if (decimals > 0) {
        text.insert(0, decimals + 1 - std::min(decimals + 1, text.size()), '0');
        text.insert(text.size() - decimals, 1, '.');
    }
    return value < 0 ? '-' + text : text;
}

std::string PropertyBase::Line() const {
    return owner_.Name + "." + NameOf(Which) + " = " + WrittenValue();
}

void PropertyBase::TellObservers() const {
    owner_.Tell(*this);
}

}  // namespace keplin
