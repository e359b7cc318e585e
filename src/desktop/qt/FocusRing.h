// Shows where the keyboard is.
#pragma once

#include <QPointer>
#include <QWidget>

namespace desktop_qt {

// A line around the widget with the focus, drawn over it. Styles have a hairline there, on one cell
// of a grid, or nothing before the first Tab.
class FocusRing final : public QWidget {
public:
    // `around` has the focus now; nullptr while no widget of a form has it.
    void show(QWidget* around);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPointer<QWidget> around_;
};

} // namespace desktop_qt
