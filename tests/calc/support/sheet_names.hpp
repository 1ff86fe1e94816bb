#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <stdexcept>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/uno/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/calc/support/fixture.hpp"

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

// The office's own object of a workbook that was saved.
inline Document document_of(const Object& book) {
    for (const Document& document : Host(office_context()).documents()) {
        const auto address = Ref<css::frame::XModel>(document)->getURL();
        if (address.endsWith(to_uno(u"/" + to_text(book.get(names::Name))))) return document;
    }
    throw std::runtime_error("the workbook is not open");
}

inline void protect_structure(const Object& book) {
    Ref<css::util::XProtectable>(document_of(book))->protect({});
}

}  // namespace qor::calc::tests
