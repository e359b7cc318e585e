// A desktop without windows that records what it is asked for, and what a user does on it.
#pragma once

#include "toolkit/Form.h"
#include "toolkit/Printer.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tests {

struct FakeDesktop : toolkit::Desktop {
    std::vector<toolkit::MessageBox> boxes; // in the order in which they were shown
    std::deque<int> answers;                // to the boxes; their default button once it is empty
    std::function<void()> onBox;            // runs while a box is open, before it is answered
    std::function<void()> onDoEvents;
    std::function<void(toolkit::Form&)> onModal;            // what the user does on a modal form
    std::vector<std::pair<std::string, std::string>> helps; // the form's name, the help file
    bool loopEnded = false;
    std::vector<std::vector<toolkit::PrintedText>> printed; // page by page
    // Asked before each operation of the printer, by its name, and may throw.
    std::function<void(const std::string& operation)> printerFault;

    // Lines of 23 twips a point, characters of 10 twips a point.
    struct PrinterDevice : toolkit::PrinterDevice {
        FakeDesktop& desk;
        explicit PrinterDevice(FakeDesktop& of) : desk(of) {}
        double lineHeight(const toolkit::Font& font) override {
            desk.checkPrinter("lineHeight");
            return 23 * font.size;
        }
        double averageCharWidth(const toolkit::Font& font) override { return 10 * font.size; }
        void print(const std::vector<toolkit::PrintedText>& page) override {
            desk.checkPrinter("print");
            desk.printed.push_back(page);
        }
    };

    void show(toolkit::Form& form, bool modal) override;
    int messageBox(const toolkit::MessageBox& box) override {
        boxes.push_back(box);
        if (onBox)
            onBox();
        if (answers.empty())
            return box.defaultAnswer();
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void doEvents() override {
        if (onDoEvents)
            onDoEvents();
    }
    double screenWidth() override { return 1024 * 15; }
    double screenHeight() override { return 768 * 15; }
    void help(toolkit::Form& owner, const std::string& file) override {
        helps.emplace_back(owner.name(), file);
    }
    std::unique_ptr<toolkit::PrinterDevice> newPrinterDevice() override {
        checkPrinter("newPrinterDevice");
        return std::make_unique<PrinterDevice>(*this);
    }
    void endLoop() override { loopEnded = true; }

    void checkPrinter(const std::string& operation) const {
        if (printerFault)
            printerFault(operation);
    }
    // The texts of the boxes shown since the last call.
    std::vector<std::string> takeBoxes() {
        std::vector<std::string> texts;
        for (const auto& box : std::exchange(boxes, {}))
            texts.push_back(box.text);
        return texts;
    }
    // Likewise, but of error boxes the number and the label: "340 cLotto.SetAllButtons".
    std::vector<std::string> takeReports() {
        static const std::string kPrompt = "An error has occured: ";
        auto texts = takeBoxes();
        for (std::string& text : texts)
            if (text.starts_with(kPrompt))
                text = text.substr(kPrompt.size(), text.find('\r') - kPrompt.size()) + " " +
                       text.substr(text.rfind('\n') + 1);
        return texts;
    }
};

// Whether a click or the Tab key gives the control the focus.
inline bool takesFocus(const toolkit::Control& control) {
    const bool rightKind = dynamic_cast<const toolkit::CommandButton*>(&control) ||
                           dynamic_cast<const toolkit::OptionButton*>(&control) ||
                           dynamic_cast<const toolkit::TextBox*>(&control) ||
                           dynamic_cast<const toolkit::MSFlexGrid*>(&control);
    return rightKind && control.Enabled && control.Visible;
}

inline void collectFocusable(const toolkit::Container& container,
                             std::vector<toolkit::Control*>& all) {
    for (toolkit::Control* control : container.controls()) {
        if (takesFocus(*control))
            all.push_back(control);
        if (const auto* inner = dynamic_cast<const toolkit::Container*>(control))
            collectFocusable(*inner, all);
    }
}

// The controls that take the focus, in the order in which Tab visits them.
inline std::vector<toolkit::Control*> tabOrder(const toolkit::Form& form) {
    std::vector<toolkit::Control*> order;
    collectFocusable(form, order);
    std::stable_sort(order.begin(), order.end(),
                     [](auto* a, auto* b) { return a->TabIndex < b->TabIndex; });
    return order;
}

// A form that comes to the front gets the focus where it was, at first on its first control.
inline void FakeDesktop::show(toolkit::Form& form, bool modal) {
    const auto order = tabOrder(form);
    if (form.ActiveControl)
        form.ActiveControl->SetFocus();
    else if (!order.empty())
        order.front()->SetFocus();
    if (modal && onModal)
        onModal(form);
}

// A click moves the focus before it is told.
inline void userClick(toolkit::Control& control) {
    const auto keep = control.form().shared_from_this();
    if (takesFocus(control))
        control.SetFocus();
    control.click();
}

inline void userClickRow(toolkit::MSFlexGrid& grid, int row) {
    const auto keep = grid.form().shared_from_this();
    grid.SetFocus();
    grid.clickRow(row);
}

inline void userDoubleClickRow(toolkit::MSFlexGrid& grid, int row) {
    const auto keep = grid.form().shared_from_this();
    userClickRow(grid, row);
    grid.doubleClick();
}

// The form sees a key before the control with the focus does.
inline void userKey(toolkit::Form& form, int code, int shift = 0) {
    const auto keep = form.shared_from_this();
    form.previewKeyDown(code, shift);
    if (code != 0 && form.ActiveControl)
        form.ActiveControl->keyDown(code, shift);
}

} // namespace tests
