#include "toolkit/Keyboard.h"

#include "toolkit/Focus.h"
#include "toolkit/Form.h"

#include <cctype>

namespace toolkit {

namespace {

template <class Test>
CommandButton* findButton(const Form& form, Test test) {
    for (Control* const control : allControls(form))
        if (auto* const button = dynamic_cast<CommandButton*>(control); button && test(*button))
            return button;
    return nullptr;
}

CommandButton* buttonNamed(const Form& form, const KeyStroke& key) {
    if (key.shift != AltDown)
        return nullptr;
    return findButton(form, [&](const CommandButton& button) {
        return takesFocus(button) && letterOf(button.Caption) == key.code && key.code != 0;
    });
}

// Esc presses the Cancel button, Alt and a letter the button with that letter. Enter presses the
// button with the focus, else the Default button, but picks a row where a grid has the focus.
CommandButton* buttonFor(const Form& form, const KeyStroke& key, Control* focused) {
    if (CommandButton* const named = buttonNamed(form, key))
        return named;
    if (key.code == key::Escape)
        return findButton(form, [](const CommandButton& button) { return button.Cancel; });
    if (key.code != key::Enter)
        return nullptr;
    auto* const button = dynamic_cast<CommandButton*>(focused);
    return button || dynamic_cast<MSFlexGrid*>(focused)
               ? button
               : findButton(form, [](const CommandButton& it) { return it.Default; });
}

void press(CommandButton& button, const KeyStroke& key) {
    if (key.shift == AltDown)
        button.SetFocus();
    if (!key.repeats) // a held Esc closes one page, not those below it
        button.click();
}

// The entry with the key as its shortcut, in the menus that stand in the bar.
Menu* entryFor(const std::vector<Menu*>& menus, const std::string& shortcut) {
    for (Menu* const menu : menus) {
        if (!menu->Enabled || !menu->Visible)
            continue;
        if (menu->entries().empty() && menu->Shortcut == shortcut)
            return menu;
        if (Menu* const entry = entryFor(menu->entries(), shortcut))
            return entry;
    }
    return nullptr;
}

Menu* entryFor(const Form& form, const KeyStroke& key) {
    if (key.code < key::F1 || key.code >= key::F1 + 24 || key.shift != 0)
        return nullptr;
    return entryFor(form.menuBar(), "F" + std::to_string(key.code - key::F1 + 1));
}

bool isTab(const KeyStroke& key) {
    return key.code == key::Tab && (key.shift & ~ShiftDown) == 0;
}

// Keys that go about the form are not the control's to drop, and neither is copying: it changes
// nothing.
bool passesControl(const KeyStroke& key) {
    return key.code == key::Tab || key.copies;
}

// Whether the events have left nothing of the key. A handler that unloads the form has used it up.
bool raiseEvents(Form& form, const KeyStroke& key, Control* told) {
    int code = key.code;
    if (told)
        told->keyDown(code, key.shift);
    if (code == 0 || !form.loaded())
        return true;
    int character = key.character;
    if (character == 0)
        return false;
    form.previewKeyPress(character);
    if (told && form.loaded() && character != 0)
        told->keyPress(character);
    return character == 0 || !form.loaded();
}

} // namespace

char letterOf(const std::string& caption) {
    std::size_t at = caption.find('&');
    while (at < caption.size() &&
           caption.substr(at + 1, 1) == "&") // two stand for one that is shown
        at = caption.find('&', at + 2);
    if (at == std::string::npos || at + 1 == caption.size())
        return 0;
    return static_cast<char>(std::toupper(static_cast<unsigned char>(caption[at + 1])));
}

std::string withoutLetter(const std::string& caption) {
    std::string read;
    for (std::size_t at = 0; at < caption.size(); ++at) {
        at += caption[at] == '&' ? 1 : 0;
        read += caption.substr(at, 1);
    }
    return read;
}

bool comesBeforeMenus(const Form& form, const KeyStroke& key) {
    return buttonNamed(form, key) || entryFor(form, key);
}

bool pressKey(Form& form, const KeyStroke& key) {
    const auto keep = form.shared_from_this();
    if (Menu* const entry = entryFor(form, key)) {
        if (!key.repeats) // one press is one draw
            entry->click();
        return true;
    }
    if (form.minimized)
        return false; // Esc would close a page that can't be seen
    int code = key.code;
    form.previewKeyDown(code, key.shift);
    if (code == 0 || !form.loaded())
        return true;
    Control* const active = form.ActiveControl;
    Control* const focused = active && takesFocus(*active) ? active : nullptr;
    CommandButton* const button = buttonFor(form, key, focused);
    if (raiseEvents(form, key, button || passesControl(key) ? nullptr : focused))
        return true;
    if (button) {
        press(*button, key);
        return true;
    }
    if (isTab(key)) {
        if (Control* const next = nextInTabOrder(form, key.shift == ShiftDown))
            next->SetFocus();
        return true;
    }
    Control* const now = form.ActiveControl;
    return now && takesFocus(*now) && (key.shift & AltDown) == 0 && now->useKey(key);
}

std::string typeText(TextBox& box, const std::string& text) {
    std::string left;
    for (const char32_t typed : codePoints(text)) {
        int character = static_cast<int>(typed);
        if (box.form().loaded())
            box.form().previewKeyPress(character);
        if (character != 0)
            box.keyPress(character);
        if (character != 0)
            left += utf8(static_cast<char32_t>(character));
    }
    return left;
}

} // namespace toolkit
