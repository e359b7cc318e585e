// The desktop of Qt Widgets: shows the toolkit's forms as real windows, and turns what the user
// does into the toolkit's events.
#pragma once

#include "platform/Help.h"
#include "toolkit/Desktop.h"

#include <QObject>

#include <functional>
#include <memory>

class QApplication;
class QKeyEvent;
class QWidget;

namespace desktop_qt {

class FrameWindow;

class QtDesktop : public QObject, public toolkit::Desktop, public platform::Help {
public:
    // Nothing is opened until the first form or message box needs it, so a start that is refused
    // costs little. `argc` must live as long as the desktop.
    QtDesktop(int& argc, char** argv);
    ~QtDesktop() override;

    // Runs the event loop until no form is left. Gives the exit code.
    int run();

    // Calls `wanted` from the event loop when the session ends.
    void whenSessionEnds(std::function<void()> wanted) { sessionEnds_ = std::move(wanted); }
    // Calls `ready` from the event loop when the descriptor has something to read.
    void whenReadable(int descriptor, std::function<void()> ready);

    void open(toolkit::Form& form) override;
    void show(toolkit::Form& form, bool modal) override;
    void close(toolkit::Form& form) override;
    void focus(toolkit::Control& control) override;
    int messageBox(const toolkit::MessageBox& box) override;
    void doEvents() override;
    double screenWidth() override;
    double screenHeight() override;
    std::unique_ptr<toolkit::PrinterDevice> newPrinterDevice() override;
    void endLoop() override;

    bool WinHelpA(std::uintptr_t window, const char* file, unsigned command,
                  std::uintptr_t data) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QApplication& application();
    FrameWindow* frame() const;
    // The form that the keys of the window go to, or nullptr.
    static toolkit::Form* formWithKeys(const QObject* window);
    // Whether the key has been used up.
    static bool previewKey(const QKeyEvent& key, toolkit::Form& form);

    int& argc_;
    char** argv_;
    std::unique_ptr<QApplication> application_;
    std::uintptr_t lastHandle_ = 0;
    std::function<void()> sessionEnds_;
    bool focusMoves_ = false; // a control is just being told that the focus goes or comes
};

} // namespace desktop_qt
