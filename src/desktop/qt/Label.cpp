#include "desktop/qt/Accessibility.h"
#include "desktop/qt/ControlPeer.h"

#include <QLabel>

namespace desktop_qt {

namespace {

Qt::Alignment alignment(toolkit::Alignment align) {
    switch (align) {
    case toolkit::Alignment::Right:
        return Qt::AlignRight;
    case toolkit::Alignment::Centre:
        return Qt::AlignHCenter;
    default:
        return Qt::AlignLeft;
    }
}

class LabelPeer final : public ControlPeer {
public:
    LabelPeer(toolkit::Label& label, QLabel* widget)
        : ControlPeer(label, widget), label_(label), widget_(widget) {
        widget->setTextFormat(Qt::PlainText);
        widget->setAlignment(alignment(label.shownAlign()) |
                             (label.BorderStyle ? Qt::AlignVCenter : Qt::AlignTop));
        widget->setWordWrap(label.wraps());
        if (label.BorderStyle)
            widget->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        showCaption();
        showLook();
    }

    void showCaption() override {
        widget_->setText(lines(label_.Caption));
        if (label_.shrinksText)
            shrinkText();
        if (label_.AutoSize)
            widget_->resize(widget_->size().expandedTo(widget_->sizeHint()));
    }

    void showLook() override {
        ControlPeer::showLook();
        QPalette palette;
        if (const toolkit::Colour ink = label_.textColour(); ink != toolkit::kThemeColour)
            palette.setColor(QPalette::WindowText, colour(ink));
        if (label_.BackColor != toolkit::kThemeColour) {
            palette.setColor(QPalette::Window, colour(label_.BackColor));
            for (const auto edge : {QPalette::Dark, QPalette::Light})
                palette.setColor(edge, colour(toolkit::kBorder));
            widget_->setAutoFillBackground(true);
        }
        widget_->setPalette(palette);
    }

private:
    // What the smallest size doesn't fit ends in dots.
    void shrinkText() {
        const QString whole = text(label_.Caption);
        const int width = widget_->contentsRect().width() - 2;
        widget_->setFont(fittingFont(label_.font(), whole, width));
        const QString shown = widget_->fontMetrics().elidedText(whole, Qt::ElideRight, width);
        widget_->setText(shown);
        widget_->setToolTip(text(label_.shownTip(shown != whole)));
    }

    toolkit::Label& label_;
    QLabel* widget_;
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::Label& label, QWidget* parent) {
    auto* const widget = new QLabel(parent);
    if (label.isShadow)
        passByReaders(*widget);
    return std::make_unique<LabelPeer>(label, widget);
}

} // namespace desktop_qt
