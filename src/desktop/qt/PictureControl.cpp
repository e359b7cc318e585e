#include "desktop/qt/ControlPeer.h"

#include <QLabel>
#include <QMouseEvent>
#include <QtMath>

#include <map>

namespace desktop_qt {

namespace {

using toolkit::Bitmap;

// Every pixel becomes a block first, so that edges stay sharp at any resolution.
QPixmap enlarged(const Bitmap& bitmap, QSize size, double ratio) {
    QImage image(bitmap.width, bitmap.height, QImage::Format_RGB32);
    auto pixel = bitmap.pixels.begin();
    for (int y = 0; y < bitmap.height; ++y)
        for (int x = 0; x < bitmap.width; ++x)
            image.setPixelColor(x, y, colour(*pixel++));
    const QSize target = (QSizeF(size) * ratio).toSize();
    const int block = qMax(1, qCeil(1.0 * target.width() / bitmap.width));
    QPixmap pixmap =
        QPixmap::fromImage(image.scaled(image.size() * block)
                               .scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

// Shows a drawing in the pixels of the screen that it is on, another one's when its window moves.
class PictureWidget final : public QLabel {
public:
    using QLabel::QLabel;

    void draw() {
        const auto* const control = shownBy<toolkit::PictureControl>(this);
        if (!control || !control->Visible)
            return; // it only stores a picture
        const toolkit::Drawing& drawing = control->Picture;
        const QSize size = contentsRect().size();
        const double ratio = devicePixelRatioF();
        if (!drawing.bitmap())
            return setPixmap(pixmapOf(drawing.name(), size, ratio));
        QPixmap& pixmap = enlarged_[drawing.bitmap()];
        if (pixmap.isNull() || pixmap.devicePixelRatio() != ratio)
            pixmap = enlarged(*drawing.bitmap(), size, ratio);
        setPixmap(pixmap);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        if (!pixmap().isNull() && pixmap().devicePixelRatio() != devicePixelRatioF())
            draw();
        QLabel::paintEvent(event);
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        auto* const control = shownBy<toolkit::Control>(this);
        if (control && event->button() == Qt::LeftButton)
            control->doubleClick();
    }

private:
    std::map<std::shared_ptr<const Bitmap>, QPixmap> enlarged_; // an animation comes round again
};

class PicturePeer final : public ControlPeer {
public:
    PicturePeer(toolkit::PictureControl& control, PictureWidget* widget)
        : ControlPeer(control, widget), widget_(widget) {
        widget->draw();
    }

    void changed(toolkit::Prop which) override {
        if (which != toolkit::Prop::Picture)
            ControlPeer::changed(which);
        if (which == toolkit::Prop::Picture || which == toolkit::Prop::Visible)
            widget_->draw();
    }

private:
    PictureWidget* widget_;
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::Image& image, QWidget* parent) {
    return std::make_unique<PicturePeer>(image, new PictureWidget(parent));
}

std::unique_ptr<toolkit::Peer> makePeer(toolkit::PictureBox& box, QWidget* parent) {
    auto* const widget = new PictureWidget(parent);
    widget->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    widget->setLineWidth(2);
    widget->setFocusPolicy(Qt::StrongFocus);
    return std::make_unique<PicturePeer>(box, widget);
}

} // namespace desktop_qt
