// The base of the windows of controls: what every one follows of its control.
#pragma once

#include "desktop/win32/Look.h"
#include "desktop/win32/ToolTip.h"
#include "desktop/win32/Window.h"
#include "toolkit/Form.h"

namespace desktop_win32 {

// The window of a form or control. Its peer passes on what changes, and takes the window with it.
class ObjectWindow : public Window {
public:
    virtual void changed(toolkit::Prop which) = 0;
    virtual void cellChanged(int /*row*/, int /*column*/) {}

    // Of the screen on which its outermost window stands, in dots to the inch.
    int dpi() const;

protected:
    int dpi_ = 0; // of an outermost window that was told of another one since it was made
};

void attachPeer(toolkit::Object& object, std::shared_ptr<ObjectWindow> window);
// The window of a form or control, or nullptr.
std::shared_ptr<ObjectWindow> windowOf(const toolkit::Object& object);

class ControlWindow : public ObjectWindow {
public:
    explicit ControlWindow(toolkit::Control& control) : control_(control) {}

    toolkit::Control& control() const { return control_; }
    void changed(toolkit::Prop which) override;
    void lookChanged() override;

    // The system has objects of its own for what lies inside, such as the buttons of a toolbar.
    virtual bool speaksItself() const { return false; }

protected:
    // `kind` and the styles are those of the system's window.
    static void make(const std::shared_ptr<ControlWindow>& it, HWND parent, const wchar_t* kind,
                     DWORD style, DWORD extended = 0);

    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override;
    virtual void showCaption();
    virtual void showToolTip() { toolTip_.show(handle(), control_.ToolTipText); }
    // Follows the colours and the font.
    virtual void showLook();
    // Where the control shall stand in its parent, in pixels.
    virtual RECT rectangle() const { return desktop_win32::rectangle(control_, dpi()); }
    virtual void place();
    // A press brings the focus first; `held` are the buttons of the mouse that were down with it.
    // False where nothing is left of the press.
    bool enter(WPARAM held = MK_LBUTTON);
    // Tells the toolkit that the control has got the focus.
    void reportFocus();

    toolkit::Control& control_;
    ToolTip toolTip_;
};

// A control in the program's own painting.
class PaintedWindow : public ControlWindow {
public:
    using ControlWindow::ControlWindow;

    // Without a ground of its own it paints what lies below it too.
    virtual bool isTransparent() const { return false; }
    // Paints the control with its top left corner at the place.
    virtual void paintAt(HDC dc, POINT place) = 0;

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override;
    void showLook() override { repaint(); }
    // Has the control painted anew, with what stands in front of it.
    void repaint();
    // What the control covers, with its top left corner at the place.
    RECT areaAt(POINT place) const;

private:
    void paint();
    void paintBelow(HDC dc) const;
};

// The control that the window, or the nearest window around it, shows; or nullptr.
toolkit::Control* controlOf(HWND window);

// Makes the windows of all controls in the container, inside `parent`. Later ones stand in front.
void makeControls(toolkit::Container& container, HWND parent);

// For each kind of control, in a file of its name.
std::shared_ptr<ControlWindow> makeControl(toolkit::Label& label, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::CommandButton& button, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::OptionButton& option, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::Frame& frame, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::Image& image, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::PictureBox& box, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::Line& line, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::TextBox& box, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::StatusBar& bar, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::Toolbar& bar, HWND parent);
std::shared_ptr<ControlWindow> makeControl(toolkit::MSFlexGrid& grid, HWND parent);
std::unique_ptr<toolkit::Peer> makeTimer(toolkit::Timer& timer);

} // namespace desktop_win32
