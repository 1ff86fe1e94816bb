#include "services/CSort.hpp"

#include <doctest/doctest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <random>
#include <string>

#include "runtime/conversion.hpp"

using namespace qor;

namespace {

using Sort = void (*)(std::span<Variant>, std::int32_t, std::int32_t);

constexpr std::array<Sort, 4> sorts{CSort::InsertSort, CSort::ShellSort, CSort::QuickSort, CSort::QSort};

std::vector<Variant> values_of(const std::vector<std::int32_t>& numbers) {
    return {numbers.begin(), numbers.end()};
}

std::vector<std::int32_t> numbers_of(const std::vector<Variant>& values) {
    std::vector<std::int32_t> numbers(values.size());
    std::ranges::transform(values, numbers.begin(), to_long);
    return numbers;
}

std::int32_t last_of(const std::vector<Variant>& values) {
    return static_cast<std::int32_t>(values.size()) - 1;
}

struct Order {
    const char* name;
    std::function<std::int32_t(std::int32_t place, std::int32_t size)> element;
};

const std::vector<Order>& orders() {
    static std::mt19937 random(20040315);
    static const std::vector<Order> all{
        {"ascending", [](auto place, auto) { return place; }},
        {"descending", [](auto place, auto size) { return size - place; }},
        {"equal", [](auto, auto) { return 7; }},
        {"rising, then falling", [](auto place, auto size) { return std::min(place, size - place); }},
        {"falling, then rising", [](auto place, auto size) { return std::max(place, size - place); }},
        {"saw", [](auto place, auto) { return place % 5; }},
        {"two values", [](auto place, auto) { return place % 2; }},
        {"two halves", [](auto place, auto size) { return place < size / 2 ? place + size : place; }},
        {"least in the middle", [](auto place, auto size) { return place == size / 2 ? -1 : place; }},
        {"greatest in the middle", [](auto place, auto size) { return place == (size - 1) / 2 ? size : place; }},
        {"random", [](auto, auto) { return static_cast<std::int32_t>(random() % 1'000'000); }},
        {"few random",
         [](auto, auto size) { return static_cast<std::int32_t>(random() % 1'000'000) % (size / 8 + 1); }},
    };
    return all;
}

std::vector<std::int32_t> arranged(const Order& order, std::int32_t size) {
    std::vector<std::int32_t> numbers(static_cast<std::size_t>(size));
    for (std::int32_t place = 0; place < size; ++place) {
        numbers[static_cast<std::size_t>(place)] = order.element(place, size);
    }
    return numbers;
}

// Equal texts, which their places in memory tell apart: each element is too long to lie inside of its value.
class EqualTexts {
  public:
    explicit EqualTexts(std::size_t count) : EqualTexts(count, count) {}
    // With one that is greater.
    EqualTexts(std::size_t count, std::size_t greater) : values(count, Variant(u"too long to lie inside")) {
        if (greater < count) values[greater] = u"too long to lie inside, and greater";
        for (const Variant& value : values) places_.push_back(place(value));
    }

    // The elements' places at the start, in their order now.
    std::vector<std::size_t> order() const {
        std::vector<std::size_t> result;
        for (const Variant& value : values) {
            const auto found = std::ranges::find(places_, place(value));
            result.push_back(static_cast<std::size_t>(found - places_.begin()));
        }
        return result;
    }

    std::vector<Variant> values;

  private:
    static const char16_t* place(const Variant& value) { return value.get_if<std::u16string>()->data(); }

    std::vector<const char16_t*> places_;
};

std::vector<std::size_t> counted(std::size_t count) {
    std::vector<std::size_t> places(count);
    std::iota(places.begin(), places.end(), std::size_t{0});
    return places;
}

// The middle of every part that a quick sort makes of it is that part's greatest element.
std::vector<std::int32_t> worst_order(std::int32_t size) {
    std::vector<std::int32_t> numbers;
    for (std::int32_t greatest = 1; greatest <= size; ++greatest) {
        const std::size_t middle = numbers.size() / 2;
        if (!numbers.empty()) {
            numbers.push_back(numbers.front());
            numbers.front() = numbers[middle];
            numbers[middle] = greatest;
        } else {
            numbers.push_back(greatest);
        }
    }
    return numbers;
}

}  // namespace

TEST_CASE("every sort gives what std::sort gives, at every size up to 300 and in every order") {
    for (const Order& order : orders()) {
        for (std::int32_t size = 0; size <= 300; ++size) {
            const std::vector<std::int32_t> numbers = arranged(order, size);
            std::vector<std::int32_t> expected = numbers;
            std::ranges::sort(expected);
            for (const Sort sort : sorts) {
                std::vector<Variant> values = values_of(numbers);
                sort(values, 0, last_of(values));
                INFO(order.name, " ", size);
                REQUIRE(numbers_of(values) == expected);
            }
        }
    }
}

TEST_CASE("orders that are hard on the choice of the middle are sorted without a deep recursion or stack") {
    for (const std::int32_t size : {300, 3000}) {
        const std::vector<std::int32_t> numbers = worst_order(size);
        std::vector<std::int32_t> expected = numbers;
        std::ranges::sort(expected);
        for (const Sort sort : {CSort::QuickSort, CSort::QSort}) {
            std::vector<Variant> values = values_of(numbers);
            sort(values, 0, last_of(values));
            CHECK(numbers_of(values) == expected);
        }
    }
}

TEST_CASE("texts are sorted by their code units, numbers before them") {
    for (const Sort sort : sorts) {
        std::vector<Variant> values{u"b", u"B", u"\u00E4", u"", u"a1", u"a", 10, 9.5, u"10", u"9"};
        sort(values, 0, last_of(values));
        std::vector<std::u16string> texts(values.size());
        std::ranges::transform(values, texts.begin(), to_text);
        CHECK(texts ==
              std::vector<std::u16string>{u"9.5", u"10", u"", u"10", u"9", u"B", u"a", u"a1", u"b", u"\u00E4"});
    }
}

TEST_CASE("only the places from first to last are sorted") {
    for (const Sort sort : sorts) {
        std::vector<Variant> values = values_of({9, 8, 7, 6, 5, 4});
        sort(values, 1, 4);
        CHECK(numbers_of(values) == std::vector<std::int32_t>{9, 5, 6, 7, 8, 4});
    }
}

TEST_CASE("one place, none at all or one outside of the array changes nothing") {
    for (const Sort sort : sorts) {
        std::vector<Variant> values = values_of({3, 2, 1});
        sort(values, 1, 1);
        sort(values, 2, 0);
        sort(values, -1, 2);
        sort(values, 0, 3);
        sort({}, 0, -1);
        CHECK(numbers_of(values) == std::vector<std::int32_t>{3, 2, 1});
    }
}

TEST_CASE("an insertion sort keeps equal elements in their order") {
    EqualTexts texts(300);
    CSort::InsertSort(texts.values, 0, 299);
    CHECK(texts.order() == counted(300));

    std::vector<Variant> values{2.0, 1, 2, 1.0, Date{1}, 2.0};
    CSort::InsertSort(values, 0, 5);
    using Kind = Variant::Kind;
    const std::vector<Kind> expected{Kind::long_integer, Kind::double_float, Kind::date,
                                     Kind::double_float, Kind::long_integer, Kind::double_float};
    std::vector<Kind> kinds(values.size());
    std::ranges::transform(values, kinds.begin(), &Variant::kind);
    CHECK(kinds == expected);
}

TEST_CASE("a quick sort leaves up to 13 elements to the insertion sort and parts 14") {
    EqualTexts thirteen(13);
    CSort::QuickSort(thirteen.values, 0, 12);
    CHECK(thirteen.order() == counted(13));

    // The middle, 6, becomes the pivot; from both sides inwards equal elements change places; where they meet, the
    // pivot is set.
    EqualTexts fourteen(14);
    CSort::QuickSort(fourteen.values, 0, 13);
    CHECK(fourteen.order() == std::vector<std::size_t>{7, 13, 12, 11, 10, 9, 8, 6, 0, 5, 4, 3, 2, 1});
}

TEST_CASE("the other quick sort parts whatever has more than one element") {
    // The middle is the pivot; the first takes its place, changes places with the last and so ends behind it.
    EqualTexts three(3);
    CSort::QSort(three.values, 0, 2);
    CHECK(three.order() == std::vector<std::size_t>{2, 1, 0});
}

TEST_CASE("gaps begin with 14 elements") {
    EqualTexts thirteen(13, 8);
    CSort::ShellSort(thirteen.values, 0, 12);
    CHECK(thirteen.order() == std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12, 8});
    // With a gap of 4 the greater element changes places with the fourth behind it, which so passes its equals.
    EqualTexts fourteen(14, 8);
    CSort::ShellSort(fourteen.values, 0, 13);
    CHECK(fourteen.order() == std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 12, 9, 10, 11, 13, 8});
}

TEST_CASE("elements that cannot be compared end up somewhere, and none is lost") {
    for (const Sort sort : sorts) {
        for (std::int32_t size = 1; size <= 60; ++size) {
            std::vector<Variant> values;
            for (std::int32_t place = 0; place < size; ++place) {
                const std::array<Variant, 4> choices{Variant(place), Variant(Null{}), Variant(ErrorValue{2007}),
                                                     Variant(u"text")};
                values.push_back(choices[static_cast<std::size_t>(place * 7 % 4)]);
            }
            std::array<int, 14> before{};
            for (const Variant& value : values) ++before[static_cast<std::size_t>(value.kind())];
            sort(values, 0, last_of(values));
            std::array<int, 14> after{};
            for (const Variant& value : values) ++after[static_cast<std::size_t>(value.kind())];
            REQUIRE(before == after);
        }
    }
}
