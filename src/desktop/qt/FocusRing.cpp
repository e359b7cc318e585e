#include "desktop/qt/FocusRing.h"

#include "desktop/qt/Style.h"

#include <QEvent>
#include <QPainter>

namespace desktop_qt {

namespace {

constexpr int kLine = 2; // logical pixels

// The highlight where it can be seen on the ground, else the colour of texts.
QColor lineColour(const QPalette& palette) {
    const QColor highlight = palette.color(QPalette::Highlight);
    return contrast(highlight, palette.color(QPalette::Window)) >= 2
               ? highlight
               : palette.color(QPalette::WindowText);
}

} // namespace

void FocusRing::show(QWidget* around) {
    if (around_)
        around_->removeEventFilter(this);
    around_ = around;
    setParent(around ? around->parentWidget() : nullptr);
    if (!around)
        return hide();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    around->installEventFilter(this);
    setGeometry(around->geometry());
    raise();
    setVisible(around->isVisibleTo(parentWidget()));
}

bool FocusRing::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        setGeometry(around_->geometry());
    return false;
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const auto frame = [&](const QColor& colour, double width, double inset) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
    };
    frame(lineColour(palette()), kLine, kLine / 2.0);
    frame(palette().color(QPalette::Base), 1, kLine + 0.5); // sets the line off a dark control
}

} // namespace desktop_qt
