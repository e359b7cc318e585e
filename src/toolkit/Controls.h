// The plain controls.
#pragma once

#include "toolkit/ControlArray.h"
#include "toolkit/Drawing.h"
#include "toolkit/Text.h"

namespace toolkit {

enum class Alignment { Left, Right, Centre };

class Label : public Control {
public:
    using Control::Control;

    Colour BackColor = kThemeColour;
    bool BorderStyle = false; // a fixed single border
    bool AutoSize = false;    // grows with its text, so that nothing is cut off
    Alignment TextAlign = Alignment::Left;
    bool shrinksText = false; // a smaller font, rather than a long text cut off
    // A number that a draw marks: a screen reader says "17, drawn" while it is red.
    bool speaksMarks = false;
};

class CommandButton : public Control {
public:
    using Control::Control;

    bool Cancel = false;      // Esc presses it
    bool Default = false;     // Enter presses it
    bool speaksPicks = false; // a screen reader says "17, picked" while it is bold

    bool takesKeys() const override { return true; }
    // The arrow keys move the focus to the button that stands there.
    bool useKey(const KeyStroke& key) override;
};

class OptionButton : public Control {
public:
    using Control::Control;

    bool selected() const { return selected_; }
    // Setting True on an option that isn't selected clears the others of its container and fires
    // Click at once; on the selected one it does nothing.
    void select(bool value);
    Accessor<OptionButton, bool, &OptionButton::selected, &OptionButton::select> Value{*this};

    void click() override;
    bool takesKeys() const override { return true; }
    // The arrow keys select the option that stands there.
    bool useKey(const KeyStroke& key) override;

private:
    bool selected_ = false;
};

class Frame : public Control, public Container {
public:
    Frame(Container& parent, std::string name, std::string caption = {}, Place place = {})
        : Control(parent, std::move(name), std::move(caption), place),
          Container(parent.ownerForm()) {}
};

// What shows a picture. A named drawing fills the control, a bitmap is enlarged without blurring.
class PictureControl : public Control {
public:
    using Control::Control;

    Property<Drawing> Picture{*this, Prop::Picture};
};

class Image : public PictureControl {
public:
    using PictureControl::PictureControl;
};

// A picture in a sunken border, which takes the focus. The space bar acts like a double click.
class PictureBox : public PictureControl {
public:
    using PictureControl::PictureControl;

    bool takesKeys() const override { return true; }
    bool useKey(const KeyStroke& key) override;
};

// A horizontal rule.
class Line : public Control {
public:
    Line(Container& parent, std::string name, double x1, double x2, double y)
        : Control(parent, std::move(name), {}, {x1, y, x2 - x1, 0}) {}
};

class TextBox : public Control {
public:
    using Control::Control;

    Property<std::string> Text{*this, Prop::Text};
    // The selected text, in characters.
    Property<int> SelStart{*this, Prop::Selection};
    Property<int> SelLength{*this, Prop::Selection};
    Alignment TextAlign = Alignment::Left;
    bool shrinksText = false; // a smaller font, rather than a long text cut off
    bool Locked = false;      // the user can select and copy the text, not change it

    bool takesKeys() const override { return true; }
};

// Fires in the event loop, so it never interrupts running code.
class Timer : public Control {
public:
    using Control::Control;

    Property<int> Interval{*this, Prop::Interval}; // milliseconds
    std::function<void()> Tick;

    void fire();
};

class StatusBar : public Control {
public:
    using Control::Control;

    // The panel's text. Panels count from 1; there is one.
    Property<std::string>& Panels(int index);

private:
    Property<std::string> panel_{*this, Prop::Text};
};

// The pictures of a toolbar, by the desktop's resource names, counted from 1.
struct ImageList {
    std::vector<std::string> ListImages;
};

// A button of a toolbar; a separator has no key.
struct ToolbarButton {
    std::string Key;
    std::string ToolTipText;
    int Image = 0;
};

class Toolbar : public Control {
public:
    using Control::Control;

    std::vector<ToolbarButton> Buttons;
    const ImageList* Images = nullptr;
    std::function<void(const ToolbarButton& Button)> ButtonClick;

    void clickButton(const ToolbarButton& button);
};

// An entry of a menu bar, of a menu or of a submenu. The caption "-" makes a separator.
class Menu : public Control {
public:
    Menu(Form& owner, std::string name, std::string caption);
    Menu(Menu& above, std::string name, std::string caption, std::function<void()> click = {});

    Property<bool> Checked{*this, Prop::Checked};
    std::string Shortcut; // "F5"; acts like a click while the entry's menu stands in the bar

    const std::vector<Menu*>& entries() const { return entries_; }
    bool isSeparator() const { return Caption.get() == "-"; }

private:
    std::vector<Menu*> entries_;
};

} // namespace toolkit
