#include <doctest/doctest.h>

#include <limits>

#include "hosts/excel/com/ole_text.hpp"
#include "hosts/excel/com/ole_variant.hpp"
#include "runtime/conversion.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using excel::from_ole;
using excel::OleVariant;
using excel::to_ole;
using test::raised;

namespace {

// There and back.
template <class T>
bool survives(const T& value, VARTYPE type) {
    const OleVariant ole = to_ole(Variant(value));
    const Variant back = from_ole(ole.get());
    const T* held = back.get_if<T>();
    return ole.get().vt == type && held && *held == value;
}

template <class Fill>
Variant read(VARTYPE type, Fill fill) {
    OleVariant ole;
    fill(ole.get());
    ole.get().vt = type;
    return from_ole(ole.get());
}

}  // namespace

TEST_CASE("values cross in their own kinds") {
    CHECK(survives(Empty{}, VT_EMPTY));
    CHECK(survives(Null{}, VT_NULL));
    CHECK(survives(Missing{}, VT_ERROR));
    CHECK(survives(true, VT_BOOL));
    CHECK(survives(false, VT_BOOL));
    CHECK(survives(std::int16_t{-32768}, VT_I2));
    CHECK(survives(std::numeric_limits<std::int32_t>::min(), VT_I4));
    CHECK(survives(1.5F, VT_R4));
    CHECK(survives(-0.1, VT_R8));
    CHECK(survives(Currency{-12345}, VT_CY));
    CHECK(survives(Date{38047.25}, VT_DATE));
    CHECK(survives(ErrorValue{2007}, VT_ERROR));
    CHECK(survives(std::u16string(u"a\0b \u00E9\xD83D\xDE00", 7), VT_BSTR));
    CHECK(survives(std::u16string(), VT_BSTR));
    CHECK(survives(std::u16string(5'000'000, u'x'), VT_BSTR));
    CHECK(to_ole(ErrorValue{2042}).get().scode == static_cast<SCODE>(0x800A07FA));
}

TEST_CASE("whole numbers of other kinds come as the next wider one") {
    CHECK(*read(VT_UI1, [](VARIANT& v) { v.bVal = 200; }).get_if<std::int16_t>() == 200);
    CHECK(*read(VT_I1, [](VARIANT& v) { v.cVal = -100; }).get_if<std::int16_t>() == -100);
    CHECK(*read(VT_UI2, [](VARIANT& v) { v.uiVal = 65535; }).get_if<std::int32_t>() == 65535);
    CHECK(*read(VT_UI4, [](VARIANT& v) { v.ulVal = 7; }).get_if<std::int32_t>() == 7);
    CHECK(*read(VT_UI4, [](VARIANT& v) { v.ulVal = 4294967295; }).get_if<double>() == 4294967295.0);
    CHECK(*read(VT_I8, [](VARIANT& v) { v.llVal = -5000000000; }).get_if<double>() == -5e9);
    CHECK(*read(VT_UI8, [](VARIANT& v) { v.ullVal = 3; }).get_if<std::int32_t>() == 3);
    CHECK(*read(VT_INT, [](VARIANT& v) { v.intVal = -3; }).get_if<std::int32_t>() == -3);
    OleVariant decimal;
    REQUIRE(SUCCEEDED(VarDecFromR8(12.5, &decimal.get().decVal)));
    decimal.get().vt = VT_DECIMAL;
    CHECK(*from_ole(decimal.get()).get_if<double>() == 12.5);
}

TEST_CASE("what is no value is a type mismatch") {
    CHECK(raised([] { read(VT_RECORD, [](VARIANT&) {}); }) == 13);
    CHECK(raised([] { read(VT_VARIANT, [](VARIANT&) {}); }) == 13);
    CHECK(read(VT_DISPATCH, [](VARIANT& v) { v.pdispVal = nullptr; }).is(Variant::Kind::object));
}

TEST_CASE("lists and tables cross with their bounds") {
    const Variant list = from_ole(to_ole(Array::list({1, u"two", Empty{}, true}, 3)).get());
    REQUIRE(list.array());
    CHECK(list.array()->dimensions() == 1);
    CHECK(list.array()->lower_bound() == 3);
    REQUIRE(list.array()->size() == 4);
    CHECK(to_double(list.array()->at(0)) == 1);
    CHECK((to_text(list.array()->at(1)) == u"two"));
    Array table = Array::table(2, 3);
    for (std::size_t row = 0; row < 2; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            table.at(row, column) = static_cast<double>(10 * row + column);
    const OleVariant ole = to_ole(table);
    std::int32_t place[] = {2, 3};
    OleVariant element;
    LONG index[] = {place[0], place[1]};
    REQUIRE(SUCCEEDED(SafeArrayGetElement(ole.get().parray, index, &element.get())));
    CHECK(element.get().dblVal == 12);
    const Variant back = from_ole(ole.get());
    REQUIRE(back.array());
    CHECK(back.array()->rows() == 2);
    CHECK(back.array()->columns() == 3);
    CHECK(back.array()->lower_bound() == 1);
    CHECK(to_double(back.array()->at(1, 2)) == 12);
    CHECK(to_double(back.array()->at(0, 1)) == 1);
}

TEST_CASE("arrays of one type, of texts, of arrays and of three dimensions") {
    OleVariant ole;
    SAFEARRAY* const doubles = SafeArrayCreateVector(VT_R8, 0, 2);
    const double value = 2.5;
    LONG one = 1;
    REQUIRE(SUCCEEDED(SafeArrayPutElement(doubles, &one, const_cast<double*>(&value))));
    ole.get().vt = VT_ARRAY | VT_R8;
    ole.get().parray = doubles;
    CHECK(to_double(from_ole(ole.get()).array()->at(1)) == 2.5);

    const Variant nested = from_ole(to_ole(Array::list({Array::list({u"inner"}), 2})).get());
    REQUIRE(nested.array()->at(0).array());
    CHECK((to_text(nested.array()->at(0).array()->at(0)) == u"inner"));

    SAFEARRAYBOUND bounds[] = {{1, 0}, {1, 0}, {1, 0}};
    OleVariant deep;
    deep.get().parray = SafeArrayCreate(VT_VARIANT, 3, bounds);
    deep.get().vt = VT_ARRAY | VT_VARIANT;
    CHECK(raised([&] { from_ole(deep.get()); }) == 9);
}

TEST_CASE("a variable by reference is read through and written in its own type") {
    double number = 2.5;
    VARIANT reference;
    VariantInit(&reference);
    reference.vt = VT_BYREF | VT_R8;
    reference.pdblVal = &number;
    CHECK(to_double(from_ole(reference)) == 2.5);
    excel::write_back(reference, 7);
    CHECK(number == 7);
    CHECK(raised([&] { excel::write_back(reference, u"no number"); }) == 13);
    CHECK(number == 7);

    BSTR text = excel::to_ole_text(u"before");
    reference.vt = VT_BYREF | VT_BSTR;
    reference.pbstrVal = &text;
    excel::write_back(reference, u"after");
    CHECK((excel::from_ole_text(text) == u"after"));
    SysFreeString(text);

    OleVariant held = to_ole(u"before");
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &held.get();
    excel::write_back(reference, true);
    CHECK(held.get().vt == VT_BOOL);

    VARIANT constant;
    constant.vt = VT_I4;
    constant.lVal = 5;
    excel::write_back(constant, 6);
    CHECK(constant.lVal == 5);
}
