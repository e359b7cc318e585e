// The base of the peers of controls: what every widget follows of its control.
#pragma once

#include "desktop/qt/Look.h"
#include "toolkit/Form.h"

#include <QPointer>
#include <QWidget>

namespace desktop_qt {

class ControlPeer : public toolkit::Peer {
public:
    // The widget belongs to its parent widget and may outlive the peer for a while.
    ControlPeer(toolkit::Control& control, QWidget* widget);
    ~ControlPeer() override;

    void changed(toolkit::Prop which) override;
    QWidget* widget() const { return widget_; }

protected:
    // Follows the caption, in whatever way the widget shows it.
    virtual void showCaption() {}
    // Follows the colours and the font.
    virtual void showLook();
    // Follows what a screen reader says.
    void speak();

    toolkit::Control& control_;
    QObject listener_; // what the widget's signals are connected to: it goes with the peer

private:
    QPointer<QWidget> widget_;
};

// The control that the widget, or the nearest widget around it, shows; or nullptr.
toolkit::Control* controlOf(const QWidget* widget);
QWidget* widgetOf(const toolkit::Control& control);

// Gives the widget the focus, so that it is seen.
void giveFocus(QWidget& widget);

// Makes the widgets and peers of all controls in the container, inside `parent`.
void makePeers(toolkit::Container& container, QWidget* parent);

// One a kind of control, each in a file of its own name.
std::unique_ptr<ControlPeer> makeLabel(toolkit::Label& label, QWidget* parent);
std::unique_ptr<ControlPeer> makeCommandButton(toolkit::CommandButton& button, QWidget* parent);
std::unique_ptr<ControlPeer> makeOptionButton(toolkit::OptionButton& option, QWidget* parent);
std::unique_ptr<ControlPeer> makeFrame(toolkit::Frame& frame, QWidget* parent);
std::unique_ptr<ControlPeer> makeImage(toolkit::Image& image, QWidget* parent);
std::unique_ptr<ControlPeer> makePictureBox(toolkit::PictureBox& box, QWidget* parent);
std::unique_ptr<ControlPeer> makeLine(toolkit::Line& line, QWidget* parent);
std::unique_ptr<ControlPeer> makeTextBox(toolkit::TextBox& box, QWidget* parent);
std::unique_ptr<ControlPeer> makeStatusBar(toolkit::StatusBar& bar, QWidget* parent);
std::unique_ptr<ControlPeer> makeToolbar(toolkit::Toolbar& bar, QWidget* parent);
std::unique_ptr<ControlPeer> makeMSFlexGrid(toolkit::MSFlexGrid& grid, QWidget* parent);
std::unique_ptr<toolkit::Peer> makeTimer(toolkit::Timer& timer);

} // namespace desktop_qt
