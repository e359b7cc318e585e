#include "desktop/qt/Accessibility.h"

#include "desktop/qt/ControlPeer.h"
#include "desktop/qt/QtDesktop.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>

namespace desktop_qt {

namespace {

constexpr const char* kRole = "accessibleRole"; // the property that holds a widget's role

// There is no event for a text to be said, but a notice that comes up is read.
const QString kNotice = QStringLiteral("notice");

class Described final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = state.invisible || role() == QAccessible::Whitespace;
        return state;
    }
};

QAccessibleInterface* describe(const QString& /*className*/, QObject* object) {
    const QVariant role = object ? object->property(kRole) : QVariant();
    auto* const widget = qobject_cast<QWidget*>(object);
    return widget && role.isValid()
               ? new Described(widget, static_cast<QAccessible::Role>(role.toInt()))
               : nullptr;
}

void give(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(describe); // a second time changes nothing
    widget.setProperty(kRole, static_cast<int>(role));
}

} // namespace

void passByReaders(QLabel& label) {
    give(label, QAccessible::Whitespace);
}

void describeAsDialog(QWidget& window) {
    give(window, QAccessible::Dialog);
}

void QtDesktop::announce(toolkit::Control& control, const std::string& said) {
    const QWidget* const widget = widgetOf(control);
    if (!widget || !QAccessible::isActive())
        return;
    QWidget* const window = widget->window();
    auto* notice = window->findChild<QWidget*>(kNotice, Qt::FindDirectChildrenOnly);
    if (!notice) {
        notice = new QWidget(window);
        notice->setObjectName(kNotice);
        give(*notice, QAccessible::Notification);
        notice->setAttribute(Qt::WA_TransparentForMouseEvents);
        notice->setGeometry(0, 0, 1, 1);
    }
    notice->hide();
    notice->setAccessibleName(text(said));
    notice->show();
}

} // namespace desktop_qt
