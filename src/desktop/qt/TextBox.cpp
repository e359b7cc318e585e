#include "desktop/qt/ControlPeer.h"
#include "toolkit/Keyboard.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFrame>

#include <utility>

namespace desktop_qt {

namespace {

// A click that brings the focus leaves what the program has selected when the focus came.
class LineEdit final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->modifiers().testFlag(Qt::AltModifier))
            event->ignore(); // a menu's letter that no menu has is no text
        else
            QLineEdit::keyPressEvent(event);
    }
    // Characters that an input method or a dead key composes are typed like any others.
    void inputMethodEvent(QInputMethodEvent* event) override {
        auto* const box = shownBy<toolkit::TextBox>(this);
        const QString typed =
            box ? desktop_qt::text(toolkit::typeText(*box, event->commitString().toStdString()))
                : QString();
        QInputMethodEvent kept(event->preeditString(), event->attributes());
        if (!typed.isEmpty())
            kept.setCommitString(typed, event->replacementStart(), event->replacementLength());
        QLineEdit::inputMethodEvent(&kept);
    }
    void focusInEvent(QFocusEvent* event) override {
        entered_ = event->reason() == Qt::MouseFocusReason;
        QLineEdit::focusInEvent(event);
    }
    void mousePressEvent(QMouseEvent* event) override {
        entering_ = std::exchange(entered_, false) && hasSelectedText();
        if (!entering_)
            QLineEdit::mousePressEvent(event);
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!entering_)
            QLineEdit::mouseMoveEvent(event);
    }

private:
    bool entered_ = false;  // the focus came by a press that is still to be told
    bool entering_ = false; // that press is the last
};

class TextBoxPeer final : public ControlPeer {
public:
    TextBoxPeer(toolkit::TextBox& box, QLineEdit* widget)
        : ControlPeer(box, widget), box_(box), widget_(widget) {
        widget->setAlignment(box.TextAlign == toolkit::Alignment::Right ? Qt::AlignRight
                                                                        : Qt::AlignLeft);
        widget->setReadOnly(box.Locked);
        QObject::connect(widget, &QLineEdit::textChanged, &listener, [this](const QString& now) {
            // Typed, pasted, or set by a screen reader. What is only shown stays as it is in the
            // box's own text, bytes that are no character too.
            if (now != text(box_.Text))
                box_.Text.assume(now.toStdString());
            if (box_.shrinksText)
                shrinkText();
        });
        showText();
        QObject::connect(widget, &QLineEdit::selectionChanged, &listener, [this] {
            const int from = qMax(0, widget_->selectionStart());
            const auto count = static_cast<int>(widget_->selectedText().size());
            box_.assumeSelection(widget_->text().toStdString(), {from, from + count});
        });
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Text)
            showText();
        else if (which == toolkit::Prop::Selection)
            select();
        else
            ControlPeer::changed(which);
    }

private:
    void select() {
        const auto [from, to] = box_.selectionIn(widget_->text().toStdString());
        widget_->setSelection(from, to - from);
    }

    void showText() {
        widget_->setText(text(box_.Text));
        widget_->setCursorPosition(0); // a long text shows its beginning
    }

    // Of a text that the smallest size doesn't fit the beginning is shown, until it is worked on.
    void shrinkText() {
        QStyleOptionFrame option;
        option.initFrom(widget_);
        const QStyle& style = *widget_->style();
        const int frame = style.pixelMetric(QStyle::PM_DefaultFrameWidth, &option, widget_);
        const int width = widget_->width() - 2 * (frame + kMargin);
        widget_->setFont(fittingFont(box_.font(), widget_->text(), width));
        if (!widget_->isModified() &&
            widget_->fontMetrics().horizontalAdvance(widget_->text()) > width)
            widget_->home(false);
    }

    static constexpr int kMargin = 3; // of a line edit between its frame and its text, in pixels

    toolkit::TextBox& box_;
    QLineEdit* widget_;
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::TextBox& box, QWidget* parent) {
    return std::make_unique<TextBoxPeer>(box, new LineEdit(parent));
}

} // namespace desktop_qt
