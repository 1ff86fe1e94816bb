#pragma once

#include <optional>
#include <string>

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// What Excel knows of a sheet and Calc does not. It is kept in a property of the document, under the sheet's name, and
// so lives as long as the document and in its own file format.
struct SheetMarks {
    struct Protection {
        bool contents = false;
        bool drawing_objects = false;
        bool scenarios = false;
        bool operator==(const Protection&) const = default;
    };

    bool very_hidden = false;
    std::optional<Protection> protection;  // as it was asked for; none when the sheet came protected from a file
    bool transition_form_entry = false;
    std::u16string scroll_area;  // an address; empty when all cells can be reached
    bool operator==(const SheetMarks&) const = default;
};

SheetMarks sheet_marks(const Sheet& sheet);
void set_sheet_marks(const Sheet& sheet, const SheetMarks& marks);
// The marks go along with the sheet's new name.
void move_sheet_marks(const Book& book, const std::u16string& from, const std::u16string& to);
void remove_sheet_marks(const Book& book, const std::u16string& name);

}  // namespace qor::calc
