#pragma once

#include "reports/report_form.hpp"

namespace qor {

// The dialog of the Date Review.
class frmDtRev final : public ReportForm {
  public:
    frmDtRev() : ReportForm(u"frmDtRev") {}

  private:
    ReportFields all_fields() const override;
    void write_report(std::span<const std::u16string> headings) override;
};

}  // namespace qor
