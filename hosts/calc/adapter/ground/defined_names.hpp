#pragma once

#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <vector>

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// A name that stands for a formula or a range, in the whole workbook or on one of its sheets.
struct DefinedName {
    Book book;
    Ref<css::sheet::XNamedRanges> siblings;
    Ref<css::sheet::XNamedRange> range;
    std::u16string sheet;  // empty in the whole workbook

    // As Excel writes it: that of a sheet with the sheet in front, "Sheet1!Rate". Raises 1004 when it is gone.
    std::u16string text() const;
    // A formula in Excel's notation, with its equals sign.
    std::u16string refers_to() const;
    void set_refers_to(const std::u16string& formula) const;
    // Raises 1004 when it stands for something else than one range.
    RangeAreas cells() const;
    void remove() const;
};

// Those that a user has made, by the alphabet.
std::vector<DefinedName> defined_names(const Book& book);
// Raises 1004 when there is none of that name.
DefinedName defined_name(const Book& book, std::u16string_view text);
// The first by the alphabet that stands for exactly these cells; none when there is none.
std::optional<DefinedName> name_of_cells(const RangeAreas& areas);
// One that there is already gets the new meaning. Raises 1004 for a name or a formula that the office refuses.
DefinedName define_name(const Book& book, std::u16string_view text, const std::u16string& formula);

}  // namespace qor::calc
