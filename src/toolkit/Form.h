// Forms, and the list of the loaded ones.
//
// A form builds its controls in its constructor, with their design values. Show makes and loads it
// on first use; Unload gives it up once no event of it is running, and the next Show starts from
// the design values.
#pragma once

#include "platform/RuntimeError.h"
#include "toolkit/App.h"
#include "toolkit/Controls.h"
#include "toolkit/Desktop.h"
#include "toolkit/Screen.h"

#include <cstdint>

namespace toolkit {

// Why a form is asked whether it may be unloaded.
enum UnloadMode : int {
    FormControlMenu = 0, // the user's control menu or close box
    FormCode = 1,        // the program itself
    AppWindows = 2,      // the session ends, or the system asks the program to
};

class Form : public Object, public Container, public std::enable_shared_from_this<Form> {
public:
    enum class Kind { TopLevel, MDIFrame, MDIChild };

    // `clientWidth` and `clientHeight` are the size inside the border, in twips.
    Form(Kind kind, std::string name, double clientWidth, double clientHeight);

    Property<std::string> Caption{*this, Prop::Caption};
    // The place on the screen or, of an MDI child, in the frame; the size counts the border.
    Property<double> Left{*this, Prop::Left};
    Property<double> Top{*this, Prop::Top};
    Property<double> Width{*this, Prop::Width};
    Property<double> Height{*this, Prop::Height};

    const Kind kind;
    const double clientWidth, clientHeight;
    bool KeyPreview = false; // the form sees a key before the control with the focus gets it
    bool Borderless = false; // no border and no title
    bool MinButton = false;  // a page can be minimized in its frame
    bool minimized = false;  // a desktop has made an icon of the page; it takes no keys then
    Colour BackColor = kThemeColour;

    Control* ActiveControl = nullptr;
    // What the desktop knows the form's window by, from loading to unloading; 0 without a window.
    std::uintptr_t hWnd = 0;
    const std::vector<Menu*>& menuBar() const { return menuBar_; }
    int nextTabIndex() { return tabIndices_++; }
    void addMenu(Menu& menu) { menuBar_.push_back(&menu); }

    // Loads the form if it isn't loaded, and brings it forward.
    void Show(bool modal = false);
    // Runs the form's events of loading once; does nothing on a loaded form.
    void Load();
    // Runs the events of unloading and drops the form. Nothing happens to a form that isn't loaded
    // or is being unloaded already.
    void Unload(UnloadMode mode = FormCode);
    bool loaded() const { return loaded_; }

    // The desktop has found out what its borders add to the client size.
    void setBorders(double width, double height);

    // A key goes to the form before the control with the focus. Both leave 0 in a dropped key.
    void previewKeyDown(int& keyCode, int shift);
    void previewKeyPress(int& keyAscii);

    // Runs `event` while keeping the form alive. A failure that no routine of the form has met goes
    // to `untrapped`.
    void run(const std::function<void()>& event);
    static std::function<void(const Form&, const platform::RuntimeError&)> untrapped;

protected:
    virtual void Form_Load() {}
    virtual void Form_Unload() {}
    virtual void Form_QueryUnload(int& /*Cancel*/, int /*UnloadMode*/) {}
    virtual void Form_KeyDown(int& /*KeyCode*/, int /*Shift*/) {}
    virtual void Form_KeyPress(int& /*KeyAscii*/) {}
    // Gives up the one name through which the form is reached.
    virtual void forget() {}

private:
    void showPage();
    void unloadChildren(UnloadMode mode);
    void dropPeers();

    std::vector<Menu*> menuBar_;
    int tabIndices_ = 0;
    bool loaded_ = false;
    bool unloading_ = false;
};

// A form that exists at most once: `the()` makes it on first use. `Base` is what it has in common
// with other forms.
template <class F, class Base = Form>
class FormOf : public Base {
public:
    using Base::Base;

    static F& the() {
        if (!instance_)
            instance_ = std::make_shared<F>();
        return *instance_;
    }
    // The form if it is loaded, else nullptr.
    static F* ifLoaded() { return instance_ && instance_->loaded() ? instance_.get() : nullptr; }

protected:
    void forget() override { instance_.reset(); }

private:
    static inline std::shared_ptr<F> instance_;
};

// The loaded forms, in the order in which they were loaded, counted from 0.
class FormList {
public:
    int Count() const { return static_cast<int>(loaded_.size()); }
    // Raises SubscriptOutOfRange.
    Form& operator()(int index) const;
    // nullptr without one.
    Form* frame() const;
    Form* withWindow(std::uintptr_t hWnd) const;

private:
    friend class Form;
    std::vector<std::shared_ptr<Form>> loaded_;
};
extern FormList Forms;

} // namespace toolkit
