#include "workbooks/window_captions.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/host_state.hpp"
#include "ground/option_table.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

// Where the user was, and is again afterwards.
class ActivePlace {
  public:
    ActivePlace()
        : workbook_(to_text(gExcel.get(names::ActiveWorkbook).get(names::Name))),
          window_(to_long(gExcel.get(names::ActiveWindow).get(names::Index))),
          sheet_(to_long(gExcel.get(names::ActiveSheet).get(names::Index))) {}
    ActivePlace(const ActivePlace&) = delete;
    ActivePlace& operator=(const ActivePlace&) = delete;
    ~ActivePlace() {
        if (!left_) attempt([&] { go_back(); });
    }

    void go_back() {
        left_ = true;
        const Variant workbook = gExcel.get(names::Workbooks, workbook_);
        workbook.call(names::Activate);
        workbook.get(names::Windows, window_).call(names::Activate);
        // The sheet's place among all sheets, though worksheets alone are counted here.
        gExcel.get(names::Worksheets, sheet_).call(names::Activate);
    }

  private:
    std::u16string workbook_;
    std::int32_t window_;
    std::int32_t sheet_;
    bool left_ = false;
};

std::u16string caption_of(const Variant& workbook, bool full_path) {
    // A workbook that was never saved has no path to show.
    if (to_text(workbook.get(names::Path)).empty()) return to_text(gExcel.get(names::ActiveWorkbook).get(names::Name));
    std::u16string name = to_text(workbook.get(full_path ? names::FullName : names::Name));
    if (to_boolean(workbook.get(names::ReadOnly))) name += u" [Read-Only]";
    return name;
}

}  // namespace

void QUpdateWindowCaption() {
    const SwitchedOff screen_updating(names::ScreenUpdating);
    ActivePlace place;
    const bool full_path = is_on(option::chkT1AddFullFilePath);
    for (const Variant& workbook : gExcel.get(names::Workbooks).object().items()) {
        workbook.call(names::Activate);
        const Variant windows = gExcel.get(names::ActiveWorkbook).get(names::Windows);
        if (to_long(windows.get(names::Count)) != 1) continue;
        const Variant behind = gExcel.get(names::Cells, 1, 1).get(names::Parent).get(names::Parent);
        windows.get(names::Item, 1).put(names::Caption, caption_of(behind, full_path));
    }
    place.go_back();
}

}  // namespace qor
