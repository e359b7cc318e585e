#include "desktop/qt/Look.h"

#include "toolkit/Drawing.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QIconEngine>
#include <QPainter>
#include <QResource>

#include <map>

namespace desktop_qt {

namespace {

QString pictureFile(const std::string& name, int width) {
    return QStringLiteral(":/pictures/%1-%2.png").arg(text(name)).arg(width);
}

// Not hasFamily(), which resolves aliases by asking the font system, as slow as a search.
bool isInstalled(const QString& family) {
    return !QFontDatabase::styles(family).isEmpty();
}

// The design's family, or the one that stands in for it. A font is never asked for by a family that
// the machine lacks: Qt would have all families put in order by their likeness to it.
const QString& installed(const std::string& design) {
    static std::map<std::string, QString> known;
    QString& family = known[design];
    if (family.isEmpty()) {
        const auto other = QStringLiteral("Liberation Sans");
        family = text(design);
        if (!isInstalled(family) && isInstalled(other))
            family = other;
    }
    return family;
}

class PictureEngine final : public QIconEngine {
public:
    explicit PictureEngine(std::string name) : name_(std::move(name)) {}

    QPixmap pixmap(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        if (last_.size() != size)
            last_ = pixmapOf(name_, size, 1);
        return last_;
    }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const double ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        return {{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}}; // what task bars and titles show
    }
    QIconEngine* clone() const override { return new PictureEngine(*this); }

private:
    std::string name_;
    QPixmap last_; // a button is painted again and again, on one screen
};

} // namespace

QString lines(const std::string& utf8) {
    return text(utf8).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QColor colour(toolkit::Colour bgr) {
    const auto [red, green, blue] = toolkit::parts(bgr);
    return {red, green, blue};
}

toolkit::Colour number(const QColor& colour) {
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

QFont font(const toolkit::Font& design) {
    QFont font(installed(design.name));
    font.setPixelSize(toolkit::fontPixels(design));
    font.setBold(design.bold);
    font.setItalic(design.italic);
    font.setUnderline(design.underline);
    return font;
}

QFont fittingFont(const toolkit::Font& design, const QString& text, int width) {
    QFont fitting = font(design);
    fitting.setPixelSize(toolkit::fittingHeight(fitting.pixelSize(), width, [&](int height) {
        fitting.setPixelSize(height);
        return QFontMetrics(fitting).horizontalAdvance(text);
    }));
    return fitting;
}

QPixmap pixmapOf(const std::string& name, QSize size, double scale) {
    const QSize pixels = (QSizeF(size) * scale).toSize();
    // Not as a pixmap's file: Qt would keep that in its cache, a large picture that is shown once.
    QImage image(pictureFile(name, toolkit::drawnWidth(pixels.width(), [&](int width) {
                                 return QResource(pictureFile(name, width)).isValid();
                             })));
    if (image.isNull())
        return {};
    if (image.size() != pixels)
        image = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPixmap pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

QIcon iconOf(const std::string& name) {
    return QIcon(new PictureEngine(name));
}

toolkit::Place place(const QRect& area) {
    return {1.0 * area.x(), 1.0 * area.y(), 1.0 * area.width(), 1.0 * area.height()};
}

QRect rectangle(const toolkit::Place& area) {
    return QRectF(area.Left, area.Top, area.Width, area.Height).toRect();
}

QRect rectangle(const toolkit::Control& control) {
    return {pixels(control.Left), pixels(control.Top), pixels(control.Width),
            pixels(control.Height)};
}

} // namespace desktop_qt
