#include "desktop/win32/Menu.h"

#include "desktop/win32/Look.h"

#include <algorithm>
#include <vector>

namespace desktop_win32 {

namespace {

// The entries by the numbers of their commands, from 1 on; nullptr where a number is free again.
std::vector<toolkit::Menu*>& entries() {
    static std::vector<toolkit::Menu*> all{nullptr};
    return all;
}

UINT numberOf(toolkit::Menu& menu) {
    auto& all = entries();
    auto free = std::find(all.begin() + 1, all.end(), nullptr);
    if (free == all.end())
        free = all.insert(free, nullptr);
    *free = &menu;
    return static_cast<UINT>(free - all.begin());
}

class MenuPeer final : public toolkit::Peer {
public:
    MenuPeer(toolkit::Menu& menu, HMENU in, HMENU submenu)
        : menu_(menu), in_(in), submenu_(submenu), number_(numberOf(menu)) {
        MENUITEMINFOW item = look();
        InsertMenuItemW(in, static_cast<UINT>(GetMenuItemCount(in)), TRUE, &item);
    }
    ~MenuPeer() override { entries()[number_] = nullptr; }

    void changed(toolkit::Prop /*which*/) override {
        MENUITEMINFOW item = look();
        SetMenuItemInfoW(in_, number_, FALSE, &item);
    }

private:
    MENUITEMINFOW look() {
        caption_ = wide(menu_.Caption);
        if (!menu_.Shortcut.empty())
            caption_ += L'\t' + wide(menu_.Shortcut);
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE | MIIM_SUBMENU;
        if (!menu_.isSeparator())
            item.fMask |= MIIM_STRING;
        item.fType = menu_.isSeparator() ? MFT_SEPARATOR : MFT_STRING;
        item.fState = static_cast<UINT>((menu_.Enabled ? MFS_ENABLED : MFS_DISABLED) |
                                        (menu_.Checked ? MFS_CHECKED : MFS_UNCHECKED));
        item.wID = number_;
        item.hSubMenu = submenu_;
        item.dwTypeData = caption_.data();
        return item;
    }

    toolkit::Menu& menu_;
    HMENU in_, submenu_;
    UINT number_;
    std::wstring caption_;
};

void add(toolkit::Menu& menu, HMENU to) {
    HMENU submenu = nullptr;
    if (!menu.entries().empty()) {
        submenu = CreatePopupMenu();
        for (toolkit::Menu* const entry : menu.entries())
            add(*entry, submenu);
    }
    menu.attach(std::make_unique<MenuPeer>(menu, to, submenu));
}

} // namespace

HMENU makeMenus(toolkit::Form& form) {
    if (form.menuBar().empty())
        return nullptr;
    HMENU const bar = CreateMenu();
    for (toolkit::Menu* const menu : form.menuBar())
        add(*menu, bar);
    return bar;
}

void destroyMenus(HMENU bar) {
    if (bar)
        DestroyMenu(bar);
}

bool chooseMenu(UINT id) {
    if (id >= entries().size() || !entries()[id])
        return false;
    entries()[id]->click();
    return true;
}

} // namespace desktop_win32
