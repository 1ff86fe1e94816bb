#include "core/tool_table.hpp"

#include <algorithm>
#include <array>

#include "reports/report_forms.hpp"
#include "tools/sheets/frmAddWk.hpp"
#include "tools/sheets/frmDelWk.hpp"
#include "tools/sheets/frmNav.hpp"
#include "tools/sheets/frmSpChk.hpp"
#include "tools/sheets/frmSrtWk.hpp"

namespace qor {
namespace {

template <class T>
std::unique_ptr<ToolForm> make() {
    return std::make_unique<T>();
}

constexpr std::array table{
    Tool{u"UTAddWor", u"Add Worksheets", 170000, true, make<frmAddWk>},
    Tool{u"UTCelInf", u"Cell Information", 170030, true, make<frmCellInfo>},
    Tool{u"UTDatRev", u"Date Review", 170080, true, make<frmDtRev>},
    Tool{u"UTDelEmpWor", u"Delete Empty Worksheets", 170090, true, make<frmDelWk>},
    Tool{u"UTNav", u"Navigator", 170120, true, make<frmNav>},
    Tool{u"UTSorWor", u"Sort Worksheets", 170155, true, make<frmSrtWk>},
    Tool{u"UTSpeCheAll", u"Spell Check", 170160, true, make<frmSpChk>},
    Tool{u"UTWokSum", u"Workbook Summary", 170180, true, make<frmWBSum>},
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
