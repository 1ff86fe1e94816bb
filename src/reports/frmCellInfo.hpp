#pragma once

#include "reports/report_form.hpp"

namespace qor {

// The dialog of the Cell Information.
class frmCellInfo final : public ReportForm {
  public:
    frmCellInfo() : ReportForm(u"frmCellInfo") {}

  private:
    ReportFields all_fields() const override;
    void write_report(std::span<const std::u16string> headings) override;
};

}  // namespace qor
