#include "runtime/bind.hpp"

#include <doctest/doctest.h>

#include "tests/support/raised.hpp"

using namespace qor;
using test::raised;

namespace {

const MemberName Scale{u"Scale"};
const MemberName Grow{u"Grow"};
const MemberName Level{u"Level"};
const MemberName Factor{u"factor"};

class Gauge final : public Dispatch {
  public:
    double scale(double value, std::optional<std::int32_t> factor) { return value * factor.value_or(10); }
    void grow(std::int32_t& value) { ++value; }
    double level = 1.5;

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        static const MemberTable<Gauge> table({
            method<&Gauge::scale>(u"Scale", {u"value", u"factor"}),
            method<&Gauge::grow>(u"Grow", {u"value"}),
            field_property<&Gauge::level>(u"Level"),
        });
        return table.invoke(*this, name, access, arguments);
    }
    std::u16string_view type_name() const noexcept override { return u"Gauge"; }
};

}  // namespace

TEST_CASE("a row converts the arguments of its member") {
    const Object gauge = make_object<Gauge>();
    CHECK(to_double(gauge.call(Scale, u"2.5")) == 25);
    CHECK(to_double(gauge.call(Scale, 2, 3.5)) == 8);
    CHECK(to_double(gauge.call(Scale, 2, Missing{})) == 20);
    CHECK(to_double(gauge.call(Scale, 2, named(Factor, true))) == -2);
    CHECK(raised([&] { return gauge.call(Scale); }) == 449);
    CHECK(raised([&] { return gauge.call(Scale, u"much"); }) == 13);
    CHECK(raised([&] { return gauge.call(Scale, 1, 2, 3); }) == 450);
    CHECK(raised([&] { return gauge.call(Scale, 1, named(Level, 2)); }) == 448);
}

TEST_CASE("a parameter by reference goes back to the caller") {
    const Object gauge = make_object<Gauge>();
    std::array<Variant, 1> values{Variant(u"41")};
    gauge.invoke(Grow, Access::call, {values, {}});
    CHECK(to_long(values[0]) == 42);
}

TEST_CASE("a data member is a property") {
    const Object gauge = make_object<Gauge>();
    CHECK(to_double(gauge.get(Level)) == 1.5);
    gauge.put(Level, u"-3");
    CHECK(to_double(gauge.get(Level)) == -3);
    CHECK(raised([&] { gauge.put(Level, u"high"); }) == 13);
    CHECK(to_double(gauge.get(Level)) == -3);
    CHECK(raised([&] { gauge.put(Scale, 1); }) == 438);
}
