#pragma once

#include "reports/report_form.hpp"

namespace qor {

// The dialog of the Worksheet Summary.
class frmWKSum final : public ReportForm {
  public:
    frmWKSum() : ReportForm(u"frmWKSum") {}

  private:
    ReportFields all_fields() const override;
    void write_report(std::span<const std::u16string> headings) override;
};

}  // namespace qor
