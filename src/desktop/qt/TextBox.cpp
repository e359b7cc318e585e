#include "desktop/qt/ControlPeer.h"

#include <QInputMethodEvent>
#include <QLineEdit>

namespace desktop_qt {

namespace {

class BoxWidget final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    // Characters that an input method or a dead key composes are typed like any others.
    void inputMethodEvent(QInputMethodEvent* event) override {
        QString typed;
        for (const QChar character : event->commitString()) {
            int ascii = character.unicode();
            if (toolkit::Control* const box = controlOf(this))
                box->keyPress(ascii);
            if (ascii != 0)
                typed += QChar(ascii);
        }
        QInputMethodEvent kept(event->preeditString(), event->attributes());
        if (!typed.isEmpty())
            kept.setCommitString(typed, event->replacementStart(), event->replacementLength());
        QLineEdit::inputMethodEvent(&kept);
    }
};

class TextBoxPeer final : public ControlPeer {
public:
    TextBoxPeer(toolkit::TextBox& box, QLineEdit* widget)
        : ControlPeer(box, widget), box_(box), widget_(widget) {
        widget->setAlignment(box.TextAlign == toolkit::Alignment::Right ? Qt::AlignRight
                                                                        : Qt::AlignLeft);
        showText();
        QObject::connect(widget, &QLineEdit::textEdited, &listener_,
                         [this](const QString& typed) { box_.Text.assume(typed.toStdString()); });
        QObject::connect(widget, &QLineEdit::selectionChanged, &listener_, [this] {
            box_.SelStart.assume(qMax(0, widget_->selectionStart()));
            box_.SelLength.assume(static_cast<int>(widget_->selectedText().size()));
        });
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Text)
            showText();
        else if (which == toolkit::Prop::Selection)
            widget_->setSelection(box_.SelStart, box_.SelLength);
        else
            ControlPeer::changed(which);
    }

private:
    void showText() {
        widget_->setText(text(box_.Text));
        widget_->setCursorPosition(0); // a long text shows its beginning
    }

    toolkit::TextBox& box_;
    QLineEdit* widget_;
};

} // namespace

std::unique_ptr<ControlPeer> makeTextBox(toolkit::TextBox& box, QWidget* parent) {
    return std::make_unique<TextBoxPeer>(box, new BoxWidget(parent));
}

} // namespace desktop_qt
