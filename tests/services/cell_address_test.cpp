#include "services/cell_address.hpp"

#include <doctest/doctest.h>

using namespace qor;

TEST_CASE("an address is reduced to its first area, its first cell, its columns or its rows") {
    CHECK(first_area(u"C3,A1:B2") == u"C3");
    CHECK(first_area(u"A1:B2") == u"A1:B2");
    CHECK(first_cell(u"A1:B2,C3") == u"A1");
    CHECK(first_cell(u"C3,A1:B2") == u"C3,A1");
    CHECK(first_cell(u"C3") == u"C3");

    CHECK(whole_column(u"B5:D7") == u"B:B");
    CHECK(whole_column(u"B:B") == u"B:B");
    CHECK(whole_column(u"B:D") == u"B:B");
    CHECK(whole_column(u"AB12") == u"AB:AB");
    CHECK(whole_column(u"5:5") == u"5:5");
    CHECK(whole_column(u"C3,A1:B2") == u"C:C");
    CHECK(whole_column(u"").empty());

    CHECK(whole_row(u"B5:D7") == u"5:5");
    CHECK(whole_row(u"B:B").empty());
    CHECK(whole_row(u"5:5") == u"5:5");
    CHECK(whole_row(u"12:40") == u"12:12");
    CHECK(whole_row(u"AB120") == u"120:120");
    CHECK(whole_row(u"C3,A1:B2") == u"1:1");
    CHECK(whole_row(u"").empty());
}
