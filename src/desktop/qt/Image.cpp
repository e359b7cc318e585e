#include "desktop/qt/ControlPeer.h"

#include <QLabel>
#include <QPixmapCache>

namespace desktop_qt {

namespace {

class ImagePeer final : public ControlPeer {
public:
    ImagePeer(toolkit::Image& image, QLabel* widget)
        : ControlPeer(image, widget), image_(image), widget_(widget) {
        showPicture();
    }
    // The icon engine keeps what it has drawn in Qt's cache, where a large picture that is shown
    // once would stay for long.
    ~ImagePeer() override { QPixmapCache::clear(); }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Picture)
            showPicture();
        else
            ControlPeer::changed(which);
    }

private:
    void showPicture() {
        widget_->setPixmap(
            picture(image_.Picture).pixmap(widget_->size(), widget_->devicePixelRatioF()));
    }

    toolkit::Image& image_;
    QLabel* widget_;
};

} // namespace

std::unique_ptr<ControlPeer> makeImage(toolkit::Image& image, QWidget* parent) {
    return std::make_unique<ImagePeer>(image, new QLabel(parent));
}

} // namespace desktop_qt
