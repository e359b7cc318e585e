// What a desktop does for the toolkit. The base class is the desktop of a run without windows: it
// shows nothing, answers message boxes with their default button, and has no events to run.
#pragma once

#include "toolkit/Control.h"
#include "toolkit/MessageBox.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace toolkit {

class PrinterDevice;

class Desktop {
public:
    virtual ~Desktop() = default;

    // Makes the form's window and the peers of its controls, not yet visible.
    virtual void open(Form& /*form*/) {}
    // Makes the window visible, also one that was minimized. A page stays as far behind as it is;
    // another window comes to the front, with the focus at focusTarget. A modal form blocks the
    // others, and the call returns when it has been unloaded.
    virtual void show(Form& /*form*/, bool /*modal*/) {}
    // Puts a page in front of the others and the focus at its focusTarget.
    virtual void bringForward(Form& form);
    // Moves the keyboard to the control, and reports it to Screen.focusMoved.
    virtual void focus(Control& control);
    // Has a screen reader say `text`, which concerns the control.
    virtual void announce(Control& /*control*/, const std::string& /*text*/) {}
    virtual int messageBox(const MessageBox& box) { return box.defaultAnswer(); }
    // Runs the events that wait.
    virtual void doEvents() {}
    // The screen, in twips.
    virtual Place screen() { return {}; }
    // Makes ready to print on the system's default printer. Raises PrinterError if there is none.
    virtual std::unique_ptr<PrinterDevice> newPrinterDevice();
    // Runs the event loop until no form is left. Gives the process's exit code.
    virtual int run() { return 0; }
    // Gives a call that has the event loop run `event`, once. It may be made at any moment, from
    // another thread or within the handler of a signal too.
    virtual std::function<void()> waker(std::function<void()> event);
    // Has the event loop run `event`, behind the event that runs now.
    virtual void later(std::function<void()> event) { waker(std::move(event))(); }
    // Called from the event loop when the user's session ends for good. Neither a checkpoint of the
    // session nor a logout that is called off again calls it.
    std::function<void()> sessionEnds = [] {};
    // Called when the display has gone, in the midst of whatever runs. The windows went with it:
    // none may be touched any more. The process ends behind the call.
    std::function<void()> displayEnds = [] {};
    // Ends the event loop, since no form is left.
    virtual void endLoop() {}
};

Desktop& desktop();

// Makes `it` the desktop of the run; nullptr brings back the one without windows.
void install(Desktop* it);

// Lets the event loop run the events that wait, of any form.
void DoEvents();

} // namespace toolkit
