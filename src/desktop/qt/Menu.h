// A form's menus as actions that a menu bar takes in.
#pragma once

#include "toolkit/Form.h"

#include <QAction>
#include <QList>
#include <QWidget>

namespace desktop_qt {

// Makes the actions and peers of the form's menus. They belong to `parent`.
QList<QAction*> makeMenus(toolkit::Form& form, QWidget* parent);

} // namespace desktop_qt
