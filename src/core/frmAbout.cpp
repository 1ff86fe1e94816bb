#include "core/frmAbout.hpp"

#include "ground/product.hpp"
#include "runtime/conversion.hpp"

namespace qor {

frmAbout::frmAbout() : ToolForm(u"frmAbout") {
    cmdOK.on_click = [this] { unload(); };
}

void frmAbout::on_load() {
    lblTitle.set_text(AppTitle);
    lblVersion.set_text(u"Version: " + std::u16string(product::version) + u"  Build (" + to_text(product::revision) +
                        u")");
    lblDisclaimer.set_text(std::u16string(product::legal_notice));
}

void frmAbout::on_unload() {
    AppTitle.clear();
}

}  // namespace qor
