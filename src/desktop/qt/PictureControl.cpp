#include "desktop/qt/ControlPeer.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmapCache>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

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

class PicturePeer final : public ControlPeer {
public:
    PicturePeer(toolkit::PictureControl& control, QLabel* widget)
        : ControlPeer(control, widget), picture_(control), label_(widget) {
        if (control.spokenAs.empty())
            widget->setAccessibleName(text(control.ToolTipText));
        showPicture();
    }
    // The icon engine keeps what it has drawn in Qt's cache, where a large picture that is shown
    // once would stay for long.
    ~PicturePeer() override { QPixmapCache::clear(); }

    void changed(toolkit::Prop which) override {
        if (which != toolkit::Prop::Picture)
            ControlPeer::changed(which);
        if (which == toolkit::Prop::Picture || which == toolkit::Prop::Visible)
            showPicture();
    }

private:
    void showPicture() {
        if (!picture_.Visible)
            return; // it only stores a picture
        const toolkit::Drawing& drawing = picture_.Picture;
        const QSize size = label_->contentsRect().size();
        const double ratio = label_->devicePixelRatioF();
        if (!drawing.bitmap())
            return label_->setPixmap(picture(drawing.name()).pixmap(size, ratio));
        QPixmap& pixmap = enlarged_[drawing.bitmap()];
        if (pixmap.isNull())
            pixmap = enlarged(*drawing.bitmap(), size, ratio);
        label_->setPixmap(pixmap);
    }

    toolkit::PictureControl& picture_;
    QLabel* label_;
    std::map<std::shared_ptr<const Bitmap>, QPixmap> enlarged_; // an animation comes round again
};

class BoxWidget final : public QLabel {
public:
    explicit BoxWidget(QWidget* parent) : QLabel(parent) {
        setFrameStyle(QFrame::Panel | QFrame::Sunken);
        setLineWidth(2);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            doubleClick();
    }
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (!hasFocus())
            return;
        QStyleOptionFocusRect option;
        option.initFrom(this);
        QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }

private:
    void doubleClick() {
        if (toolkit::Control* const control = controlOf(this))
            control->doubleClick();
    }
};

} // namespace

std::unique_ptr<ControlPeer> makeImage(toolkit::Image& image, QWidget* parent) {
    return std::make_unique<PicturePeer>(image, new QLabel(parent));
}

std::unique_ptr<ControlPeer> makePictureBox(toolkit::PictureBox& box, QWidget* parent) {
    return std::make_unique<PicturePeer>(box, new BoxWidget(parent));
}

} // namespace desktop_qt
