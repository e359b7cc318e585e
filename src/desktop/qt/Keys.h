// A key of Qt's as the toolkit takes it.
#pragma once

#include "toolkit/Keyboard.h"

#include <QKeyEvent>

namespace desktop_qt {

toolkit::KeyStroke keyStroke(const QKeyEvent& event);

} // namespace desktop_qt
