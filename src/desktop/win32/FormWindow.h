// The windows of forms: the frame, the pages inside it, and windows of their own.
#pragma once

#include "desktop/win32/ControlWindow.h"
#include "toolkit/Placement.h"

#include <vector>

namespace desktop_win32 {

class FormWindow : public ObjectWindow {
public:
    explicit FormWindow(toolkit::Form& form) : form_(form) {}

    toolkit::Form& form() const { return form_; }
    void changed(toolkit::Prop which) override;
    void lookChanged() override;
    // Makes the window visible, also one that was minimized.
    virtual void show();
    // Puts the window in front of the others, with the focus where the form has it.
    virtual void bringForward() { show(); }
    // Opens the menu of a page's own; does nothing for other windows.
    virtual void openMenu() {}

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Gives the window the size that its form asks for, and tells the form of its borders.
    void fit();
    // Gives the focus to the control of the form that shall have it.
    void takeFocus();
    // Shows the window where its form wants it. One of its own stands within reach on its screen.
    virtual void placeWindow();
    // The window was moved or resized: its form takes that over.
    virtual void moved();

    toolkit::Form& form_;

private:
    void showNewLook();

    toolkit::ShownPlace place_;
};

class FrameWindow final : public FormWindow {
public:
    using FormWindow::FormWindow;
    static std::shared_ptr<FrameWindow> make(toolkit::Form& form);

    // The window that the pages stand in.
    HWND client() const { return client_; }
    // The form of the page in front, or nullptr.
    toolkit::Form* activePage() const;
    // The menus of the page in front take the place of the frame's own, which nullptr brings back.
    void showMenus(HMENU menus);
    void lookChanged() override;

protected:
    LRESULT received(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT byDefault(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void layOut();

    HWND client_ = nullptr;
    HMENU menus_ = nullptr;
};

std::shared_ptr<FormWindow> makePageWindow(toolkit::Form& form,
                                           const std::shared_ptr<FrameWindow>& frame);

class TopLevelWindow final : public FormWindow {
public:
    using FormWindow::FormWindow;
    // `owner` may be nullptr.
    static std::shared_ptr<TopLevelWindow> make(toolkit::Form& form, HWND owner);

    void show() override;
    // Takes the program's other windows out of use until this one goes.
    void block();

protected:
    void destroyWindow() override;

private:
    std::vector<HWND> blocked_;
};

// The window of the form that holds the window, or of the page in front where that is in the
// frame itself; nullptr for windows of no form.
std::shared_ptr<FormWindow> formWindowOf(HWND window);

} // namespace desktop_win32
