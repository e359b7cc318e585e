#include "desktop/win32/ControlWindow.h"
#include "desktop/win32/Picture.h"

#include <map>

namespace desktop_win32 {

namespace {

using toolkit::Bitmap;

// Every pixel becomes a block, so that edges stay sharp.
HBITMAP enlarged(const Bitmap& bitmap, SIZE size) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP const made = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    auto* pixel = static_cast<DWORD*>(bits);
    for (int y = 0; made && y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x) {
            const int from =
                y * bitmap.height / size.cy * bitmap.width + x * bitmap.width / size.cx;
            const toolkit::Colour bgr = bitmap.pixels[static_cast<std::size_t>(from)];
            const DWORD red = GetRValue(static_cast<DWORD>(bgr));
            const DWORD green = GetGValue(static_cast<DWORD>(bgr));
            const DWORD blue = GetBValue(static_cast<DWORD>(bgr));
            *pixel++ = 0xFF000000U | red << 16U | green << 8U | blue;
        }
    return made;
}

class PictureWindow : public PaintedWindow {
public:
    PictureWindow(toolkit::PictureControl& control) : PaintedWindow(control), picture_(control) {}
    ~PictureWindow() override { forget(); }

    bool isTransparent() const override { return true; }

    void paintAt(HDC dc, POINT place) override {
        const RECT area = areaAt({0, 0});
        const SIZE size{area.right, area.bottom};
        if (HBITMAP const shown = bitmap(size))
            paintPicture(dc, shown, place, size);
    }

    void changed(toolkit::Prop which) override {
        if (which == toolkit::Prop::Picture)
            repaint();
        else
            ControlWindow::changed(which);
    }

    void lookChanged() override {
        forget();
        ControlWindow::lookChanged();
    }

protected:
    void showCaption() override {
        SetWindowTextW(handle(), wide(control_.spoken()).c_str()); // all that a reader finds
    }

private:
    // Kept once it is drawn: an animation comes round again.
    HBITMAP bitmap(SIZE size) {
        const toolkit::Drawing& drawing = picture_.Picture;
        HBITMAP& kept = drawn_[{drawing.name(), drawing.bitmap()}];
        if (!kept)
            kept = drawing.bitmap() ? enlarged(*drawing.bitmap(), size)
                                    : picture(drawing.name(), size);
        return kept;
    }
    void forget() {
        for (const auto& it : drawn_)
            DeleteObject(it.second);
        drawn_.clear();
    }

    toolkit::PictureControl& picture_;
    std::map<std::pair<std::string, std::shared_ptr<const Bitmap>>, HBITMAP> drawn_;
};

class ImageWindow final : public PictureWindow {
public:
    using PictureWindow::PictureWindow;

    static std::shared_ptr<ControlWindow> make(toolkit::Image& image, HWND parent) {
        const auto it = std::make_shared<ImageWindow>(image);
        ControlWindow::make(it, parent, L"STATIC", SS_NOPREFIX);
        return it;
    }
};

class PictureBoxWindow final : public PictureWindow {
public:
    using PictureWindow::PictureWindow;

    static std::shared_ptr<ControlWindow> make(toolkit::PictureBox& box, HWND parent) {
        const auto it = std::make_shared<PictureBoxWindow>(box);
        ControlWindow::make(it, parent, L"STATIC", SS_NOTIFY | WS_TABSTOP, WS_EX_CLIENTEDGE);
        return it;
    }

    void paintAt(HDC dc, POINT place) override {
        PictureWindow::paintAt(dc, place);
        const RECT area = areaAt(place);
        if (GetFocus() == handle())
            DrawFocusRect(dc, &area);
    }

    bool commanded(WPARAM wParam) override {
        if (HIWORD(wParam) == STN_DBLCLK)
            control_.doubleClick();
        return true;
    }
};

} // namespace

std::shared_ptr<ControlWindow> makeControl(toolkit::Image& image, HWND parent) {
    return ImageWindow::make(image, parent);
}

std::shared_ptr<ControlWindow> makeControl(toolkit::PictureBox& box, HWND parent) {
    return PictureBoxWindow::make(box, parent);
}

} // namespace desktop_win32
