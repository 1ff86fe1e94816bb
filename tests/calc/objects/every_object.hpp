#pragma once

#include <set>
#include <string>
#include <vector>

#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

// A workbook with two sheets; on the first one lies something of every kind.
Object full_book(const Calc& calc);
// One object of each kind that belongs to the sheet, or to the workbook.
std::vector<Object> objects_of_sheet(const Object& sheet);
std::vector<Object> objects_of_book(const Object& book);

std::string kind_of(const Object& object);
// What answers without an error when every member is read, called and, where that can be done, written, such as
// "Range.Parent".
std::set<std::string> answers_of(const std::vector<Object>& objects);
std::string text_of(const std::set<std::string>& lines);

}  // namespace qor::calc::tests
