#pragma once

#include <memory>

#include "screens/wx/binding.hpp"
#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/combo_box.hpp"
#include "ui/date_picker.hpp"
#include "ui/frame.hpp"
#include "ui/label.hpp"
#include "ui/list_box.hpp"
#include "ui/options.hpp"
#include "ui/pick_box.hpp"
#include "ui/progress_panel.hpp"
#include "ui/spin_box.hpp"
#include "ui/swatch.hpp"
#include "ui/tabs.hpp"
#include "ui/text_box.hpp"
#include "ui/tree_view.hpp"

namespace qor::wx {

std::unique_ptr<Binding> bind_kind(Button& button, const Place& place);
std::unique_ptr<Binding> bind_kind(CheckBox& box, const Place& place);
std::unique_ptr<Binding> bind_kind(ComboBox& combo, const Place& place);
std::unique_ptr<Binding> bind_kind(DatePicker& picker, const Place& place);
std::unique_ptr<Binding> bind_kind(Frame& frame, const Place& place);
std::unique_ptr<Binding> bind_kind(Label& label, const Place& place);
std::unique_ptr<Binding> bind_kind(ListBox& list, const Place& place);
std::unique_ptr<Binding> bind_kind(Options& options, const Place& place);
std::unique_ptr<Binding> bind_kind(PickBox& box, const Place& place);
std::unique_ptr<Binding> bind_kind(ProgressPanel& panel, const Place& place);
std::unique_ptr<Binding> bind_kind(SpinBox& box, const Place& place);
std::unique_ptr<Binding> bind_kind(Swatch& swatch, const Place& place);
std::unique_ptr<Binding> bind_kind(Tabs& tabs, const Place& place);
std::unique_ptr<Binding> bind_kind(TextBox& box, const Place& place);
std::unique_ptr<Binding> bind_kind(TreeView& tree, const Place& place);

}  // namespace qor::wx
