// The windows of forms: the frame, the pages inside it, and windows of their own.
#pragma once

#include "desktop/qt/ControlPeer.h"
#include "toolkit/Placement.h"

#include <QCloseEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace desktop_qt {

// The desktop's side of a form. Its window goes with it.
class FormPeer : public toolkit::Peer {
public:
    FormPeer(toolkit::Form& form, QWidget* window) : form_(form), window_(window) {}
    ~FormPeer() override;

    void changed(toolkit::Prop which) override;
    virtual void show();
    virtual void bringForward() { show(); }
    // Shows the window where its form wants it. One of its own stands within reach on its screen.
    virtual void placeWindow();
    // A window of its own was moved or resized.
    void moved();
    QWidget* window() const { return window_; }

protected:
    toolkit::Form& form_;
    QPointer<QWidget> window_;

private:
    toolkit::ShownPlace place_;
};

// nullptr without a form, or without a window of it.
FormPeer* peerOf(const toolkit::Form* form);

// A window of Qt's that shows a form. Closing it unloads the form, which takes the window away.
template <class Window>
class FormWindow : public Window {
public:
    explicit FormWindow(toolkit::Form& form, Qt::WindowFlags flags = {}) : Window(nullptr, flags) {
        mark(*this, &form);
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        if (auto* const form = shownBy<toolkit::Form>(this))
            form->Unload(toolkit::FormControlMenu);
    }
};

class FrameWindow final : public FormWindow<QMainWindow> {
public:
    explicit FrameWindow(toolkit::Form& form);

    QMdiArea* area() const { return area_; }
    // The active page's menu takes the place of the frame's.
    void swapMenus();

protected:
    bool event(QEvent* event) override;

private:
    void takeGeometry();

    QMdiArea* area_;
};

std::unique_ptr<FormPeer> makeFrameWindow(toolkit::Form& form);
std::unique_ptr<FormPeer> makePageWindow(toolkit::Form& form, FrameWindow& frame);
std::unique_ptr<FormPeer> makeTopLevelWindow(toolkit::Form& form);

// Puts the focus where it belongs when the form comes to the front.
void focusForm(toolkit::Form& form);
// The widgets of the form's controls, on one of the form's size.
QWidget* makeContent(toolkit::Form& form, QWidget* parent);

// What the window manager puts around a window. It is known once it has shown the frame.
extern QSize windowBorders;

} // namespace desktop_qt
