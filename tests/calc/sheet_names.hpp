#pragma once

#include "tests/calc/fixture.hpp"

namespace qor::calc::tests {

// The worksheets of a workbook in their order, such as "Sheet1/Data/".
inline std::string sheet_names(const Object& book) {
    std::string text;
    for (const Variant& sheet : book.get(names::Worksheets).object().items()) {
        text += utf8(sheet.get(names::Name)) + "/";
    }
    return text;
}

// Gives the workbook exactly these worksheets, the first one being what was the first.
inline void give_sheets(const Object& book, const std::vector<std::u16string>& wanted) {
    const Object sheets = book.get(names::Worksheets);
    sheets.get(names::Item, 1).put(names::Name, wanted.front());
    for (std::size_t place = 1; place < wanted.size(); ++place) {
        const Object before = sheets.get(names::Item, static_cast<std::int32_t>(place));
        sheets.call(names::Add, named(names::After, before)).put(names::Name, wanted[place]);
    }
}

}  // namespace qor::calc::tests
