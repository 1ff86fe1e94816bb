#pragma once

#include "reports/report_form.hpp"

namespace qor {

// The dialog of the Workbook Summary.
class frmWBSum final : public ReportForm {
  public:
    frmWBSum() : ReportForm(u"frmWBSum") {}

  private:
    ReportFields all_fields() const override;
    void write_report(std::span<const std::u16string> headings) override;
};

}  // namespace qor
