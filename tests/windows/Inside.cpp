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

// The parts of a tool bar or a status bar, which are no windows.
Text parts(HWND window, bool tools) {
    const auto ask = [=](UINT ofTools, UINT ofStatus, int number, void* answer) {
        return SendMessageW(window, tools ? ofTools : ofStatus, static_cast<WPARAM>(number),
                            reinterpret_cast<LPARAM>(answer));
    };
    Json all(L"[]");
    for (int i = 0; i < ask(TB_BUTTONCOUNT, SB_GETPARTS, 0, nullptr); ++i) {
        TBBUTTON button{0, i, TBSTATE_ENABLED, 0, {}, 0, 0};
        if (tools)
            ask(TB_GETBUTTON, 0, i, &button);
        if (button.fsStyle & BTNS_SEP)
            continue;
        wchar_t text[256] = L"";
        RECT at{};
        ask(TB_GETBUTTONTEXTW, SB_GETTEXTW, button.idCommand, text);
        ask(TB_GETITEMRECT, SB_GETRECT, i, &at);
        Json part(L"{}");
        part.add(L"role", quoted(tools ? L"push button" : L"label"));
        part.add(L"text", quoted(text));
        part.flag(L"enabled", (button.fsState & TBSTATE_ENABLED) != 0);
        part.add(L"box", place(window, at));
        all.add(part.text());
    }
    return all.text();
}

VARIANT child(long number) {
    VARIANT it{};
    it.vt = VT_I4;
    it.lVal = number;
    return it;
}

// What screen readers get of a window, or of one of its children.
Text spoken(IAccessible& object, VARIANT of) {
    Json found(L"{}");
    BSTR name = nullptr;
    if (object.get_accName(of, &name) == S_OK && name)
        found.add(L"name", quoted(name));
    SysFreeString(name);
    VARIANT role{}, state{};
    if (object.get_accRole(of, &role) == S_OK)
        found.add(L"role", role.lVal);
    if (object.get_accState(of, &state) == S_OK)
        found.add(L"state", state.lVal);
    long left = 0, top = 0, width = 0, height = 0;
    if (object.accLocation(&left, &top, &width, &height, of) == S_OK)
        found.add(L"box", place(RECT{left, top, left + width, top + height}));
    return found.text();
}

void describeAccessible(HWND window, Json& to) {
    const LRESULT result = SendMessageW(window, WM_GETOBJECT, 0, OBJID_CLIENT);
    IAccessible* object = nullptr;
    if (result <= 0 || FAILED(ObjectFromLresult(result, __uuidof(IAccessible), 0,
                                                reinterpret_cast<void**>(&object))))
        return;
    to.add(L"spoken", spoken(*object, child(CHILDID_SELF)));
    // Of a grid its cells; what lies inside others are windows too.
    Json children(L"[]");
    VARIANT role{};
    long count = 0;
    object->get_accRole(child(CHILDID_SELF), &role);
    if (role.lVal == ROLE_SYSTEM_TABLE)
        object->get_accChildCount(&count);
    for (long i = 1; i <= count; ++i)
        children.add(spoken(*object, child(i)));
    to.add(L"parts", children.text());
    object->Release();
}

Text classOf(HWND window) {
    wchar_t kind[64] = L"";
    GetClassNameW(window, kind, 64);
    return kind;
}

Text textOf(HWND window) {
    Text text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

bool isA(HWND window, const wchar_t* kind) {
    return lstrcmpiW(classOf(window).c_str(), kind) == 0;
}

Text describe(HWND window) {
    Json found(L"{}");
    HWND const parent = GetAncestor(window, GA_PARENT);
    const bool page = isA(parent, L"MDIClient"), tools = isA(window, TOOLBARCLASSNAMEW);
    RECT at{};
    GetWindowRect(window, &at);
    found.add(L"class", quoted(classOf(window)));
    found.add(L"text", quoted(textOf(window)));
    found.add(L"style", GetWindowLongPtrW(window, GWL_STYLE));
    found.add(L"box", place(at));
    found.flag(L"visible", IsWindowVisible(window) != FALSE);
    found.flag(L"enabled", IsWindowEnabled(window) != FALSE);
    found.flag(L"active", GetForegroundWindow() == window);
    found.flag(L"focused", page ? SendMessageW(parent, WM_MDIGETACTIVE, 0, 0) == number(window)
                                : GetFocus() == window);
    if (isA(window, L"Button"))
        found.flag(L"checked", SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED);
    if (GetMenu(window) && !(GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD))
        found.add(L"menus", menu(window, GetMenu(window), true));
    if (tools || isA(window, STATUSCLASSNAMEW))
        found.add(L"parts", parts(window, tools));
    else
        describeAccessible(window, found);
    // From the first made to the last: those of the program stand upon one another.
    const bool box = isA(window, L"#32770");
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
