#include <doctest/doctest.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "hosts/excel/com/ole.hpp"
#include "hosts/excel/screen/face_bitmaps.hpp"
#include "tests/support/raised.hpp"

using namespace qor;

namespace {

struct Bitmap {
    BITMAPINFOHEADER header{};
    std::array<std::uint32_t, 256> pixels{};  // from the bottom
};

Bitmap on_clipboard() {
    Bitmap bitmap;
    REQUIRE(OpenClipboard(nullptr));
    const HANDLE held = GetClipboardData(CF_DIB);
    const void* const bytes = held ? GlobalLock(held) : nullptr;
    if (bytes) {
        std::memcpy(&bitmap.header, bytes, sizeof(bitmap.header));
        std::memcpy(bitmap.pixels.data(), static_cast<const BITMAPINFOHEADER*>(bytes) + 1, sizeof(bitmap.pixels));
        GlobalUnlock(held);
    }
    CloseClipboard();
    return bitmap;
}

}  // namespace

TEST_CASE("a face lies on the clipboard as a bitmap, clear pixels in the colour of buttons") {
    REQUIRE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    excel::FaceBitmaps().put(u"CELCOL");
    const Bitmap bitmap = on_clipboard();
    CHECK(bitmap.header.biWidth == 16);
    CHECK(bitmap.header.biHeight == 16);
    CHECK(bitmap.header.biBitCount == 32);
    const COLORREF button = GetSysColor(COLOR_BTNFACE);
    const std::uint32_t clear = static_cast<std::uint32_t>(GetRValue(button)) << 16U |
                                static_cast<std::uint32_t>(GetGValue(button)) << 8U | GetBValue(button);
    const auto count_of = [&](std::uint32_t color) { return std::ranges::count(bitmap.pixels, color); };
    CHECK(count_of(clear) > 16);
    CHECK(count_of(0x72808F) > 16);  // the outlines
    CHECK(test::raised([] { excel::FaceBitmaps().put(u"NOFACE"); }) == 326);
    CoUninitialize();
}
