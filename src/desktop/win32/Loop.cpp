#include "desktop/win32/Loop.h"

#include "desktop/win32/FormWindow.h"
#include "desktop/win32/Keys.h"
#include "toolkit/Keyboard.h"

#include <vector>

namespace desktop_win32 {

namespace {

// The characters that a key types are told behind it. They are taken out of the queue first: a
// message box that the key brings up must not find them there.
std::vector<MSG> typedBy(const MSG& key) {
    TranslateMessage(&key);
    std::vector<MSG> typed;
    MSG next{};
    while (PeekMessageW(&next, key.hwnd, WM_CHAR, WM_DEADCHAR, PM_REMOVE) ||
           PeekMessageW(&next, key.hwnd, WM_SYSCHAR, WM_SYSDEADCHAR, PM_REMOVE))
        typed.push_back(next);
    return typed;
}

bool isKey(const MSG& message) {
    return (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) &&
           message.wParam != VK_PROCESSKEY; // an input method has taken it
}

bool movesAmongPages(const std::shared_ptr<FormWindow>& around, MSG& message) {
    const auto root = around ? std::dynamic_pointer_cast<FrameWindow>(
                                   Window::of(GetAncestor(around->handle(), GA_ROOT)))
                             : nullptr;
    return root && TranslateMDISysAccel(root->client(), &message);
}

// Alt and - open the menu of the page in front. The system would ask the frame for the letter, and
// Wine's frame doesn't pass it on.
bool opensPageMenu(const std::vector<MSG>& typed) {
    return !typed.empty() && typed.front().message == WM_SYSCHAR && typed.front().wParam == '-';
}

// What comes without a key: of a panel on the screen, as an input method has it.
void compose(const MSG& packet) {
    for (const MSG& character : typedBy(packet))
        SendMessageW(character.hwnd, WM_IME_CHAR, character.wParam, character.lParam);
}

// Every key goes to the form first, then to the frame, then to the window that has the focus.
void handle(MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_PACKET)
        return compose(message);
    if (!isKey(message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
        return;
    }
    const std::vector<MSG> typed = typedBy(message);
    const auto around = formWindowOf(message.hwnd);
    const bool used = around && toolkit::pressKey(around->form(), keyStroke(message, typed));
    const bool toMenu = around && !used && opensPageMenu(typed);
    if (around && around->form().minimized)
        message.hwnd = around->handle(); // no key may press what can't be seen
    if (toMenu)
        around->openMenu();
    if (used || toMenu) {
        // The system takes Alt for the menu bar's when it comes up with no key seen since.
        if (message.message == WM_SYSKEYDOWN && message.wParam != VK_MENU)
            DefWindowProcW(GetActiveWindow(), WM_SYSKEYDOWN, VK_SHIFT, message.lParam);
        return;
    }
    if (movesAmongPages(around, message))
        return;
    DispatchMessageW(&message);
    for (const MSG& character : typed)
        DispatchMessageW(&character);
}

} // namespace

int runLoop(const std::function<bool()>& done) {
    MSG message{};
    while (!done()) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            const int code = static_cast<int>(message.wParam);
            PostQuitMessage(code);
            return code;
        }
        handle(message);
    }
    return 0;
}

void runWaiting() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        handle(message);
    }
}

} // namespace desktop_win32
