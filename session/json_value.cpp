#include "session/json_value.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "automation/host_numbers.hpp"
#include "platform/text.hpp"
#include "runtime/calendar.hpp"
#include "screens/script/script_error.hpp"

namespace qor {
namespace {

using nlohmann::json;

struct ErrorText {
    std::int32_t code;
    const char* text;
};
constexpr std::array error_texts{
    ErrorText{numbers::cell_error::null, "#NULL!"},        ErrorText{numbers::cell_error::division_by_zero, "#DIV/0!"},
    ErrorText{numbers::cell_error::value, "#VALUE!"},      ErrorText{numbers::cell_error::reference, "#REF!"},
    ErrorText{numbers::cell_error::name, "#NAME?"},        ErrorText{numbers::cell_error::number, "#NUM!"},
    ErrorText{numbers::cell_error::not_available, "#N/A"},
};

// Whole numbers are written without a decimal point, as a person does.
json number(double value) {
    constexpr double exactly_whole_below = 9007199254740992;  // 2 to the power of 53
    if (std::trunc(value) == value && std::abs(value) < exactly_whole_below) return static_cast<std::int64_t>(value);
    return value;
}

struct ToJson {
    json operator()(Empty) const { return nullptr; }
    json operator()(Null) const { return nullptr; }
    json operator()(Missing) const { return nullptr; }
    json operator()(bool value) const { return value; }
    json operator()(std::int16_t value) const { return value; }
    json operator()(std::int32_t value) const { return value; }
    json operator()(float value) const { return number(static_cast<double>(value)); }
    json operator()(double value) const { return number(value); }
    json operator()(Currency value) const { return number(static_cast<double>(value.ten_thousandths) / 10'000); }
    json operator()(Date value) const { return to_utf8(to_iso(value)); }
    json operator()(const std::u16string& value) const { return to_utf8(value); }
    json operator()(ErrorValue value) const {
        const auto* row = std::ranges::find(error_texts, value.code, &ErrorText::code);
        return row == error_texts.end() ? "Error " + std::to_string(value.code) : std::string(row->text);
    }
    json operator()(const Object& value) const { return value ? json(to_utf8(value.target()->type_name())) : json(); }
    json operator()(const std::shared_ptr<const Array>& value) const {
        json rows = json::array();
        for (std::size_t row = 0; row < value->rows(); ++row) {
            json cells = json::array();
            for (std::size_t column = 0; column < value->columns(); ++column)
                cells.push_back(to_json(value->at(row, column)));
            rows.push_back(std::move(cells));
        }
        return rows;
    }
};

}  // namespace

json to_json(const Variant& value) {
    return value.visit(ToJson{});
}

Variant from_json(const json& value) {
    switch (value.type()) {
        case json::value_t::null:
            return Missing{};
        case json::value_t::boolean:
            return value.get<bool>();
        case json::value_t::string:
            return from_utf8(value.get_ref<const std::string&>());
        case json::value_t::number_integer:
        case json::value_t::number_unsigned:
        case json::value_t::number_float:
            return value.get<double>();
        default:
            throw ScriptError("an argument must be a number, a text, true, false or null, but it is " + value.dump());
    }
}

}  // namespace qor
