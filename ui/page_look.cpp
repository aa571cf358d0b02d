#include "ui/page_look.h"

namespace keplin {
namespace {

constexpr float kCaptionLeft = 120;  // twips
constexpr float kCaptionGap = 30;    // twips, between the caption and the outline on either side
constexpr int kOutlineDarker = 160;  // percent of the background's darkness

std::uint8_t Darker(std::uint8_t part) {
    return static_cast<std::uint8_t>(part * 100 / kOutlineDarker);
}

}  // namespace

std::optional<Colour> TextColourOf(const Label& label) {
    if (label.Style.colour) return label.Style.colour;
    if (label.Container != nullptr) return kBlack;
    return std::nullopt;
}

std::optional<Colour> BackgroundBehind(const Control& control) {
    if (const auto* frame = dynamic_cast<const Frame*>(control.Container)) return frame->Background;
    if (const auto* page = dynamic_cast<const Page*>(control.Container)) return page->Background;
    return std::nullopt;
}

Colour OutlineOn(Colour background) {
    return {Darker(background.red), Darker(background.green), Darker(background.blue)};
}

FrameParts PartsOfFrame(PixelSize frame, PixelSize caption, const Scale& scale) {
    const int middle = caption.height / 2;
    const PixelRect text{scale.Pixels(kCaptionLeft), 0, caption.width, caption.height};
    return {{0, middle, frame.width, frame.height - middle},
            text.Inset(-scale.Pixels(kCaptionGap), 0),
            text};
}

}  // namespace keplin
