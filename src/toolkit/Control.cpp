#include "toolkit/Control.h"

#include "toolkit/ControlArray.h"
#include "toolkit/Form.h"
#include "toolkit/Keyboard.h"

namespace toolkit {

Control::Control(Container& container, std::string name, std::string caption, Place place)
    : Object(container.ownerForm(), std::move(name)), parent_(&container) {
    Caption = std::move(caption);
    Left = place.Left;
    Top = place.Top;
    Width = place.Width;
    Height = place.Height;
    TabIndex = form().nextTabIndex();
    container.add(*this);
}

Control::Control(Form& owner, std::string name, std::string caption)
    : Object(owner, std::move(name)) {
    Caption = std::move(caption);
}

void Control::joinArray(ControlArrayBase& array, int index) {
    array_ = &array;
    index_ = index;
}

Font Control::font() const {
    return {.name = design.name,
            .size = design.size,
            .bold = FontBold,
            .italic = design.italic,
            .underline = design.underline};
}

std::string Control::spoken() const {
    if (speaks)
        return speaks(*this);
    return spokenAs.empty() ? withoutLetter(Caption) : spokenAs;
}

void Control::announce(const std::string& text) {
    if (form().loaded())
        desktop().announce(*this, text);
}

void Control::SetFocus() {
    desktop().focus(*this);
}

// An element of an array raises an event there, with its index, if the array has a handler.
template <class OfArray, class Own, class... Args>
void Control::raiseEvent(OfArray ControlArrayBase::*ofArray, Own Control::*own, Args&... args) {
    if (array_ && array_->*ofArray)
        raise([&] { (array_->*ofArray)(index_, args...); });
    else if (this->*own)
        raise([&] { (this->*own)(args...); });
}

void Control::click() {
    if (takesInput())
        raiseClick();
}

void Control::raiseClick() {
    raiseEvent(&ControlArrayBase::Click, &Control::Click);
}

void Control::doubleClick() {
    if (takesInput() && DblClick)
        raise(DblClick);
}

void Control::keyDown(int& keyCode, int shift) {
    raiseEvent(&ControlArrayBase::KeyDown, &Control::KeyDown, keyCode, shift);
}

void Control::keyPress(int& keyAscii) {
    raiseEvent(&ControlArrayBase::KeyPress, &Control::KeyPress, keyAscii);
}

void Control::gotFocus() {
    raiseEvent(&ControlArrayBase::GotFocus, &Control::GotFocus);
}

void Control::lostFocus() {
    raiseEvent(&ControlArrayBase::LostFocus, &Control::LostFocus);
}

} // namespace toolkit
