#pragma once

#include "ground/tool_form.hpp"
#include "ui/button.hpp"
#include "ui/label.hpp"

namespace qor {

// The box that tells the product's title, version and legal notice.
class frmAbout final : public ToolForm {
  public:
    frmAbout();

    Label lblTitle{*this, u"lblTitle"};
    Label lblVersion{*this, u"lblVersion"};
    Label lblDisclaimer{*this, u"lblDisclaimer"};
    Button cmdOK{*this, u"cmdOK", u"OK"};

  protected:
    void on_load() override;
    void on_unload() override;
};

}  // namespace qor
