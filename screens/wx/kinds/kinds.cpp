#include "screens/wx/kinds.hpp"

#include <stdexcept>
#include <typeindex>
#include <unordered_map>

#include "screens/wx/kinds/kinds.hpp"

namespace qor::wx {
namespace {

using Binder = std::unique_ptr<Binding> (*)(Control&, const Place&);

template <class Kind>
std::pair<const std::type_index, Binder> binder() {
    return {typeid(Kind),
            [](Control& control, const Place& place) { return bind_kind(static_cast<Kind&>(control), place); }};
}

}  // namespace

std::unique_ptr<Binding> bind(Control& control, const Place& place) {
    static const std::unordered_map<std::type_index, Binder> binders{
        binder<Button>(),  binder<CheckBox>(), binder<ComboBox>(), binder<DatePicker>(), binder<Frame>(),
        binder<Label>(),   binder<ListBox>(),  binder<Options>(),  binder<PickBox>(),    binder<ProgressPanel>(),
        binder<SpinBox>(), binder<Swatch>(),   binder<Tabs>(),     binder<TextBox>(),    binder<TreeView>(),
    };
    const auto place_of_kind = binders.find(typeid(control));
    if (place_of_kind == binders.end()) throw std::logic_error("no window is made for controls of this type");
    return place_of_kind->second(control, place);
}

}  // namespace qor::wx
