#include "desktop/win32/Notice.h"

#include "desktop/win32/Look.h"

#include <oleacc.h>

namespace desktop_win32 {

namespace {

constexpr int kNotice = 0xFFFF; // the number of the label among the windows of its parent

// Readers ask how urgently a change of a label is to be said. MinGW doesn't have the property.
constexpr GUID kLiveSetting = {
    0xc12bcd8e, 0x2a8e, 0x4950, {0x8a, 0xe7, 0x36, 0x25, 0x11, 0x1d, 0x58, 0xeb}};
constexpr long kPolite = 1; // behind what is just being said

void haveRead(HWND label) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); // a second time changes nothing
    IAccPropServices* properties = nullptr;
    if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                IID_IAccPropServices, reinterpret_cast<void**>(&properties))))
        return;
    VARIANT polite{};
    polite.vt = VT_I4;
    polite.lVal = kPolite;
    properties->SetHwndProp(label, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, kLiveSetting,
                            polite);
    properties->Release();
}

// A label of one pixel, below all else: a hidden one is not read.
HWND makeLabel(HWND window) {
    HWND const label = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 1, 1, window,
                                       reinterpret_cast<HMENU>(static_cast<INT_PTR>(kNotice)),
                                       GetModuleHandleW(nullptr), nullptr);
    SetWindowPos(label, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    haveRead(label);
    return label;
}

} // namespace

void announce(HWND window, const std::string& text) {
    HWND label = GetDlgItem(window, kNotice);
    if (!label)
        label = makeLabel(window);
    SetWindowTextW(label, wide(text).c_str());
    NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, label, OBJID_CLIENT, CHILDID_SELF);
}

} // namespace desktop_win32
