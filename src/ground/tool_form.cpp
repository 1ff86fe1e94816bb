#include "ground/tool_form.hpp"

#include "automation/member_names.hpp"
#include "automation/variant.hpp"

namespace qor {

void ToolForm::show_help() const {
    gExcel.call(names::Help, HelpFile, HelpFileId);
}

}  // namespace qor
