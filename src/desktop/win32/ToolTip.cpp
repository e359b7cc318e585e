#include "desktop/win32/ToolTip.h"

#include "desktop/win32/Look.h"

namespace desktop_win32 {

ToolTip::~ToolTip() {
    if (window_)
        DestroyWindow(window_);
}

void ToolTip::show(HWND over, const std::string& text) {
    if (!window_ && text.empty())
        return;
    std::wstring shown = wide(text);
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = over;
    tool.uId = reinterpret_cast<UINT_PTR>(over);
    tool.lpszText = shown.data();
    const bool isNew = !window_;
    if (isNew)
        window_ =
            CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0,
                            0, 0, GetAncestor(over, GA_ROOT), nullptr, nullptr, nullptr);
    SendMessageW(window_, isNew ? TTM_ADDTOOLW : TTM_UPDATETIPTEXTW, 0,
                 reinterpret_cast<LPARAM>(&tool));
}

} // namespace desktop_win32
