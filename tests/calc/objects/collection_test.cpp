#include "hosts/calc/adapter/objects/collection.hpp"

#include <map>

#include "tests/calc/objects/every_object.hpp"

namespace qor::calc::tests {
namespace {

std::map<std::string, Object> every_collection(const Calc& calc, const Object& book) {
    const Object sheet = book.get(names::Worksheets, 1);
    const Object cell = sheet.get(names::Range, u"A1");
    const Object bars = calc.application.get(names::CommandBars);
    const Object collections[] = {cell.get(names::Areas),
                                  cell.get(names::FormatConditions),
                                  sheet.get(names::ChartObjects),
                                  sheet.get(names::ChartObjects, 1).get(names::Chart).get(names::SeriesCollection),
                                  sheet.get(names::Comments),
                                  sheet.get(names::OLEObjects),
                                  book.get(names::CustomDocumentProperties),
                                  book.get(names::Names),
                                  book.get(names::Windows),
                                  book.get(names::Worksheets),
                                  calc.application.get(names::RecentFiles),
                                  calc.application.get(names::Workbooks),
                                  bars,
                                  bars.get(names::Item, 1).get(names::Controls)};
    std::map<std::string, Object> by_kind;
    for (const Object& collection : collections) by_kind.emplace(kind_of(collection), collection);
    return by_kind;
}

}  // namespace

TEST_CASE("every collection answers its elements one by one and all at once") {
    const Calc calc;
    for (const auto& [kind, collection] : every_collection(calc, full_book(calc))) {
        CAPTURE(kind);
        const std::vector<Variant> items = collection.items();
        REQUIRE(collection.get(names::Count) == static_cast<std::int32_t>(items.size()));
        for (std::size_t place = 0; place < items.size(); ++place) {
            const Object one = collection.get(names::Item, static_cast<std::int32_t>(place) + 1);
            CHECK(kind_of(one) == kind_of(items[place].object()));
        }
        CHECK(error_of([&] { collection.get(names::Item); }) == 449);
    }
}

// A number below the first and one behind the last, and a name that is not there.
TEST_CASE("what every collection raises for an element that is not there") {
    const Calc calc;
    std::set<std::string> raised;
    for (const auto& [kind, collection] : every_collection(calc, full_book(calc))) {
        CAPTURE(kind);
        const auto error_for = [&](const Variant& index) {
            return std::to_string(error_of([&] { collection.get(names::Item, index); }));
        };
        CHECK(error_for(10000) == error_for(0));
        raised.insert(kind + " " + error_for(0) + " " + error_for(u"no such element"));
    }
    CHECK(text_of(raised) ==
          "Areas 9 13; ChartObjects 1004 1004; CommandBarControls 5 5; CommandBars 9 5; Comments 9 13; "
          "DocumentProperties 5 5; FormatConditions 9 13; Names 1004 1004; OLEObjects 1004 1004; RecentFiles 9 13; "
          "SeriesCollection 1004 1004; Sheets 9 9; Windows 9 9; Workbooks 9 9; ");
}

TEST_CASE("a collection without names takes a text as a number") {
    const Calc calc;
    const Object sheet = full_book(calc).get(names::Worksheets, 1);
    const Object areas = sheet.get(names::Range, u"A1,C3").get(names::Areas);
    CHECK(areas.get(names::Item, u"2").get(names::Address) == u"$C$3");
    CHECK(sheet.get(names::Comments, u"1").get(names::Parent).get(names::Address) == u"$A$1");
    CHECK(error_of([&] { areas.get(names::Item, u"3"); }) == 9);
}

}  // namespace qor::calc::tests
