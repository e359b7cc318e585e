// The half of the reader that works inside the program, as a screen reader's does: a hook of the
// system brings it there. It describes a window by what the window answers to messages, and by its
// accessible object where it has one.
#include "Reader.h"

#include <commctrl.h>
#include <oleacc.h>

#include <string>

namespace {

using Text = std::wstring;

Text quoted(const Text& text) {
    Text out = L"\"";
    for (const wchar_t c : text) {
        wchar_t escaped[8];
        swprintf(escaped, 8, L"\\u%04x", static_cast<unsigned>(c));
        out += c < L' ' || c == L'"' || c == L'\\' || c > L'~' ? Text(escaped) : Text(1, c);
    }
    return out + L"\"";
}

// A JSON object or array, as it grows.
class Json {
public:
    explicit Json(const wchar_t* brackets) : brackets_(brackets) {}
    void add(const Text& value) { text_ += (text_.empty() ? L"" : L",") + value; }
    void add(const wchar_t* key, const Text& value) { add(quoted(key) + L":" + value); }
    void add(const wchar_t* key, long long value) { add(key, std::to_wstring(value)); }
    void flag(const wchar_t* key, bool value) { add(key, Text(value ? L"true" : L"false")); }
    Text text() const { return brackets_[0] + text_ + brackets_[1]; }

private:
    const wchar_t* brackets_;
    Text text_;
};

long long number(HWND window) {
    return reinterpret_cast<LONG_PTR>(window);
}

Text place(const RECT& at) {
    Json box(L"[]");
    for (const long value : {at.left, at.top, at.right - at.left, at.bottom - at.top})
        box.add(std::to_wstring(value));
    return box.text();
}
Text place(HWND window, RECT at) {
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&at), 2);
    return place(at);
}

Text menu(HWND window, HMENU of, bool bar) {
    Json entries(L"[]");
    for (int i = 0; i < GetMenuItemCount(of); ++i) {
        wchar_t text[256] = L"";
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_SUBMENU | MIIM_STRING;
        item.dwTypeData = text;
        item.cch = 256;
        if (!GetMenuItemInfoW(of, static_cast<UINT>(i), TRUE, &item) || item.fType & MFT_BITMAP)
            continue; // the buttons that a maximized page has in the bar
        Json entry(L"{}");
        entry.add(L"text", quoted(text));
        entry.flag(L"separator", (item.fType & MFT_SEPARATOR) != 0);
        entry.flag(L"checked", (item.fState & MFS_CHECKED) != 0);
        entry.flag(L"enabled", (item.fState & MFS_DISABLED) == 0);
        RECT at{};
        if (bar && GetMenuItemRect(window, of, static_cast<UINT>(i), &at))
            entry.add(L"box", place(at));
        entry.add(L"entries", item.hSubMenu ? menu(window, item.hSubMenu, false) : L"[]");
        entries.add(entry.text());
    }
    return entries.text();
}

Text toolbar(HWND window) {
    Json buttons(L"[]");
    for (int i = 0; i < SendMessageW(window, TB_BUTTONCOUNT, 0, 0); ++i) {
        TBBUTTON button{};
        SendMessageW(window, TB_GETBUTTON, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&button));
        if (button.fsStyle & BTNS_SEP)
            continue;
        wchar_t text[256] = L"";
        SendMessageW(window, TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand),
                     reinterpret_cast<LPARAM>(text));
        RECT at{};
        SendMessageW(window, TB_GETITEMRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&at));
        Json part(L"{}");
        part.add(L"role", L"\"push button\"");
        part.add(L"text", quoted(text));
        part.flag(L"enabled", (button.fsState & TBSTATE_ENABLED) != 0);
        part.add(L"box", place(window, at));
        buttons.add(part.text());
    }
    return buttons.text();
}

Text statusBar(HWND window) {
    Json panels(L"[]");
    for (int i = 0; i < SendMessageW(window, SB_GETPARTS, 0, 0); ++i) {
        wchar_t text[256] = L"";
        SendMessageW(window, SB_GETTEXTW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        RECT at{};
        SendMessageW(window, SB_GETRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&at));
        Json part(L"{}");
        part.add(L"role", L"\"label\"");
        part.add(L"text", quoted(text));
        part.flag(L"enabled", true);
        part.add(L"box", place(window, at));
        panels.add(part.text());
    }
    return panels.text();
}

// A window's own object for screen readers, or one of its children by its number.
struct Accessible {
    IAccessible* object;
    VARIANT child;

    Accessible(IAccessible* of, long number) : object(of), child{} {
        child.vt = VT_I4;
        child.lVal = number;
    }
    Text description() const {
        Json found(L"{}");
        BSTR name = nullptr, value = nullptr;
        if (object->get_accName(child, &name) == S_OK && name)
            found.add(L"name", quoted(name));
        if (object->get_accValue(child, &value) == S_OK && value)
            found.add(L"value", quoted(value));
        SysFreeString(name);
        SysFreeString(value);
        VARIANT role{}, state{};
        if (object->get_accRole(child, &role) == S_OK)
            found.add(L"role", static_cast<long long>(role.lVal));
        if (object->get_accState(child, &state) == S_OK)
            found.add(L"state", static_cast<long long>(state.lVal));
        long left = 0, top = 0, width = 0, height = 0;
        if (object->accLocation(&left, &top, &width, &height, child) == S_OK)
            found.add(L"box", place(RECT{left, top, left + width, top + height}));
        return found.text();
    }
};

void describeAccessible(HWND window, Json& to) {
    const LRESULT result = SendMessageW(window, WM_GETOBJECT, 0, OBJID_CLIENT);
    IAccessible* object = nullptr;
    if (result <= 0 || FAILED(ObjectFromLresult(result, __uuidof(IAccessible), 0,
                                                reinterpret_cast<void**>(&object))))
        return;
    to.add(L"spoken", Accessible(object, CHILDID_SELF).description());
    // Of a grid its cells; what lies inside others are windows too.
    Json children(L"[]");
    VARIANT role{};
    long count = 0;
    object->get_accRole(Accessible(object, CHILDID_SELF).child, &role);
    if (role.lVal == ROLE_SYSTEM_TABLE)
        object->get_accChildCount(&count);
    for (long i = 1; i <= count; ++i)
        children.add(Accessible(object, i).description());
    to.add(L"parts", children.text());
    object->Release();
}

Text textOf(HWND window) {
    Text text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

Text describe(HWND window) {
    Json found(L"{}");
    wchar_t kind[64] = L"";
    GetClassNameW(window, kind, 64);
    HWND const parent = GetAncestor(window, GA_PARENT);
    wchar_t parentKind[64] = L"";
    GetClassNameW(parent, parentKind, 64);
    const bool page = lstrcmpiW(parentKind, L"MDIClient") == 0;
    RECT at{};
    GetWindowRect(window, &at);
    found.add(L"class", quoted(kind));
    found.add(L"text", quoted(textOf(window)));
    found.add(L"style", GetWindowLongPtrW(window, GWL_STYLE));
    found.add(L"box", place(at));
    found.flag(L"visible", IsWindowVisible(window) != FALSE);
    found.flag(L"enabled", IsWindowEnabled(window) != FALSE);
    found.flag(L"active", GetForegroundWindow() == window);
    found.flag(L"focused", page ? SendMessageW(parent, WM_MDIGETACTIVE, 0, 0) == number(window)
                                : GetFocus() == window);
    if (lstrcmpiW(kind, L"Button") == 0)
        found.flag(L"checked", SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED);
    if (GetMenu(window) && !(GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD))
        found.add(L"menus", menu(window, GetMenu(window), true));
    if (lstrcmpiW(kind, TOOLBARCLASSNAMEW) == 0)
        found.add(L"parts", toolbar(window));
    else if (lstrcmpiW(kind, STATUSCLASSNAMEW) == 0)
        found.add(L"parts", statusBar(window));
    else
        describeAccessible(window, found);
    // From the first made to the last: those of the program stand upon one another.
    const bool box = lstrcmpiW(kind, L"#32770") == 0;
    const UINT next = box ? GW_HWNDNEXT : GW_HWNDPREV;
    HWND child = GetWindow(window, GW_CHILD);
    if (!box && child)
        child = GetWindow(child, GW_HWNDLAST);
    Json children(L"[]");
    for (; child; child = GetWindow(child, next))
        children.add(std::to_wstring(number(child)));
    found.add(L"children", children.text());
    return found.text();
}

void answer(const Text& text) {
    HANDLE const memory = OpenFileMappingW(FILE_MAP_WRITE, FALSE, reader::kAnswer);
    auto* const to = static_cast<reader::Answer*>(MapViewOfFile(memory, FILE_MAP_WRITE, 0, 0, 0));
    if (to) {
        to->length = static_cast<unsigned>(text.size()); // it is ASCII
        for (std::size_t i = 0; i < text.size() && i < sizeof to->json; ++i)
            to->json[i] = static_cast<char>(text[i]);
        UnmapViewOfFile(to);
    }
    CloseHandle(memory);
}

} // namespace

extern "C" __declspec(dllexport) LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam) {
    const auto* const sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && sent->message == reader::question())
        answer(describe(sent->hwnd));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
