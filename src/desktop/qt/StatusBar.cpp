#include "desktop/qt/ControlPeer.h"

#include <QLabel>
#include <QStatusBar>

namespace desktop_qt {

namespace {

class StatusBarPeer final : public ControlPeer {
public:
    StatusBarPeer(toolkit::StatusBar& bar, QStatusBar* widget)
        : ControlPeer(bar, widget), bar_(bar), panel_(new QLabel(widget)) {
        widget->setAccessibleName({}); // its panel is read
        widget->setSizeGripEnabled(false);
        widget->setFixedHeight(pixels(bar.Height));
        panel_->setTextFormat(Qt::PlainText);
        panel_->setFont(widget->font());
        widget->addWidget(panel_, 1);
        showText();
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Text)
            showText();
        else
            ControlPeer::changed(which);
    }

private:
    void showText() {
        panel_->setText(text(bar_.Panels(1).Text));
        panel_->setAccessibleName(text(bar_.spoken()));
    }

    toolkit::StatusBar& bar_;
    QLabel* panel_;
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::StatusBar& bar, QWidget* parent) {
    return std::make_unique<StatusBarPeer>(bar, new QStatusBar(parent));
}

} // namespace desktop_qt
