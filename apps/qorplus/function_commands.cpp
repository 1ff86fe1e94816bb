#include "apps/qorplus/function_commands.hpp"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <nlohmann/json.hpp>

#include "apps/qorplus/usage_error.hpp"
#include "apps/qorplus/value_text.hpp"
#include "functions/registry.hpp"
#include "platform/text.hpp"

namespace qor::cli {
namespace {

const char* kind_text(ValueKind kind) {
    switch (kind) {
        case ValueKind::number:
            return "number";
        case ValueKind::whole_number:
            return "whole number";
        case ValueKind::text:
            return "text";
        case ValueKind::boolean:
            return "boolean";
        case ValueKind::variant:
            return "value";
    }
    return "value";
}

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
    if (const Function* function = find_function(from_utf8(name))) return *function;
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
                                     kind_text(parameter.kind), given.empty() ? "the empty text" : given));
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
    nlohmann::ordered_json functions = nlohmann::ordered_json::array();
    for (const Function& function : worksheet_functions()) {
        nlohmann::ordered_json parameters = nlohmann::ordered_json::array();
        for (const Parameter& parameter : function.parameters) {
            parameters.push_back({{"name", to_utf8(parameter.name)},
                                  {"kind", kind_text(parameter.kind)},
                                  {"optional", parameter.is_optional()}});
            if (parameter.is_optional() && !parameter.default_value->is_missing())
                parameters.back()["default"] = show_value(*parameter.default_value);
        }
        functions.push_back({{"name", to_utf8(function.name)},
                             {"category", static_cast<std::int32_t>(function.category)},
                             {"helpId", function.help_id},
                             {"description", to_utf8(function.description)},
                             {"parameters", std::move(parameters)},
                             {"result", kind_text(function.result_kind())}});
    }
    return functions.dump(2) + "\n";
}

}  // namespace qor::cli
