#include "functions/registration.hpp"

#include "automation/member_names.hpp"
#include "functions/registry.hpp"

namespace qor {

void setup_functions(const Object& application, const std::u16string& help_file) {
    try {
        for (const Function& function : worksheet_functions()) {
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
