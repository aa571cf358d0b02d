// The design of the window: every control with its place, its text, its looks and its order.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/data.h"
#include "ui/accessible_text.h"
#include "ui/isp_main.h"

namespace keplin::test {
namespace {

std::ostream& operator<<(std::ostream& out, const Colour& colour) {
    return out << int{colour.red} << "," << int{colour.green} << "," << int{colour.blue};
}

const char* Word(Alignment alignment) {
    return alignment == Alignment::Centre ? ", centred" : "";
}

// What a kind of control has beside its place.
class Looks : public ControlVisitor {
  public:
    void Visit(const Form& form) override { Text << "window \"" << form.Caption.Get() << '"'; }
    void Visit(const Page& page) override { Text << "page " << page.Background; }
    void Visit(const Frame& frame) override {
        Text << "frame \"" << frame.Caption.Get() << "\", " << frame.Background;
    }
    void Visit(const Label& label) override {
        const TextStyle& style = label.Style;
        Text << "label \"" << label.Caption.Get() << '"' << Word(style.alignment);
        if (style.colour) Text << ", in " << *style.colour;
        if (style.background) Text << ", on " << *style.background;
        if (style.border) Text << ", border";
        if (label.Bold) Text << ", bold";
        if (style.points > 0) Text << ", " << style.points << " pt";
    }
    void Visit(const Button& button) override {
        Text << "button \"" << button.Caption.Get() << "\", tab " << button.TabIndex;
    }
    void Visit(const Picture& picture) override {
        const bool icon = picture.Shows == Picture::Image::Icon;
        Text << (icon ? "icon" : "getting-started picture");
    }
    void Visit(const Shape& shape) override {
        Text << "shape";
        if (shape.Fill) Text << " filled " << *shape.Fill;
    }
    void Visit(const ProgressBar& bar) override {
        Text << "progress bar from " << bar.Min << " to " << bar.Max << ", now " << bar.Value;
    }
    void Visit(const StatusBar& bar) override {
        Text << "status bar " << bar.Height << " high, " << bar.AboveBottom << " above the bottom, "
             << bar.PanelCount() << " panels";
    }
    void Visit(const Panel& panel) override {
        const bool share = panel.Sizing == PanelSizing::Share;
        Text << "panel \"" << panel.Text.Get() << "\", at least " << panel.MinimumWidth << ", "
             << (share ? "share" : "as its text") << Word(panel.TextAlignment);
    }
    void Visit(const Timer& timer) override { Text << "timer " << timer.Interval << " ms"; }

    std::ostringstream Text;
};

std::string LineOf(const Control& control) {
    Looks looks;
    control.Accept(looks);
    std::ostringstream line;
    line << control.Name;
    if (control.Container != nullptr) line << " in " << control.Container->Name;
    line << ": " << looks.Text.str();
    const bool placed = !dynamic_cast<const StatusBar*>(&control) &&
                        !dynamic_cast<const Panel*>(&control) &&
                        !dynamic_cast<const Timer*>(&control);
    if (placed) {
        line << " at " << control.Left << " " << control.Top << " " << control.Width << " "
             << control.Height;
    }
    if (!control.Visible) line << ", hidden";
    if (!control.Enabled) line << ", disabled";
    const AccessibleText heard = AccessibleTextOf(control);
    for (const std::string& text : {heard.name, heard.description, heard.value}) {
        if (line.str().find(text) == std::string::npos) line << ", heard \"" << text << '"';
    }
    return line.str() + "\n";
}

TEST(Design, EveryControlIsAsDesigned) {
    const ISPMain window;
    std::string lines = LineOf(window);
    for (const Control* control : window.Controls())
        lines += LineOf(*control);
    EXPECT_EQ(lines, Data("design.txt"));
    EXPECT_FALSE(window.MovingLeft);
}

}  // namespace
}  // namespace keplin::test
