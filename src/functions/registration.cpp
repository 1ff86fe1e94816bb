#include "functions/registration.hpp"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "automation/member_names.hpp"
#include "functions/registration_order.hpp"
#include "functions/registry.hpp"
#include "platform/text.hpp"

namespace qor {
namespace {

struct CompanionFunction {
    std::u16string_view name;
    std::int32_t help_id;
    std::u16string_view description;
};

constexpr std::array companion_functions{
    CompanionFunction{u"CELLINFO", 130000, u"Returns cell information."},
    CompanionFunction{u"EXCELUSERNAME", 130010, u"Returns Excel user name."},
    CompanionFunction{u"WRKBKINFO", 130025, u"Returns workbook information."},
    CompanionFunction{u"WRKSHTINFO", 130020, u"Returns worksheet information."},
};

RegisteredFunction registered(std::u16string_view name, Category category) {
    if (const Function* function = find_function(name)) {
        return {function->name, function->description, category, function->help_id};
    }
    const auto* const row = std::ranges::find(companion_functions, name, &CompanionFunction::name);
    if (row == companion_functions.end()) throw std::logic_error(to_utf8(name) + " is declared nowhere");
    return {row->name, row->description, category, row->help_id};
}

std::vector<RegisteredFunction> functions_in_order() {
    std::vector<RegisteredFunction> functions;
    for (const RegistrationRun& run : registration_runs()) {
        for (const std::u16string_view name : run.names) functions.push_back(registered(name, run.category));
    }
    return functions;
}

}  // namespace

std::span<const RegisteredFunction> registered_functions() {
    static const std::vector<RegisteredFunction> functions = functions_in_order();
    return functions;
}

void setup_functions(const Object& application, const std::u16string& help_file) {
    try {
        for (const RegisteredFunction& function : registered_functions()) {
            application.call(names::MacroOptions, named(names::Macro, function.name),
                             named(names::Description, function.description),
                             named(names::Category, static_cast<std::int32_t>(function.category)),
                             named(names::HelpContextID, function.help_id), named(names::HelpFile, help_file));
        }
    } catch (const Error& error) {
        throw Error(error.number(), error.description() + u"\rSetupFunc", error.description());
    }
}

}  // namespace qor
