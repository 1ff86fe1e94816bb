#include "runtime/property_bag.hpp"

#include <doctest/doctest.h>

#include <string>

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;
using namespace std::string_literals;

TEST_CASE("a value comes back under its name and in its kind") {
    PropertyBag bag;
    bag.write(u"NumberOfItems", 2, 0);
    bag.write(u"1Text", u"Kapital \u20AC \U0001F600");
    bag.write(u"1Parent", -7, 0);
    CHECK(bag.read(u"NumberOfItems", 0) == 2);
    CHECK((bag.read(u"1Text") == u"Kapital \u20AC \U0001F600"));
    CHECK(bag.read(u"1Parent", 0) == -7);
    CHECK(bag.read(u"numberofitems", 5) == 5);  // another name
    CHECK(bag.read(u"1Text", 3) == 3);          // a text is no number
    CHECK((bag.read(u"1Parent", u"none") == u"none"));
}

TEST_CASE("a value that equals the default is not kept") {
    PropertyBag bag;
    bag.write(u"0Parent", 0, 0);
    bag.write(u"0Text", u"");
    bag.write(u"0Kind", u"sheet", u"sheet");
    CHECK(bag.size() == 0);
    CHECK(bag.image() == "\xA0");
    CHECK(bag.read(u"0Parent", 9) == 9);
}

TEST_CASE("the image is a map in CBOR") {
    PropertyBag bag;
    bag.write(u"a", 1, 0);
    bag.write(u"b", u"x");
    CHECK(bag.image() == "\xA2\x61\x61\x01\x61\x62\x61x");
}

TEST_CASE("reading stops at the image's end") {
    PropertyBag bag;
    bag.write(u"a", 1, 0);
    for (const std::string& tail : {""s, "\xFF\xFF"s, "There are no items"s, std::string(100'000, '\xA1')}) {
        const auto read = PropertyBag::from_image(bag.image() + tail);
        REQUIRE(read);
        CHECK(read->size() == 1);
        CHECK(read->read(u"a", 0) == 1);
    }
}

TEST_CASE("what is no image is refused") {
    for (const std::string& bytes : {
             ""s,
             "There are no items\r\n"s,
             "PK\x03\x04"s,
             "\xA1\x61"s,                                          // ends inside a name
             "\xA1\x61\x61\x78\xFF"s,                              // ends inside a text
             "\xA1\x61\x61\x7B\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s,  // a text of eight exabytes
             "\xBB\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x61\x61\x01"s,  // as many members
             "\xA1\x61\x61\xA0"s,                                  // a map inside
             "\xA1\x61\x61\x80"s,                                  // a list inside
             "\xA1\x61\x61\xF5"s,                                  // a truth value
             "\xA1\x61\x61\xF6"s,                                  // null
             "\xA1\x61\x61\xFB\x3F\xF0\0\0\0\0\0\0"s,              // a floating-point number
             "\xA1\x61\x61\x1A\x80\0\0\0"s,                        // 2^31
             "\xA1\x61\x61\x3A\x80\0\0\0"s,                        // -2^31 - 1
             "\x61\x61"s,                                          // a text alone
             "\x01"s,
             std::string(1'000'000, '\x81'),  // lists a million deep
             std::string(1'000'000, '\xA1'),
         }) {
        CAPTURE(bytes.substr(0, 20));
        CHECK_FALSE(PropertyBag::from_image(bytes).has_value());
    }
}

TEST_CASE("the whole range of numbers survives") {
    for (const std::int32_t number : {-2147483647 - 1, -1, 1, 255, 65536, 2147483647}) {
        PropertyBag bag;
        bag.write(u"n", number, 0);
        CHECK(PropertyBag::from_image(bag.image())->read(u"n", 0) == number);
    }
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("any bytes are read without harm, and what is read can be written again") {
    rc::check([](const std::string& bytes) {
        if (const auto bag = PropertyBag::from_image(bytes)) {
            RC_ASSERT(PropertyBag::from_image(bag->image())->image() == bag->image());
        }
    });
    // Images that were damaged come closer to the paths of the reader than bytes at random.
    rc::check([] {
        PropertyBag bag;
        for (int i = 0; i < 20; ++i) {
            const std::u16string name(1, static_cast<char16_t>(u'a' + i));
            if (i % 2 == 0) {
                bag.write(name, *rc::gen::arbitrary<std::int32_t>(), 0);
            } else {
                bag.write(name, std::u16string(*rc::gen::inRange<std::size_t>(0, 300), u'\u00E9'));
            }
        }
        std::string bytes = bag.image();
        const auto place = *rc::gen::inRange<std::size_t>(0, bytes.size());
        bytes[place] = *rc::gen::arbitrary<char>();
        bytes.resize(*rc::gen::inRange<std::size_t>(0, bytes.size() + 1));
        const auto read = PropertyBag::from_image(bytes);
        if (read) RC_ASSERT(read->size() <= bytes.size());
    });
}
#endif
