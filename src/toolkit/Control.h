// The base of all controls, and what holds them.
#pragma once

#include "toolkit/Object.h"

#include <vector>

namespace toolkit {

// Colours are numbers in blue-green-red order.
using Colour = int;
inline constexpr Colour kBlack = 0;
inline constexpr Colour kRed = 0xFF;
inline constexpr Colour kBlue = 0xFF0000;
inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kThemeColour = -1; // whatever the user's theme has in this place

// Positions and sizes are in twips, 15 to a logical pixel, and count from the container.
struct Place {
    double Left = 0, Top = 0, Width = 0, Height = 0;
    bool operator==(const Place&) const = default;
};

struct Font {
    std::string name = "MS Sans Serif";
    double size = 8.25; // points
    bool bold = false;
    bool italic = false;
    bool underline = false;
};

// The font that a control is designed with; its weight is the control's FontBold.
struct DesignFont {
    std::string name = Font().name;
    double size = Font().size; // points
    bool italic = false;
    bool underline = false;
};

class Control;
class ControlArrayBase;
struct KeyStroke;

// A form or a frame: what controls stand in.
class Container {
public:
    explicit Container(Form& form) : owner_(form) {}
    virtual ~Container() = default;

    Form& ownerForm() const { return owner_; }
    // In the order in which they were made.
    const std::vector<Control*>& controls() const { return controls_; }
    void add(Control& control) { controls_.push_back(&control); }

private:
    Form& owner_;
    std::vector<Control*> controls_;
};

class Control : public Object {
public:
    Control(Container& parent, std::string name, std::string caption = {}, Place place = {});

    Property<std::string> Caption{*this, Prop::Caption};
    Property<bool> Enabled{*this, Prop::Enabled, true};
    Property<bool> Visible{*this, Prop::Visible, true};
    Property<Colour> ForeColor{*this, Prop::ForeColor, kThemeColour};
    Property<bool> FontBold{*this, Prop::FontBold};
    Property<double> Left{*this, Prop::Left};
    Property<double> Top{*this, Prop::Top};
    Property<double> Width{*this, Prop::Width};
    Property<double> Height{*this, Prop::Height};
    std::string Tag;
    int TabIndex = 0; // the order in which Tab visits the controls of a form

    // Design values, which a desktop reads when it makes the control.
    std::string ToolTipText;
    DesignFont design;

    // What a screen reader says of the control where its caption doesn't tell; `speaks` where that
    // goes by the control's state. Both are set before the control is shown.
    std::string spokenAs;
    std::string (*speaks)(const Control& control) = nullptr;

    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void(int& KeyCode, int Shift)> KeyDown;
    std::function<void(int& KeyAscii)> KeyPress;

    // The array that the control is an element of, or nullptr, and its index there.
    ControlArrayBase* array() const { return array_; }
    int index() const { return index_; }
    void joinArray(ControlArrayBase& array, int index);
    Container& parent() const { return *parent_; }

    // The font to be shown.
    Font font() const;
    // What a screen reader says; a desktop asks it anew when the caption, the colour, the weight or
    // the text has changed. The empty text is for a control to be passed by.
    virtual std::string spoken() const;
    // Has a screen reader say `text` once, wherever the focus is.
    void announce(const std::string& text);

    // Gives the control the focus, as the program or the user may.
    void SetFocus();

    // What the user does to it. A disabled or hidden control takes no clicks.
    virtual void click();
    void doubleClick();
    // Key codes and characters that an event sets to 0 are dropped.
    void keyDown(int& keyCode, int shift);
    void keyPress(int& keyAscii);

    // Whether a control of this kind takes the keyboard at all; see takesFocus.
    virtual bool takesKeys() const { return false; }
    // What the control does with a key once the events of the key have been raised; false leaves
    // the key to the desktop.
    virtual bool useKey(const KeyStroke& /*key*/) { return false; }

    // Raised by Screen.focusMoved alone.
    void gotFocus();
    void lostFocus();

protected:
    // A control of `form` that stands in no container.
    Control(Form& form, std::string name, std::string caption);

    void raiseClick();
    bool takesInput() const { return Enabled && Visible; }

private:
    template <class OfArray, class Own, class... Args>
    void raiseEvent(OfArray ControlArrayBase::*ofArray, Own Control::*own, Args&... args);

    Container* parent_ = nullptr;
    ControlArrayBase* array_ = nullptr;
    int index_ = 0;
};

} // namespace toolkit
