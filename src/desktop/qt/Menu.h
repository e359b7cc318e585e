// A form's menus as actions of a widget, from which the frame's menu bar takes them.
#pragma once

#include "toolkit/Form.h"

#include <QWidget>

namespace desktop_qt {

// Makes the actions and peers of the form's menus.
void addMenus(toolkit::Form& form, QWidget& widget);

} // namespace desktop_qt
