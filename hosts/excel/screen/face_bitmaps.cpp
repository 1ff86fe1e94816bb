#include "hosts/excel/screen/face_bitmaps.hpp"

#include "platform/windows/system.hpp"
// After it, on which they stand.
#include <shlwapi.h>
#include <wincodec.h>

#include <cstring>
#include <span>
#include <vector>

#include "automation/error.hpp"
#include "hosts/excel/com/com_pointer.hpp"
#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/screen/host_window.hpp"
#include "resources/faces.hpp"

namespace qor::excel {
namespace {

constexpr std::int32_t resource_not_found = 326;  // the run time's number
constexpr UINT width = 16;                        // and height
constexpr UINT bytes_per_pixel = 4;

// Blue, green, red and opacity, from the top.
std::vector<BYTE> pixels_of(std::span<const std::byte> png) {
    ComPointer<IWICImagingFactory> factory;
    require(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                             factory.put_void()));
    const auto stream = ComPointer<IStream>::adopt(
        SHCreateMemStream(reinterpret_cast<const BYTE*>(png.data()), static_cast<UINT>(png.size())));
    ComPointer<IWICBitmapDecoder> decoder;
    require(factory->CreateDecoderFromStream(stream.get(), nullptr, WICDecodeMetadataCacheOnDemand, decoder.put()));
    ComPointer<IWICBitmapFrameDecode> frame;
    require(decoder->GetFrame(0, frame.put()));
    ComPointer<IWICFormatConverter> converter;
    require(factory->CreateFormatConverter(converter.put()));
    require(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone, nullptr, 0,
                                  WICBitmapPaletteTypeCustom));
    std::vector<BYTE> pixels(std::size_t{width} * width * bytes_per_pixel);
    require(converter->CopyPixels(nullptr, width * bytes_per_pixel, static_cast<UINT>(pixels.size()), pixels.data()));
    return pixels;
}

// From the bottom, as bitmaps have it; a clear pixel has the colour of buttons.
HGLOBAL bitmap_of(std::span<const std::byte> png) {
    const std::vector<BYTE> pixels = pixels_of(png);
    const COLORREF button = GetSysColor(COLOR_BTNFACE);
    BITMAPINFOHEADER header{};
    header.biSize = sizeof(header);
    header.biWidth = width;
    header.biHeight = width;
    header.biPlanes = 1;
    header.biBitCount = 8 * bytes_per_pixel;
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(header) + pixels.size());
    if (!memory) throw std::bad_alloc();
    auto* const target = static_cast<BYTE*>(GlobalLock(memory));
    std::memcpy(target, &header, sizeof(header));
    for (std::size_t place = 0; place < std::size_t{width} * width; ++place) {
        const std::size_t row = width - 1 - place / width;
        BYTE* const to = target + sizeof(header) + (row * width + place % width) * bytes_per_pixel;
        const BYTE* const from = pixels.data() + place * bytes_per_pixel;
        const bool is_clear = from[3] == 0;
        to[0] = is_clear ? GetBValue(button) : from[0];
        to[1] = is_clear ? GetGValue(button) : from[1];
        to[2] = is_clear ? GetRValue(button) : from[2];
        to[3] = 0;
    }
    GlobalUnlock(memory);
    return memory;
}

}  // namespace

void FaceBitmaps::put(std::u16string_view name) {
    const std::span<const std::byte> png = face_png_16_colors(name);
    if (png.empty())
        throw Error(resource_not_found, {}, u"Resource with identifier '" + std::u16string(name) + u"' not found.");
    const HGLOBAL bitmap = bitmap_of(png);
    bool is_taken = false;
    if (OpenClipboard(host_window())) {
        EmptyClipboard();
        is_taken = SetClipboardData(CF_DIB, bitmap) != nullptr;  // which then owns it
        CloseClipboard();
    }
    if (!is_taken) {
        GlobalFree(bitmap);
        throw Error(ErrorNumber::host_refused, {}, u"The clipboard is in use by another program.");
    }
}

}  // namespace qor::excel
