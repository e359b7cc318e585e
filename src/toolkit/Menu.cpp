#include "toolkit/Menu.h"

#include "toolkit/Form.h"

namespace toolkit {

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
