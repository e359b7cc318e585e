#include "desktop/win32/Picture.h"

#include "desktop/win32/Look.h"
#include "toolkit/Drawing.h"

#include <objbase.h>
#include <shlwapi.h>
#include <wincodec.h>

#include <algorithm>
#include <memory>

namespace desktop_win32 {

namespace {

struct Release {
    void operator()(IUnknown* it) const { it->Release(); }
};
template <class T>
using Held = std::unique_ptr<T, Release>;

// Takes what a call gives into a holder.
template <class T, class Call>
Held<T> held(Call call) {
    T* it = nullptr;
    return Held<T>(SUCCEEDED(call(&it)) ? it : nullptr);
}

IWICImagingFactory* factory() {
    static const Held<IWICImagingFactory> it = [] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        return held<IWICImagingFactory>([](IWICImagingFactory** made) {
            return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                    IID_IWICImagingFactory, reinterpret_cast<void**>(made));
        });
    }();
    return it.get();
}

HRSRC found(const std::string& name, int width) {
    std::wstring resource = wide(name) + L'_' + std::to_wstring(width);
    CharUpperW(resource.data());
    return FindResourceW(nullptr, resource.c_str(), MAKEINTRESOURCEW(10)); // RT_RCDATA
}

Held<IWICBitmapSource> decoded(HRSRC resource, SIZE size) {
    const auto* const bytes =
        static_cast<const BYTE*>(LockResource(LoadResource(nullptr, resource)));
    const Held<IStream> stream(SHCreateMemStream(bytes, SizeofResource(nullptr, resource)));
    const auto decoder = held<IWICBitmapDecoder>([&](auto** made) {
        return factory()->CreateDecoderFromStream(stream.get(), nullptr,
                                                  WICDecodeMetadataCacheOnDemand, made);
    });
    if (!decoder)
        return nullptr;
    const auto frame =
        held<IWICBitmapFrameDecode>([&](auto** made) { return decoder->GetFrame(0, made); });
    const auto converter = held<IWICFormatConverter>(
        [](auto** made) { return factory()->CreateFormatConverter(made); });
    if (!frame || !converter ||
        FAILED(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppPBGRA,
                                     WICBitmapDitherTypeNone, nullptr, 0,
                                     WICBitmapPaletteTypeCustom)))
        return nullptr;
    const auto scaler =
        held<IWICBitmapScaler>([](auto** made) { return factory()->CreateBitmapScaler(made); });
    if (!scaler ||
        FAILED(scaler->Initialize(converter.get(), static_cast<UINT>(size.cx),
                                  static_cast<UINT>(size.cy), WICBitmapInterpolationModeFant)))
        return nullptr;
    return held<IWICBitmapSource>([&](IWICBitmapSource** made) {
        return scaler->QueryInterface(IID_IWICBitmapSource, reinterpret_cast<void**>(made));
    });
}

} // namespace

HBITMAP picture(const std::string& name, SIZE size) {
    HRSRC const resource =
        found(name, toolkit::drawnWidth(size.cx, [&](int width) { return found(name, width); }));
    if (!resource || !factory())
        return nullptr;
    const auto source = decoded(resource, size);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP const bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const UINT line = 4U * static_cast<UINT>(size.cx);
    if (source && bitmap)
        source->CopyPixels(nullptr, line, line * static_cast<UINT>(size.cy),
                           static_cast<BYTE*>(bits));
    return bitmap;
}

void paintPicture(HDC dc, HBITMAP picture, POINT place, SIZE size) {
    HDC const from = CreateCompatibleDC(dc);
    HGDIOBJ const before = SelectObject(from, picture);
    AlphaBlend(dc, place.x, place.y, size.cx, size.cy, from, 0, 0, size.cx, size.cy,
               {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA});
    SelectObject(from, before);
    DeleteDC(from);
}

} // namespace desktop_win32
