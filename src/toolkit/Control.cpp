#include "toolkit/Controls.h"
#include "toolkit/Focus.h"
#include "toolkit/Form.h"
#include "toolkit/Keyboard.h"

#include <algorithm>

namespace toolkit {

void tellPeer(Object& owner, Prop which) {
    if (owner.peer())
        owner.peer()->changed(which);
}

void Object::raise(const std::function<void()>& event) {
    if (form_.loaded())
        form_.run(event);
}

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

void Control::SetFocus() {
    desktop().focus(*this);
}

void Control::click() {
    if (takesInput())
        raiseClick();
}

void Control::raiseClick() {
    if (array_ && array_->Click)
        raise([this] { array_->Click(index_); });
    else if (Click)
        raise(Click);
}

void Control::doubleClick() {
    if (takesInput() && DblClick)
        raise(DblClick);
}

void Control::keyDown(int& keyCode, int shift) {
    if (array_ && array_->KeyDown)
        raise([&] { array_->KeyDown(index_, keyCode, shift); });
    else if (KeyDown)
        raise([&] { KeyDown(keyCode, shift); });
}

void Control::keyPress(int& keyAscii) {
    if (array_ && array_->KeyPress)
        raise([&] { array_->KeyPress(index_, keyAscii); });
    else if (KeyPress)
        raise([&] { KeyPress(keyAscii); });
}

void Control::gotFocus() {
    if (array_ && array_->GotFocus)
        raise([this] { array_->GotFocus(index_); });
    else if (GotFocus)
        raise(GotFocus);
}

void Control::lostFocus() {
    if (array_ && array_->LostFocus)
        raise([this] { array_->LostFocus(index_); });
    else if (LostFocus)
        raise(LostFocus);
}

std::shared_ptr<ControlArrayBase> ControlArrayBase::ref() {
    return {form_.shared_from_this(), this};
}

void ControlArrayBase::add(int index, Control& control) {
    if (index >= static_cast<int>(elements_.size()))
        elements_.resize(at(index) + 1);
    elements_[at(index)] = &control;
    control.joinArray(*this, index);
}

void ControlArrayBase::missing(int index) {
    throw platform::RuntimeError(platform::NoSuchElement, "Control array element '" +
                                                              std::to_string(index) +
                                                              "' doesn't exist");
}

void OptionButton::select(bool value) {
    if (selected_ == value)
        return;
    if (value)
        for (Control* control : parent().controls())
            if (auto* other = dynamic_cast<OptionButton*>(control); other && other->selected_) {
                other->selected_ = false;
                tellPeer(*other, Prop::Value);
            }
    selected_ = value;
    tellPeer(*this, Prop::Value);
    // The keyboard goes on from the selected one.
    const auto* const focused = dynamic_cast<const OptionButton*>(form().ActiveControl);
    if (value && focused && focused != this && &focused->parent() == &parent())
        SetFocus();
    if (value)
        raiseClick();
}

void OptionButton::click() {
    if (takesInput())
        select(true);
}

namespace {

bool isArrow(const KeyStroke& stroke) {
    return stroke.code >= key::Left && stroke.code <= key::Down;
}

} // namespace

bool CommandButton::useKey(const KeyStroke& key) {
    if (!isArrow(key))
        return false;
    if (Control* const next = neighbour(*this, key.code))
        next->SetFocus();
    return true;
}

bool OptionButton::useKey(const KeyStroke& key) {
    if (!isArrow(key))
        return false;
    if (Control* const next = neighbour(*this, key.code)) {
        next->SetFocus();
        next->click();
    }
    return true;
}

bool PictureBox::useKey(const KeyStroke& key) {
    if (key.code != key::Space)
        return false;
    if (!key.repeats)
        doubleClick();
    return true;
}

void Timer::fire() {
    if (Enabled && Tick)
        raise(Tick);
}

Property<std::string>& StatusBar::Panels(int index) {
    if (index != 1)
        throw platform::RuntimeError(platform::SubscriptOutOfRange);
    return panel_;
}

void Toolbar::clickButton(const ToolbarButton& button) {
    if (takesInput() && ButtonClick)
        raise([this, button] { ButtonClick(button); });
}

Menu::Menu(Form& owner, std::string name, std::string caption)
    : Control(owner, std::move(name), std::move(caption)) {
    owner.addMenu(*this);
}

Menu::Menu(Menu& above, std::string name, std::string caption, std::function<void()> click)
    : Control(above.form(), std::move(name), std::move(caption)) {
    Click = std::move(click);
    above.entries_.push_back(this);
}

} // namespace toolkit
