// A window of the system and the object that receives its messages.
#pragma once

#include "desktop/win32/System.h"

#include <memory>

namespace desktop_win32 {

// An object stays alive while one of its messages is being handled, so a window may be taken away
// in the midst of its own events. From then on it only does what its class does by itself.
class Window : public std::enable_shared_from_this<Window> {
public:
    virtual ~Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // nullptr once the window has gone.
    HWND handle() const { return handle_; }
    bool gone() const { return gone_ || !handle_; }

    // Takes the window away, with all windows inside it. Nothing reaches their objects any more.
    void destroy();

    // The object of one of the program's own windows; nullptr for any other.
    static std::shared_ptr<Window> of(HWND window);

    // What a control asks or tells its parent comes back to the control. False, or 0, leaves the
    // answer to the parent's class.
    virtual bool commanded(WPARAM /*wParam*/) { return false; }
    virtual bool notified(NMHDR& /*header*/, LRESULT& /*result*/) { return false; }

    // The window stands on a screen of another resolution, or the user has chosen another look.
    virtual void lookChanged() {}

protected:
    Window() = default;

    struct Design {
        const wchar_t* kind; // of the system's windows; nullptr for one of the program's own
        DWORD style = 0, extended = 0;
        HWND parent = nullptr; // or the owner
        RECT place = {};
        HMENU menu = nullptr;
    };
    // Makes the window of a new object; `it` keeps the object until the window goes.
    static void create(const std::shared_ptr<Window>& it, const Design& design);

    virtual LRESULT received(UINT message, WPARAM wParam, LPARAM lParam);
    // What the window's class does with a message by itself.
    virtual LRESULT byDefault(UINT message, WPARAM wParam, LPARAM lParam);
    // Takes the window away from the system. A page goes through its frame.
    virtual void destroyWindow() { DestroyWindow(handle_); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static const wchar_t* ownClass();

    HWND handle_ = nullptr;
    WNDPROC stock_ = nullptr; // of a control of the system's
    bool gone_ = false;
};

} // namespace desktop_win32
