#include "desktop/qt/ControlPeer.h"

#include <QLineEdit>

namespace desktop_qt {

namespace {

class TextBoxPeer final : public ControlPeer {
public:
    TextBoxPeer(toolkit::TextBox& box, QLineEdit* widget)
        : ControlPeer(box, widget), box_(box), widget_(widget) {
        widget->setAlignment(box.TextAlign == toolkit::Alignment::Right ? Qt::AlignRight
                                                                        : Qt::AlignLeft);
        widget->setText(text(box.Text));
        QObject::connect(widget, &QLineEdit::textEdited, &listener_,
                         [this](const QString& typed) { box_.Text.assume(typed.toStdString()); });
        QObject::connect(widget, &QLineEdit::selectionChanged, &listener_, [this] {
            box_.SelStart.assume(qMax(0, widget_->selectionStart()));
            box_.SelLength.assume(static_cast<int>(widget_->selectedText().size()));
        });
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Text)
            widget_->setText(text(box_.Text));
        else if (which == toolkit::Prop::Selection)
            widget_->setSelection(box_.SelStart, box_.SelLength);
        else
            ControlPeer::changed(which);
    }

private:
    toolkit::TextBox& box_;
    QLineEdit* widget_;
};

} // namespace

std::unique_ptr<ControlPeer> makeTextBox(toolkit::TextBox& box, QWidget* parent) {
    return std::make_unique<TextBoxPeer>(box, new QLineEdit(parent));
}

} // namespace desktop_qt
