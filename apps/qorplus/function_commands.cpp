#include "apps/qorplus/function_commands.hpp"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <nlohmann/json.hpp>

#include "apps/qorplus/usage_error.hpp"
#include "apps/qorplus/value_text.hpp"
#include "functions/function_words.hpp"
#include "functions/registry.hpp"
#include "platform/text.hpp"

namespace qor::cli {
namespace {

// "ARNS dBgAR dEdAR dNetSales [lDecPlace=4]"
std::string signature(const Function& function) {
    std::string text = to_utf8(function.name);
    for (const Parameter& parameter : function.parameters) {
        const std::string name = to_utf8(parameter.name);
        if (!parameter.is_optional()) {
            text += " " + name;
        } else if (parameter.default_value->is_missing()) {
            text += " [" + name + "]";
        } else {
            text += fmt::format(" [{}={}]", name, show_value(*parameter.default_value));
        }
    }
    return text;
}

const Function& function_named(const std::string& name) {
    const std::u16string text = from_utf8(name);
    if (const Function* function = find_function(text)) return *function;
    for (const Function& function : reserved_functions()) {
        if (equal_ignoring_case(function.name, text)) return function;
    }
    throw UsageError(fmt::format("there is no function {}; \"qorplus functions\" lists them all", name));
}

// The conversion does not say which argument it was that did not fit.
void require_fitting(const Parameter& parameter, const Variant& value, const std::string& given) {
    const auto convert_it = [&] {
        switch (parameter.kind) {
            case ValueKind::number:
                to_double(value);
                break;
            case ValueKind::whole_number:
                to_long(value);
                break;
            case ValueKind::boolean:
                to_boolean(value);
                break;
            case ValueKind::text:
                to_text(value);
                break;
            case ValueKind::variant:
                break;
        }
    };
    if (attempt(convert_it) != 0)
        throw UsageError(fmt::format("{} must be a {}, but {} is none", to_utf8(parameter.name),
                                     to_utf8(kind_name(parameter.kind)), given.empty() ? "the empty text" : given));
}

nlohmann::ordered_json parameter_entry(const Parameter& parameter) {
    nlohmann::ordered_json entry{{"name", to_utf8(parameter.name)},
                                 {"kind", to_utf8(kind_name(parameter.kind))},
                                 {"optional", parameter.is_optional()},
                                 {"byReference", parameter.is_by_reference}};
    if (parameter.is_optional() && !parameter.default_value->is_missing())
        entry["default"] = write_value(*parameter.default_value);
    return entry;
}

nlohmann::ordered_json function_entry(const Function& function, bool is_registered) {
    auto parameters = nlohmann::ordered_json::array();
    for (const Parameter& parameter : function.parameters) parameters.push_back(parameter_entry(parameter));
    auto examples = nlohmann::ordered_json::array();
    for (const Example& example : function.examples) {
        auto arguments = nlohmann::ordered_json::array();
        for (const Variant& argument : example.arguments) arguments.push_back(write_value(argument));
        examples.push_back({{"arguments", std::move(arguments)}, {"result", show_value(example.result)}});
    }
    nlohmann::ordered_json entry{{"name", to_utf8(function.name)}, {"member", to_utf8(function.member)}};
    entry["registered"] = is_registered;
    if (is_registered) {
        entry["category"] = static_cast<std::int32_t>(function.category);
        entry["categoryName"] = to_utf8(category_name(function.category));
        entry["helpId"] = function.help_id;
        entry["description"] = to_utf8(function.description);
    }
    entry["parameters"] = std::move(parameters);
    entry["result"] = to_utf8(kind_name(function.result_kind()));
    entry["examples"] = std::move(examples);
    return entry;
}

}  // namespace

std::string call_function(const std::string& name, const std::vector<std::string>& given) {
    const Function& function = function_named(name);
    if (given.size() > function.parameters.size()) {
        throw UsageError(
            fmt::format("{} arguments are too many; the function is {}", given.size(), signature(function)));
    }
    std::vector<Variant> arguments;
    for (std::size_t place = 0; place < function.parameters.size(); ++place) {
        const Parameter& parameter = function.parameters[place];
        const Variant value = place < given.size() ? parse_value(given[place]) : Variant(Missing{});
        if (!value.is_missing()) {
            require_fitting(parameter, value, given[place]);
        } else if (!parameter.is_optional()) {
            throw UsageError(
                fmt::format("{} is missing; the function is {}", to_utf8(parameter.name), signature(function)));
        }
        arguments.push_back(value);
    }
    return show_value(function.invoke(std::move(arguments)));
}

std::string list_functions() {
    std::string text;
    for (const Function& function : worksheet_functions())
        text += fmt::format("{:<56}  {}\n", signature(function), to_utf8(function.description));
    return text;
}

std::string list_functions_as_json() {
    auto entries = nlohmann::ordered_json::array();
    for (const Function& function : worksheet_functions()) entries.push_back(function_entry(function, true));
    for (const Function& function : reserved_functions()) entries.push_back(function_entry(function, false));
    return entries.dump(2) + "\n";
}

}  // namespace qor::cli
