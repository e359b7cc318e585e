// The yardstick for the program's start and memory on Windows: the least that a program of its kind
// shows there, a frame with an area of child windows, a toolbar, a status bar and 49 labels.
#include <windows.h>
// Builds on it.
#include <commctrl.h>

namespace {

HWND client = nullptr;

LRESULT CALLBACK framed(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefFrameProcW(window, client, message, wParam, lParam);
}

HWND make(const wchar_t* kind, const wchar_t* text, DWORD style, RECT place, HWND parent,
          void* with = nullptr) {
    return CreateWindowExW(0, kind, text, style | WS_VISIBLE, place.left, place.top, place.right,
                           place.bottom, parent, nullptr, GetModuleHandleW(nullptr), with);
}

void fill(HWND frame) {
    HWND const bar = make(TOOLBARCLASSNAMEW, L"", WS_CHILD, {}, frame);
    SendMessageW(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    for (int i = 0; i < 6; ++i) {
        TBBUTTON button{};
        button.iBitmap = I_IMAGENONE;
        button.fsState = TBSTATE_ENABLED;
        button.iString = reinterpret_cast<INT_PTR>(L"1");
        SendMessageW(bar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    }
    CLIENTCREATESTRUCT pages{nullptr, 0xC000};
    client = make(L"MDICLIENT", L"", WS_CHILD | WS_CLIPCHILDREN, {0, 44, 400, 440}, frame, &pages);
    make(STATUSCLASSNAMEW, L"", WS_CHILD, {}, frame);
    for (int n = 0; n < 49; ++n)
        make(L"STATIC", L"49", WS_CHILD, {400 + n % 7 * 42, 50 + n / 7 * 42, 41, 41}, frame);
}

} // namespace

int main() {
    WNDCLASSW kind{};
    kind.lpfnWndProc = framed;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    kind.lpszClassName = L"BareWindow";
    RegisterClassW(&kind);
    HWND const frame = make(kind.lpszClassName, L"Bare window", WS_OVERLAPPEDWINDOW,
                            {100, 100, 727, 580}, nullptr);
    fill(frame);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
