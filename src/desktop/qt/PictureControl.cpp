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
class PictureWidget : public QLabel {
public:
    using QLabel::QLabel;

    void setDrawing(const toolkit::Drawing& drawing) {
        drawing_ = drawing;
        draw();
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        if (!pixmap().isNull() && pixmap().devicePixelRatio() != devicePixelRatioF())
            draw();
        QLabel::paintEvent(event);
    }

private:
    void draw() {
        const QSize size = contentsRect().size();
        const double ratio = devicePixelRatioF();
        if (!drawing_.bitmap())
            return setPixmap(pixmapOf(drawing_.name(), size, ratio));
        QPixmap& pixmap = enlarged_[drawing_.bitmap()];
        if (pixmap.isNull() || pixmap.devicePixelRatio() != ratio)
            pixmap = enlarged(*drawing_.bitmap(), size, ratio);
        setPixmap(pixmap);
    }

    toolkit::Drawing drawing_;
    std::map<std::shared_ptr<const Bitmap>, QPixmap> enlarged_; // an animation comes round again
};

class PicturePeer final : public ControlPeer {
public:
    PicturePeer(toolkit::PictureControl& control, PictureWidget* widget)
        : ControlPeer(control, widget), picture_(control), widget_(widget) {
        showPicture();
    }

    void changed(toolkit::Prop which) override {
        if (which != toolkit::Prop::Picture)
            ControlPeer::changed(which);
        if (which == toolkit::Prop::Picture || which == toolkit::Prop::Visible)
            showPicture();
    }

private:
    void showPicture() {
        if (picture_.Visible) // else it only stores a picture
            widget_->setDrawing(picture_.Picture);
    }

    toolkit::PictureControl& picture_;
    PictureWidget* widget_;
};

class BoxWidget final : public PictureWidget {
public:
    explicit BoxWidget(QWidget* parent) : PictureWidget(parent) {
        setFrameStyle(QFrame::Panel | QFrame::Sunken);
        setLineWidth(2);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            if (toolkit::Control* const control = controlOf(this))
                control->doubleClick();
    }
};

} // namespace

std::unique_ptr<toolkit::Peer> makePeer(toolkit::Image& image, QWidget* parent) {
    return std::make_unique<PicturePeer>(image, new PictureWidget(parent));
}

std::unique_ptr<toolkit::Peer> makePeer(toolkit::PictureBox& box, QWidget* parent) {
    return std::make_unique<PicturePeer>(box, new BoxWidget(parent));
}

} // namespace desktop_qt
