#include <wx/checkbox.h>

#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

class CheckBoxBinding final : public Binding {
  public:
    CheckBoxBinding(CheckBox& box, const Place& place)
        : box_(box), window_(new wxCheckBox(place.parent, wxID_ANY, to_wx(box.caption()))) {
        window_->Bind(wxEVT_CHECKBOX, [this, user_does = place.user_does](const wxCommandEvent& event) {
            user_does([&] { box_.set_checked(event.IsChecked()); });
        });
    }
    wxWindow& window() const override { return *window_; }
    void show_model() override {
        if (window_->GetValue() != box_.checked()) window_->SetValue(box_.checked());
    }

  private:
    CheckBox& box_;
    wxCheckBox* window_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(CheckBox& box, const Place& place) {
    return std::make_unique<CheckBoxBinding>(box, place);
}

}  // namespace qor::wx
