#include "services/ctlCellRef.hpp"

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"
#include "services/cell_address.hpp"

namespace qor {
namespace {

constexpr std::int32_t whole_column_wanted = 1;
constexpr std::int32_t whole_row_wanted = 2;

}  // namespace

ctlCellRef::ctlCellRef(Form& form, std::u16string name) : box(form, std::move(name), u"CELLREF") {
    box.on_change = [this] { Change(); };
    box.on_pick = [this] { pick(); };
}

void ctlCellRef::pick() {
    attempt([&] { Selecting(true); });
    attempt([&] {
        // False, which is no object, when the user cancels.
        const Object range = gExcel
                                 .call(names::InputBox, named(names::Prompt, u"Please select range"),
                                       named(names::Title, AppTitle), named(names::Type, numbers::input_type::range))
                                 .object();
        box.set_text(reduced(
            to_text(range.get(names::Address, named(names::RowAbsolute, false), named(names::ColumnAbsolute, false)))));
    });
    if (SaveB4Select) attempt([&] { require_saved_workbook(); });
    attempt([&] { Selecting(false); });
}

// Each step starts from the address as the host gave it.
std::u16string ctlCellRef::reduced(const std::u16string& address) const {
    if (SelectSpeck == whole_column_wanted) return whole_column(address);
    if (SelectSpeck == whole_row_wanted) return whole_row(address);
    if (SingleCell && address.find(u':') != address.npos) return std::u16string(first_cell(address));
    return SingleArea ? std::u16string(first_area(address)) : address;
}

void ctlCellRef::require_saved_workbook() {
    const Variant workbook = gExcel.get(names::Range, box.text()).get(names::Parent).get(names::Parent);
    if (!to_text(workbook.get(names::Path)).empty()) return;
    environment().screen.message_box({.title = AppTitle,
                                      .text = u"This file is new and never saved.  Before associating a bookmark with "
                                              u"a file, you must first save the file.",
                                      .icon = MessageIcon::information});
    box.set_text({});
}

void ctlCellRef::SelectRange() const {
    gExcel.get(names::Range, box.text()).call(names::Select);
}

void ctlCellRef::let_form_step_aside() {
    Selecting = [this](bool begins) {
        if (begins) {
            box.form().hide();
        } else {
            box.form().show_modal();
            attempt([&] { SelectRange(); });
        }
    };
}

}  // namespace qor
