#include "core/tool_table.hpp"

#include <algorithm>
#include <array>

#include "reports/frmWKSum.hpp"

namespace qor {
namespace {

template <class T>
std::unique_ptr<ToolForm> make() {
    return std::make_unique<T>();
}

constexpr std::array table{
    Tool{u"UTWorSum", u"Worksheet Summary", 170190, true, make<frmWKSum>},
};

}  // namespace

std::span<const Tool> tools() {
    return table;
}

const Tool* find_tool(const MemberName& member) {
    const auto* tool = std::ranges::find(table, member, [](const Tool& row) { return MemberName(row.member); });
    return tool == table.end() ? nullptr : tool;
}

}  // namespace qor
