#include "core/tool_launch.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/message.hpp"
#include "ground/product.hpp"

namespace qor {

bool require_active_workbook() {
    if (gExcel.get(names::ActiveWorkbook).object()) return true;
    show_message(u"Sorry, but you must have an active workbook to perform this operation.", MessageIcon::information);
    return false;
}

void show_form(ToolForm& form, std::u16string_view title, std::int32_t help_id, const std::u16string& help_file) {
    form.AppTitle = std::u16string(product::title).append(u": ").append(title);
    form.HelpFile = help_file;
    form.HelpFileId = help_id;
    form.show_modal();
}

void launch(const Tool& tool, const std::u16string& help_file) {
    if (tool.needs_active_workbook && !require_active_workbook()) return;
    show_form(*tool.make_form(), tool.title, tool.help_id, help_file);
}

}  // namespace qor
