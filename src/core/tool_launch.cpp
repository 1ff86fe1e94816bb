#include "core/tool_launch.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/product.hpp"

namespace qor {
namespace {

void show_form(const Tool& tool, const std::u16string& help_file) {
    const std::unique_ptr<ToolForm> form = tool.make_form();
    form->AppTitle = std::u16string(product::title) + u": " + std::u16string(tool.title);
    form->HelpFile = help_file;
    form->HelpFileId = tool.help_id;
    form->show_modal();
}

}  // namespace

bool require_active_workbook() {
    if (gExcel.get(names::ActiveWorkbook).object()) return true;
    environment().screen.message_box({.title = std::u16string(product::title),
                                      .text = u"Sorry, but you must have an active workbook to perform this operation.",
                                      .icon = MessageIcon::information});
    return false;
}

void launch(const Tool& tool, const Object& application, const std::u16string& help_file) {
    gExcel = application;
    if (!tool.needs_active_workbook || require_active_workbook()) show_form(tool, help_file);
    gExcel = Object();
}

}  // namespace qor
