#pragma once

#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

// A workbook with the sheets Sheet1, Data and Last.
inline Object three_sheets(const Calc& calc) {
    Object book = calc.add_book();
    const Object sheets = book.get(names::Worksheets);
    sheets.call(names::Add, named(names::After, sheets.get(names::Item, 1))).put(names::Name, u"Data");
    sheets.call(names::Add, named(names::After, sheets.get(names::Item, 2))).put(names::Name, u"Last");
    const Object data = sheets.get(names::Item, u"Data");
    data.get(names::Range, u"A1").put(names::Value, 5.0);
    data.get(names::Range, u"A2").put(names::Formula, u"=A1*2");
    data.get(names::Range, u"A3").put(names::Formula, u"=Sheet1!B1+A1");
    data.get(names::Range, u"A1").get(names::Interior).put(names::Color, 255);
    data.get(names::Range, u"A1").put(names::ColumnWidth, 30.0);
    sheets.get(names::Item, 1).get(names::Range, u"B1").put(names::Value, 100.0);
    return book;
}

inline std::string active_sheet(const Calc& calc) {
    return utf8(calc.application.get(names::ActiveSheet).get(names::Name));
}

}  // namespace qor::calc::tests
