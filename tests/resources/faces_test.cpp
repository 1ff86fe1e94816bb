#include "resources/faces.hpp"

#include <doctest/doctest.h>
#include <png.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "resources/face_table.hpp"

using namespace qor;

namespace {

using Bytes = std::span<const std::byte>;
using Pixels = std::vector<std::array<std::uint8_t, 4>>;  // red, green, blue, alpha; row by row

struct Picture {
    unsigned width = 0;
    unsigned height = 0;
    Pixels pixels;
};

constexpr std::array<std::u16string_view, 46> names{
    // the menu and the toolbars
    u"CELCOL", u"CELINF", u"DATREV", u"WOKSUM", u"WORSUM", u"WORGRO", u"PRIGRO", u"ALTTEM", u"ADDWOR", u"DELEMPWOR",
    u"WINHIDUNH", u"CLOALL", u"SAVALL", u"PRIALL", u"CLERECFIL", u"SPECHEALL", u"SORWOR", u"NAV", u"COLWIDROWHEIADJ",
    u"COLROWSHA", u"INSSINCOL", u"INSSINROW", u"COLROWINS", u"DELDUPEMPCOLROW", u"CELSEL", u"CELTOO", u"CRENTHWORCOP",
    u"CELWORPRO", u"EXPRANFIL", u"LINLOC", u"PASEXAFOR", u"TRACOLROW", u"CLESCRARE", u"SETSCRARE", u"WORHIDUNH",
    u"INSDATTIM", u"CELEVE", u"BOOAED", u"HELP", u"SENDEMAIL", u"WEBURL",
    // the dialogs and the tree
    u"CELLREF", u"FOLDER", u"GETFILE", u"SHORTCUT", u"WORKBOOK"};

std::string narrow(std::u16string_view name) {
    return {name.begin(), name.end()};
}

Picture decode(Bytes file) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    REQUIRE_MESSAGE(png_image_begin_read_from_memory(&image, file.data(), file.size()) != 0, image.message);
    image.format = PNG_FORMAT_RGBA;
    Picture picture{image.width, image.height, Pixels(std::size_t{image.width} * image.height)};
    REQUIRE_MESSAGE(png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr) != 0, image.message);
    return picture;
}

// Every form in which a face is kept, the one of 16 colours first.
std::vector<Picture> all_forms(std::u16string_view name) {
    std::vector<Picture> forms{decode(face_png_16_colors(name))};
    for (int size : face_sizes) forms.push_back(decode(face_png(name, size)));
    return forms;
}

}  // namespace

TEST_CASE("there are exactly the 46 faces") {
    std::vector<std::u16string_view> drawn;
    std::ranges::transform(face_table(), std::back_inserter(drawn), &Face::name);
    std::vector<std::u16string_view> wanted(names.begin(), names.end());
    std::ranges::sort(drawn);
    std::ranges::sort(wanted);
    CHECK(drawn.size() == 46);
    CHECK(drawn == wanted);
}

TEST_CASE("an unknown name or size has no face") {
    CHECK(face_png(u"", 16).empty());
    CHECK(face_png(u"NOFACE", 16).empty());
    CHECK(face_png(u"celcol", 16).empty());
    CHECK(face_png(u"CELCOL", 17).empty());
    CHECK(face_png(u"CELCOL", 0).empty());
    CHECK(face_png_16_colors(u"NOFACE").empty());
}

TEST_CASE("every face decodes to its size") {
    for (auto name : names) {
        CAPTURE(narrow(name));
        const auto forms = all_forms(name);
        constexpr std::array<unsigned, 5> wanted{16, 16, 24, 32, 48};
        REQUIRE(forms.size() == wanted.size());
        for (std::size_t form = 0; form < wanted.size(); ++form) {
            CHECK(forms[form].width == wanted[form]);
            CHECK(forms[form].height == wanted[form]);
        }
    }
}

TEST_CASE("a face of 16 colours has a palette of 16 colours and no half-clear pixel") {
    for (auto name : names) {
        CAPTURE(narrow(name));
        const Bytes file = face_png_16_colors(name);
        REQUIRE(file.size() > 26);
        CHECK(static_cast<int>(file[24]) <= 4);  // bits a pixel, of the file's header
        CHECK(static_cast<int>(file[25]) == PNG_COLOR_TYPE_PALETTE);
        const auto pixels = decode(file).pixels;
        CHECK(std::set(pixels.begin(), pixels.end()).size() <= 16);
        CHECK(std::ranges::all_of(pixels, [](const auto& pixel) { return pixel[3] == 0 || pixel[3] == 255; }));
    }
}

TEST_CASE("all faces are painted with the same eight colours") {
    std::set<std::array<std::uint8_t, 4>> used;
    for (auto name : names) {
        for (const auto& pixel : decode(face_png_16_colors(name)).pixels) {
            if (pixel[3] != 0) used.insert(pixel);
        }
    }
    CHECK(used == std::set<std::array<std::uint8_t, 4>>{{0x00, 0x94, 0x6a, 255},
                                                        {0x2a, 0x80, 0xcb, 255},
                                                        {0x72, 0x80, 0x8f, 255},
                                                        {0xa6, 0xd0, 0xf2, 255},
                                                        {0xcb, 0xd3, 0xdc, 255},
                                                        {0xd5, 0x5e, 0x00, 255},
                                                        {0xf2, 0xc1, 0x4b, 255},
                                                        {0xff, 0xff, 0xff, 255}});
}

TEST_CASE("no face is blank") {
    for (auto name : names) {
        CAPTURE(narrow(name));
        for (const auto& picture : all_forms(name)) {
            CAPTURE(picture.width);
            const auto painted =
                std::ranges::count_if(picture.pixels, [](const auto& pixel) { return pixel[3] == 255; });
            CHECK(painted * 4 >= std::ssize(picture.pixels));
            CHECK(std::set(picture.pixels.begin(), picture.pixels.end()).size() >= 3);
        }
    }
}

TEST_CASE("no two faces are equal") {
    std::array<std::set<Pixels>, 5> seen;
    for (auto name : names) {
        CAPTURE(narrow(name));
        const auto forms = all_forms(name);
        for (std::size_t form = 0; form < forms.size(); ++form) CHECK(seen.at(form).insert(forms[form].pixels).second);
    }
}
