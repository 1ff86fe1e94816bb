#include "tests/calc/support/tool_run.hpp"

#include "core/tool_table.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"

namespace qor::calc::tests {

void ToolRun::set_option(std::u16string_view name, std::u16string_view value) {
    REQUIRE(settings_.write(u"Options", name, value));
}

nlohmann::json ToolRun::call(std::u16string_view command, const nlohmann::json& script, std::vector<Variant> more) {
    return call(command, script, application, std::move(more));
}

nlohmann::json ToolRun::call(std::u16string_view command, const nlohmann::json& script, const Object& host,
                             std::vector<Variant> more) {
    const MemberName member(command);
    const Tool* tool = find_tool(member);
    more.insert(more.begin(), host);
    screen_.begin_call(script);
    {
        const UndoStep step(std::u16string(tool ? tool->title : command));
        com_.invoke(member, Access::call, {more, {}});
    }
    return screen_.end_call();
}

std::vector<Variant> ToolRun::row(std::int32_t row, std::size_t columns) const {
    std::vector<Variant> values;
    for (std::size_t column = 1; column <= columns; ++column) {
        values.push_back(cell(row, static_cast<std::int32_t>(column)));
    }
    return values;
}

}  // namespace qor::calc::tests
