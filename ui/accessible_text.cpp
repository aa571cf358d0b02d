#include "ui/accessible_text.h"

namespace keplin {
namespace {

// A text that comes and goes has a name also while it is empty.
std::string NameOf(const std::string& text, const std::string& description) {
    return text.empty() ? description : text;
}

class Reader : public ControlVisitor {
  public:
    void Visit(const Form&) override {}
    void Visit(const Page&) override {}
    void Visit(const Frame& frame) override { Text.name = frame.Caption; }
    void Visit(const Label& label) override {
        const std::string description = label.Style.description;
        Text = {NameOf(label.Caption, description), description, ""};
    }
    void Visit(const Button& button) override { Text.name = button.Caption; }
    void Visit(const Picture& picture) override { Text.name = picture.Description; }
    void Visit(const Shape&) override {}
    void Visit(const ProgressBar& bar) override { Text = {bar.Description, "", bar.DoneText()}; }
    void Visit(const StatusBar&) override {}
    void Visit(const Panel& panel) override {
        Text = {NameOf(panel.Text, panel.Description), panel.Description, ""};
    }
    void Visit(const Timer&) override {}

    AccessibleText Text;
};

}  // namespace

AccessibleText AccessibleTextOf(const Control& control) {
    Reader reader;
    control.Accept(reader);
    return reader.Text;
}

}  // namespace keplin
