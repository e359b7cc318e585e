// The base of the peers of controls: what every widget follows of its control.
#pragma once

#include "desktop/qt/Look.h"
#include "toolkit/Form.h"

#include <QPointer>
#include <QWidget>

namespace desktop_qt {

class ControlPeer : public toolkit::Peer {
public:
    // The widget belongs to its parent widget and may outlive the peer for a while. `caption` is
    // its property that shows the caption, if one does.
    ControlPeer(toolkit::Control& control, QWidget* widget, const char* caption = nullptr);
    ~ControlPeer() override;

    void changed(toolkit::Prop which) override;
    QWidget* widget() const { return widget_; }

    QObject listener; // what the widget's signals are connected to: it goes with the peer

protected:
    virtual void showCaption();
    // Follows the colours and the font.
    virtual void showLook();
    // Follows what a screen reader says.
    void speak();

    toolkit::Control& control_;

private:
    QPointer<QWidget> widget_;
    const char* caption_;
};

// Has the widget known as the one of a form or control, until `shown` is nullptr.
void mark(QWidget& widget, toolkit::Object* shown);

// What the widget shows, if it is of the kind and hasn't gone; else nullptr.
toolkit::Object* shownBy(const QWidget* widget);
template <class Kind>
Kind* shownBy(const QWidget* widget) {
    return dynamic_cast<Kind*>(shownBy(widget));
}

// The control that the widget, or the nearest widget around it, shows; or nullptr.
toolkit::Control* controlOf(const QWidget* widget);
QWidget* widgetOf(const toolkit::Control& control);

// Gives the widget the focus, so that it is seen.
void giveFocus(QWidget& widget);

// Makes the widgets and peers of all controls in the container, inside `parent`.
void makePeers(toolkit::Container& container, QWidget* parent);

// For each kind of control, in a file of its name. Its widget stands in `parent`.
std::unique_ptr<toolkit::Peer> makePeer(toolkit::Label& label, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::CommandButton& button, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::OptionButton& option, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::Frame& frame, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::Image& image, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::PictureBox& box, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::Line& line, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::TextBox& box, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::StatusBar& bar, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::Toolbar& bar, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::MSFlexGrid& grid, QWidget* parent);
std::unique_ptr<toolkit::Peer> makePeer(toolkit::Timer& timer, QWidget* parent);

} // namespace desktop_qt
