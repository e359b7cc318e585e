// The desktop of Qt Widgets: shows the toolkit's forms as real windows, and turns what the user
// does into the toolkit's events.
#pragma once

#include "desktop/SystemDesktop.h"

#include <QApplication>
#include <QPointer>

#include <functional>
#include <memory>
#include <string>

class QFocusFrame;
class QKeyEvent;
class QWindow;

namespace desktop_qt {

class FrameWindow;

class QtDesktop : public QObject, public desktop::SystemDesktop, public platform::Help {
public:
    void open(toolkit::Form& form) override;
    void show(toolkit::Form& form, bool modal) override;
    void bringForward(toolkit::Form& form) override;
    void focus(toolkit::Control& control) override;
    void announce(toolkit::Control& control, const std::string& said) override;
    int messageBox(const toolkit::MessageBox& box) override;
    void doEvents() override;
    toolkit::Place screen() override;
    std::unique_ptr<toolkit::PrinterDevice> newPrinterDevice() override;
    int run() override;
    std::function<void()> waker(std::function<void()> event) override;
    void later(std::function<void()> event) override;
    void endLoop() override;

    platform::Help* helpViewer() override { return this; }
    bool WinHelpA(std::uintptr_t window, const char* file, unsigned command,
                  std::uintptr_t data) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QApplication& application();
    void showFocusOn(const toolkit::Control* control);
    FrameWindow* frame() const;
    Qt::WindowModality modality() const;
    // False leaves the key of the window to Qt.
    static bool takeKey(const QWindow& window, QKeyEvent& key);

    // Not there until the first form or message box needs it: a start that is refused costs little.
    std::unique_ptr<QApplication> application_;
    QPointer<QFocusFrame> ring_; // goes with the window that it stands in
    std::uintptr_t lastHandle_ = 0;
};

} // namespace desktop_qt
