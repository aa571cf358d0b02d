#include "ui/status_panels.h"

#include <algorithm>
#include <cmath>

namespace keplin {
namespace {

constexpr int kMargin = 3;  // pixels between the bevel and the text
constexpr int kGap = 2;     // pixels between two panels
constexpr const char* kEllipsis = "\u2026";

// A byte that goes on with the character before it, or begins a mark that stands on it: the first
// byte of all such marks is 0xCC, or 0xCD before 0xB0.
bool GoesOn(const std::string& text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (byte(at) >= 0x80 && byte(at) < 0xC0) return true;
    if (at + 1 >= text.size()) return false;
    return byte(at) == 0xCC || (byte(at) == 0xCD && byte(at + 1) < 0xB0);
}

std::size_t NextCharacter(const std::string& text, std::size_t at) {
    do {
        ++at;
    } while (at < text.size() && GoesOn(text, at));
    return at;
}

std::size_t PreviousCharacter(const std::string& text, std::size_t at) {
    do {
        --at;
    } while (at > 0 && GoesOn(text, at));
    return at;
}

// The pixels beside a panel's text, left and right together.
int BesideText(int bevel) {
    return 2 * (kMargin + bevel);
}

// Panels sized by their text take what they need; the others share the rest equally, but none falls
// below its minimum, and the last ones run over the bar's end when the minimums are wider than it.
std::vector<float> Widths(const StatusBar& bar, int barWidth, const Scale& scale, int bevel,
                          const TextWidth& width) {
    std::vector<float> widths(bar.PanelCount());
    auto left = static_cast<float>(barWidth);
    float sharing = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const Panel& panel = bar.Panels(i + 1);
        const int text = width(panel.Text) + BesideText(bevel) + kGap;
        const bool shares = panel.Sizing == PanelSizing::Share;
        const int least = scale.Pixels(panel.MinimumWidth);
        widths[i] = static_cast<float>(shares ? least : std::max(least, text));
        (shares ? sharing : left) += shares ? 1 : -widths[i];
    }
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (bar.Panels(i + 1).Sizing == PanelSizing::Share)
            widths[i] = std::max(widths[i], left / sharing);
    }
    return widths;
}

PanelView ViewOf(const Panel& panel, const PixelRect& place, int bevel, const TextWidth& width) {
    const std::string& whole = panel.Text;
    const int room = place.width - BesideText(bevel);
    if (width(whole) <= room) return {place, kMargin, whole, ""};
    return {place, kMargin, ShortenedInMiddle(whole, room, width), whole};
}

}  // namespace

// Letter by letter on the side that shows less.
std::string ShortenedInMiddle(const std::string& text, int room, const TextWidth& width) {
    if (width(text) <= room) return text;
    std::size_t beginning = 0;  // up to here
    std::size_t end = text.size();
    std::string shortened;
    for (std::string longer = kEllipsis; beginning < end && width(longer) <= room;) {
        shortened = longer;
        if (width(text.substr(0, beginning)) < width(text.substr(end))) {
            beginning = NextCharacter(text, beginning);
        } else {
            end = PreviousCharacter(text, end);
        }
        longer = text.substr(0, beginning) + kEllipsis + text.substr(end);
    }
    return shortened;
}

std::vector<PanelView> ArrangePanels(const StatusBar& bar, PixelSize size, const Scale& scale,
                                     int bevel, const TextWidth& width) {
    std::vector<PanelView> views;
    float left = 0;
    for (const float share : Widths(bar, size.width, scale, bevel, width)) {
        const int from = static_cast<int>(std::lround(left));
        const int to = static_cast<int>(std::lround(left += share));
        const PixelRect place{from, 1, to - from - kGap, size.height - 1};
        views.push_back(ViewOf(bar.Panels(views.size() + 1), place, bevel, width));
    }
    return views;
}

}  // namespace keplin
