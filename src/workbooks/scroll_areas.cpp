#include "workbooks/scroll_areas.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/host_state.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

std::vector<std::u16string> selected_sheets() {
    std::vector<std::u16string> sheets;
    for (const Variant& sheet : gExcel.get(names::ActiveWindow).get(names::SelectedSheets).object().items())
        sheets.push_back(to_text(sheet.get(names::Name)));
    return sheets;
}

// The sheets that the user has selected, and the one of them that is active.
class SheetGroup {
  public:
    SheetGroup() : active_(to_long(gExcel.get(names::ActiveSheet).get(names::Index))), sheets_(selected_sheets()) {}
    SheetGroup(const SheetGroup&) = delete;
    SheetGroup& operator=(const SheetGroup&) = delete;
    ~SheetGroup() {
        if (!is_back_) attempt([&] { bring_back(); });
    }

    const std::vector<std::u16string>& sheets() const { return sheets_; }

    void bring_back() {
        is_back_ = true;
        gExcel.get(names::Worksheets, active_).call(names::Activate);
        for (const std::u16string& name : sheets_) gExcel.get(names::Worksheets, name).call(names::Select, false);
    }

  private:
    std::int32_t active_;
    std::vector<std::u16string> sheets_;
    bool is_back_ = false;
};

}  // namespace

void SetScrollAreas() {
    const SwitchedOff screen_updating(names::ScreenUpdating);
    SheetGroup group;
    for (const std::u16string& name : group.sheets()) {
        const Variant sheet = gExcel.get(names::Worksheets, name);
        sheet.call(names::Activate);
        sheet.put(names::ScrollArea, gExcel.get(names::Selection).get(names::Areas, 1).get(names::AddressLocal));
    }
    group.bring_back();
}

void ClearScrollAreas() {
    for (const std::u16string& name : selected_sheets())
        gExcel.get(names::Worksheets, name).put(names::ScrollArea, u"");
}

}  // namespace qor
