// A desktop without windows that records what it is asked for, and what a user does on it.
#pragma once

#include "toolkit/Focus.h"
#include "toolkit/Form.h"
#include "toolkit/Keyboard.h"
#include "toolkit/Printer.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tests {

using Texts = std::vector<std::string>;

struct FakeDesktop : toolkit::Desktop {
    std::vector<toolkit::MessageBox> boxes; // in the order in which they were shown
    std::deque<int> answers;                // to the boxes
    int last = 0;                           // for ever behind those; 0 for a box's default button
    std::function<void()> onBox;            // runs while a box is open, before it is answered
    std::function<void()> onDoEvents;
    Texts announced;
    Texts modal;                                            // the forms that were shown so, by name
    std::vector<std::vector<toolkit::PrintedText>> printed; // page by page
    // Asked before each operation of the printer, by its name, and may throw.
    std::function<void(const std::string& operation)> printerFault = [](const auto&) {};

    // Lines of 23 twips a point, characters of 10 twips a point.
    struct PrinterDevice : toolkit::PrinterDevice {
        FakeDesktop& desk;
        explicit PrinterDevice(FakeDesktop& of) : desk(of) {}
        double lineHeight(const toolkit::Font& font) override {
            desk.printerFault("lineHeight");
            return 23 * font.size;
        }
        double averageCharWidth(const toolkit::Font& font) override { return 10 * font.size; }
        void print(const std::vector<toolkit::PrintedText>& page) override {
            desk.printerFault("print");
            desk.printed.push_back(page);
        }
    };

    void show(toolkit::Form& form, bool isModal) override {
        if (isModal)
            modal.push_back(form.name());
        if (form.kind != toolkit::Form::Kind::MDIChild)
            bringForward(form);
    }
    void announce(toolkit::Control& /*control*/, const std::string& text) override {
        announced.push_back(text);
    }
    int messageBox(const toolkit::MessageBox& box) override {
        boxes.push_back(box);
        if (onBox)
            onBox();
        if (answers.empty())
            return last == 0 ? static_cast<int>(box.defaultAnswer()) : last;
        return std::exchange(answers, {answers.begin() + 1, answers.end()}).front();
    }
    int loopsEnded = 0;
    void endLoop() override { ++loopsEnded; }
    std::vector<std::function<void()>> waiting; // behind the event that runs
    void later(std::function<void()> event) override { waiting.push_back(std::move(event)); }
    void runWaiting() {
        for (const auto& event : std::exchange(waiting, {}))
            event();
    }
    void doEvents() override {
        if (onDoEvents)
            onDoEvents();
    }
    toolkit::Place screen() override { return {0, 0, 1024 * 15, 768 * 15}; }
    std::unique_ptr<toolkit::PrinterDevice> newPrinterDevice() override {
        printerFault("newPrinterDevice");
        return std::make_unique<PrinterDevice>(*this);
    }

    // The texts of the boxes shown since the last call.
    Texts takeBoxes() {
        Texts texts;
        for (const auto& box : std::exchange(boxes, {}))
            texts.push_back(box.text);
        return texts;
    }
    // Likewise, but of error boxes the number and the label: "340 cLotto.SetAllButtons".
    Texts takeReports() {
        static const std::string kPrompt = "An error has occured: ";
        auto texts = takeBoxes();
        for (std::string& text : texts)
            if (text.starts_with(kPrompt))
                text = text.substr(kPrompt.size(), text.find('\r') - kPrompt.size()) + " " +
                       text.substr(text.rfind('\n') + 1);
        return texts;
    }
};

// Drops all forms, those too that were being unloaded, as the end of a process does.
inline void dropForms() {
    struct Access : toolkit::Form {
        using toolkit::Form::forget;
    };
    for (int i = 0; i < toolkit::Forms.Count(); ++i) {
        toolkit::Forms(i).attach(nullptr);
        (toolkit::Forms(i).*&Access::forget)();
    }
    toolkit::Screen = {};
    toolkit::Forms = {};
}

// A click moves the focus before it is told.
inline void userClick(toolkit::Control& control) {
    if (toolkit::takesFocus(control))
        control.SetFocus();
    control.click();
}

inline void userClickRow(toolkit::MSFlexGrid& grid, int row) {
    grid.SetFocus();
    grid.press(row);
    grid.release(row);
}

inline void userDoubleClickRow(toolkit::MSFlexGrid& grid, int row) {
    userClickRow(grid, row);
    grid.doubleClickRow(row);
}

// A key, with what it types. Gives whether it was used up.
inline bool userKey(toolkit::Form& form, int code, int shift = 0) {
    const bool types =
        shift <= toolkit::ShiftDown && (code < toolkit::key::Shift || code >= '0') && code <= 'Z';
    return toolkit::pressKey(form, {.code = code, .shift = shift, .character = types ? code : 0});
}

} // namespace tests
