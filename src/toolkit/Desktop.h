// What a desktop does for the toolkit. The base class is the desktop of a run without windows: it
// shows nothing, answers message boxes with their default button, and has no events to run.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace toolkit {

class Control;
class Form;
class PrinterDevice;

// The number of the chosen button.
enum Button : int { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

struct MessageBox {
    enum class Buttons { OK, YesNo, YesNoCancel, AbortRetryIgnore };
    enum class Icon { Critical, Question, Exclamation, Information };

    std::string text; // line breaks are CR LF
    std::string title;
    Buttons buttons = Buttons::OK;
    Icon icon = Icon::Information;
    int defaultButton = 1; // counted from 1, left to right

    // The buttons, left to right, and the one at `defaultButton`.
    std::vector<Button> answers() const;
    Button defaultAnswer() const {
        return answers().at(static_cast<std::size_t>(defaultButton - 1));
    }
};

class Desktop {
public:
    virtual ~Desktop() = default;

    // Makes the form's window and the peers of its controls, not yet visible.
    virtual void open(Form& /*form*/) {}
    // Makes the window visible, or brings it to the front. A modal form blocks the others, and the
    // call returns when it has been unloaded.
    virtual void show(Form& /*form*/, bool /*modal*/) {}
    // The form has been unloaded: takes its window away.
    virtual void close(Form& /*form*/) {}

    virtual void focus(Control& control);
    virtual int messageBox(const MessageBox& box) { return box.defaultAnswer(); }
    // Runs the events that wait.
    virtual void doEvents() {}
    // The screen's size in twips.
    virtual double screenWidth() { return 0; }
    virtual double screenHeight() { return 0; }
    // Makes ready to print on the system's default printer. Raises PrinterError if there is none.
    virtual std::unique_ptr<PrinterDevice> newPrinterDevice();
    // Runs the event loop until no form is left. Gives the process's exit code.
    virtual int run() { return 0; }
    // Gives a call that has the event loop run `event`, once. It may be made at any moment, from
    // another thread or within the handler of a signal too.
    virtual std::function<void()> waker(std::function<void()> event);
    // Called from the event loop when the user's session ends for good. Neither a checkpoint of the
    // session nor a logout that is called off again calls it.
    std::function<void()> sessionEnds = [] {};
    // Called when the display has gone, in the midst of whatever runs. The windows went with it:
    // none may be touched any more. The process ends behind the call.
    std::function<void()> displayEnds = [] {};
    // No form is left: the event loop ends with the event that runs, unless that shows another.
    virtual void endLoop() {}
};

Desktop& desktop();

// Makes `it` the desktop of the run; nullptr brings back the one without windows.
void install(Desktop* it);

// Shows a modal message box and gives the number of the chosen button.
int MsgBox(const MessageBox& box);

// Lets the event loop run the events that wait, of any form.
void DoEvents();

} // namespace toolkit
