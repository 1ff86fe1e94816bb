#pragma once

#include "ui/form.hpp"
#include "ui/label.hpp"
#include "ui/progress_panel.hpp"

namespace qor {

// The progress window of a long job. It lives for one job, is shown modeless over the job's dialog, and cannot stop it.
class frmComplete final : public Form {
  public:
    frmComplete();

    Label lblFeedback{*this, u"lblFeedback", u"Please wait..."};
    ProgressPanel SSPanel1{*this, u"SSPanel1"};

    std::u16string_view caption() const noexcept override;

    void Feedback(std::u16string_view sText);
    // Floods the panel as far as lDone is of lTotal. More than the whole, or a total of 0, leaves the panel as it was.
    void Percent(std::int32_t lDone, std::int32_t lTotal);
};

}  // namespace qor
