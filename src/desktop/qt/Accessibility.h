// What Qt doesn't tell screen readers by itself.
#pragma once

#include <QLabel>

namespace desktop_qt {

// Has screen readers pass the label by; before anything else is done with it, since what they know
// of a widget is settled with its first name.
void passByReaders(QLabel& label);

// Has screen readers take the window for a dialog; else it is a mere group of widgets to them.
void describeAsDialog(QWidget& window);

} // namespace desktop_qt
