#include "session/workbook_lookup.hpp"

#include <fmt/format.h>

#include "automation/member_names.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "screens/script/script_error.hpp"
#include "session/script_shape.hpp"

namespace qor {
namespace {

std::vector<std::string> names_of(const std::vector<Variant>& items) {
    std::vector<std::string> result;
    result.reserve(items.size());
    for (const Variant& item : items) result.push_back(name_of(item.object()));
    return result;
}

Object find_named(const std::vector<Variant>& items, const std::string& name) {
    for (const Variant& item : items) {
        if (equal_ignoring_case(to_text(item.get(names::Name)), from_utf8(name))) return item.object();
    }
    return {};
}

}  // namespace

std::string name_of(const Object& named) {
    return to_utf8(to_text(named.get(names::Name)));
}

Object find_workbook(const Object& application, const std::string& name) {
    const std::vector<Variant> workbooks = application.get(names::Workbooks).object().items();
    Object found = name == "active" ? application.get(names::ActiveWorkbook).object() : find_named(workbooks, name);
    if (!found) {
        throw ScriptError(
            fmt::format("there is no workbook \"{}\"; open are: {}", name, enumeration(names_of(workbooks))));
    }
    return found;
}

Object find_sheet(const Object& workbook, const nlohmann::json& name_or_number) {
    const std::vector<Variant> sheets = workbook.get(names::Worksheets).object().items();
    Object found;
    if (name_or_number.is_string()) {
        found = find_named(sheets, name_or_number.get_ref<const std::string&>());
    } else if (name_or_number.is_number_unsigned()) {
        const auto number = name_or_number.get<std::size_t>();
        if (number >= 1 && number <= sheets.size()) found = sheets[number - 1].object();
    } else {
        throw ScriptError("a sheet must be a name or a number from 1, but it is " + name_or_number.dump());
    }
    if (!found) {
        throw ScriptError(fmt::format("there is no sheet {} in {}; there are: {}", name_or_number.dump(),
                                      name_of(workbook), enumeration(names_of(sheets))));
    }
    return found;
}

Object find_range(const Object& sheet, const std::string& address) {
    Object found;
    attempt([&] { found = sheet.get(names::Range, from_utf8(address)).object(); });
    if (!found) throw ScriptError(fmt::format("there is no range \"{}\" in the sheet {}", address, name_of(sheet)));
    return found;
}

}  // namespace qor
