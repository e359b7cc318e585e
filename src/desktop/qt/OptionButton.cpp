#include "desktop/qt/ControlPeer.h"

#include <QRadioButton>
#include <QSignalBlocker>

namespace desktop_qt {

namespace {

// Its whole area takes the click, not only the mark and the text.
class RadioButton final : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    bool hitButton(const QPoint& place) const override { return rect().contains(place); }
};

class OptionButtonPeer final : public ControlPeer {
public:
    OptionButtonPeer(toolkit::OptionButton& option, QRadioButton* widget)
        : ControlPeer(option, widget, "text"), option_(option), widget_(widget) {
        widget->setChecked(option.Value);
        QObject::connect(widget, &QRadioButton::toggled, &listener, [this](bool checked) {
            if (checked)
                option_.click();
        });
    }

    void changed(toolkit::Prop which) override {
        if (which != toolkit::Prop::Value)
            return ControlPeer::changed(which);
        const QSignalBlocker quiet(widget_);
        widget_->setChecked(option_.Value);
    }

private:
    toolkit::OptionButton& option_;
    QRadioButton* widget_;
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::OptionButton& option, QWidget* parent) {
    return std::make_unique<OptionButtonPeer>(option, new RadioButton(parent));
}

} // namespace desktop_qt
