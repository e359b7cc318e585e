#include "toolkit/Form.h"

#include "toolkit/Focus.h"

#include <algorithm>
#include <new>
#include <utility>

namespace toolkit {

FormList Forms;
std::function<void(const Form&, const platform::RuntimeError&)> Form::untrapped;

Form::Form(Kind theKind, std::string name, double width, double height)
    : Object(*this, std::move(name)),
      Container(*this),
      kind(theKind),
      clientWidth(width),
      clientHeight(height) {
    Width = width;
    Height = height;
}

void Form::setBorders(double width, double height) {
    Width.assume(clientWidth + width);
    Height.assume(clientHeight + height);
}

void Form::run(const std::function<void()>& event) {
    const auto keep = shared_from_this();
    try {
        event();
    } catch (const platform::RuntimeError& error) {
        if (untrapped)
            untrapped(*this, error);
    } catch (const std::bad_alloc&) {
        if (untrapped)
            untrapped(*this, platform::RuntimeError(platform::OutOfMemory));
    }
}

void Form::Load() {
    if (loaded_)
        return;
    loaded_ = true;
    Forms.loaded_.push_back(shared_from_this());
    desktop().open(*this);
    run([this] { Form_Load(); });
}

void Form::Show(bool modal) {
    const auto keep = shared_from_this();
    Load();
    if (!loaded_)
        return; // loading it has unloaded it
    if (kind == Kind::MDIChild)
        return showPage();
    Screen.activated(*this);
    desktop().show(*this, modal);
}

// The focus moves before the window does, as a box on the page in front may take it back: then that
// page stays in front.
void Form::showPage() {
    if (Control* const target = focusTarget(*this))
        Screen.focusMoved(*target);
    else
        Screen.activated(*this);
    if (!loaded_)
        return;
    const auto front = Screen.ActiveForm()->shared_from_this();
    desktop().show(*this, false);
    if (front->loaded() && front->kind == Kind::MDIChild)
        Screen.bringForward(*front);
}

void Form::Unload(UnloadMode mode) {
    if (!loaded_ || unloading_)
        return;
    const auto keep = shared_from_this();
    int cancel = 0;
    run([&] { Form_QueryUnload(cancel, mode); });
    if (cancel != 0 || !loaded_ || unloading_)
        return; // kept, or unloaded by the event itself
    unloading_ = true;
    if (kind == Kind::MDIFrame)
        unloadChildren(mode);
    run([this] { Form_Unload(); });
    loaded_ = unloading_ = false;
    std::erase(Forms.loaded_, keep);
    const bool wasInFront = Screen.ActiveForm() == this;
    Screen.forget(*this);
    // The page below comes forward, before a desktop brings one of its own choice.
    Form* const next = Screen.ActiveForm();
    if (wasInFront && kind == Kind::MDIChild && next && next->kind == Kind::MDIChild)
        Screen.bringForward(*next);
    dropPeers();
    forget();
    // The event that runs may show another form.
    desktop().later([] {
        if (Forms.Count() == 0)
            desktop().endLoop();
    });
}

void Form::unloadChildren(UnloadMode mode) {
    const auto loaded = Forms.loaded_;
    for (auto form = loaded.rbegin(); form != loaded.rend(); ++form)
        if ((*form)->kind == Kind::MDIChild)
            (*form)->Unload(mode);
}

namespace {

void dropPeersIn(const Container& container) {
    for (Control* control : container.controls()) {
        if (const auto* inner = dynamic_cast<const Container*>(control))
            dropPeersIn(*inner);
        // A container has no null, whatever the cast says. NOLINTNEXTLINE(clang-analyzer-core.*)
        control->attach(nullptr);
    }
}

void dropPeersOf(const std::vector<Menu*>& menus) {
    for (Menu* menu : menus) {
        dropPeersOf(menu->entries());
        menu->attach(nullptr);
    }
}

} // namespace

// The window goes first, with all that stands in it.
void Form::dropPeers() {
    attach(nullptr);
    hWnd = 0;
    dropPeersIn(*this);
    dropPeersOf(menuBar_);
}

void Form::previewKeyDown(int& keyCode, int shift) {
    if (loaded_ && KeyPreview)
        run([&] { Form_KeyDown(keyCode, shift); });
}

void Form::previewKeyPress(int& keyAscii) {
    if (loaded_ && KeyPreview)
        run([&] { Form_KeyPress(keyAscii); });
}

Form& FormList::operator()(int index) const {
    if (index < 0 || index >= Count())
        throw platform::RuntimeError(platform::SubscriptOutOfRange);
    return *loaded_[static_cast<std::size_t>(index)];
}

namespace {

template <class Test>
Form* findForm(Test test) {
    for (int i = 0; i < Forms.Count(); ++i)
        if (test(Forms(i)))
            return &Forms(i);
    return nullptr;
}

} // namespace

Form* FormList::frame() const {
    return findForm([](const Form& form) { return form.kind == Form::Kind::MDIFrame; });
}

Form* FormList::withWindow(std::uintptr_t hWnd) const {
    return findForm([=](const Form& form) { return form.hWnd == hWnd; });
}

} // namespace toolkit
