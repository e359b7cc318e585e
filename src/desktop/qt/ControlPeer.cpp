#include "desktop/qt/ControlPeer.h"

#include "toolkit/Focus.h"
#include "toolkit/Keyboard.h"

#include <QVariant>

namespace desktop_qt {

using toolkit::Control;
using toolkit::Prop;

namespace {

constexpr const char* kShown = "toolkitObject"; // the property that holds what a widget shows

} // namespace

ControlPeer::ControlPeer(Control& control, QWidget* widget, const char* caption)
    : control_(control), widget_(widget), caption_(caption) {
    mark(*widget, &control);
    widget->setGeometry(rectangle(control));
    widget->setFont(font(control.font()));
    widget->setEnabled(control.Enabled);
    widget->setVisible(control.Visible);
    widget->setToolTip(text(control.ToolTipText));
    if (!toolkit::standsOnForm(control))
        widget->setFocusPolicy(Qt::NoFocus);
    ControlPeer::showCaption();
    speak();
}

ControlPeer::~ControlPeer() {
    if (widget_)
        mark(*widget_, nullptr);
}

void ControlPeer::changed(Prop which) {
    switch (which) {
    case Prop::Caption:
        showCaption();
        return speak();
    case Prop::Enabled:
        widget_->setEnabled(control_.Enabled);
        return showLook();
    case Prop::Visible:
        return widget_->setVisible(control_.Visible);
    case Prop::ForeColor:
    case Prop::FontBold:
        showLook();
        return speak();
    case Prop::Left:
    case Prop::Top:
    case Prop::Width:
    case Prop::Height:
        return widget_->setGeometry(rectangle(control_));
    default:
        return;
    }
}

void ControlPeer::showCaption() {
    if (caption_)
        widget_->setProperty(caption_, text(control_.Caption));
}

void ControlPeer::showLook() {
    if (widget_->font().bold() != control_.FontBold)
        widget_->setFont(font(control_.font()));
}

// What a widget shows it says by itself.
void ControlPeer::speak() {
    const std::string spoken = control_.spoken();
    const bool shown = spoken == toolkit::withoutLetter(control_.Caption);
    widget_->setAccessibleName(shown ? QString() : text(spoken));
}

void mark(QWidget& widget, toolkit::Object* shown) {
    if (shown)
        widget.setObjectName(text(shown->name()));
    widget.setProperty(kShown, QVariant::fromValue(shown));
}

toolkit::Object* shownBy(const QWidget* widget) {
    return widget ? widget->property(kShown).value<toolkit::Object*>() : nullptr;
}

Control* controlOf(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (auto* const control = shownBy<Control>(widget))
            return control;
    return nullptr;
}

QWidget* widgetOf(const Control& control) {
    const auto* const peer = dynamic_cast<const ControlPeer*>(control.peer());
    return peer ? peer->widget() : nullptr;
}

void giveFocus(QWidget& widget) {
    widget.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    widget.setFocus(Qt::OtherFocusReason);
}

void makePeers(toolkit::Container& container, QWidget* parent) {
    for (Control* control : container.controls()) {
        toolkit::asItsKind(*control, [&](auto& it) { it.attach(makePeer(it, parent)); });
        if (auto* const inner = dynamic_cast<toolkit::Container*>(control))
            makePeers(*inner, widgetOf(*control));
    }
}

} // namespace desktop_qt
