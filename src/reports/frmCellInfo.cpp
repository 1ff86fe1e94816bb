#include "reports/frmCellInfo.hpp"

#include "reports/cell_columns.hpp"

namespace qor {

ReportFields frmCellInfo::all_fields() const {
    return ReportFields(cell_information_columns());
}

void frmCellInfo::write_report(std::span<const std::u16string> headings) {
    ctlTreeView.CellInfo(headings);
}

}  // namespace qor
