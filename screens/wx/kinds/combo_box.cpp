#include <wx/choice.h>

#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

class ComboBoxBinding final : public Binding {
  public:
    ComboBoxBinding(ComboBox& combo, const Place& place)
        : combo_(combo), window_(new wxChoice(place.parent, wxID_ANY)) {
        window_->Bind(wxEVT_CHOICE, [this, user_does = place.user_does](const wxCommandEvent& event) {
            user_does([&] { combo_.choose(event.GetSelection()); });
        });
    }
    wxWindow& window() const override { return *window_; }
    void show_model() override {
        wxArrayString entries;
        for (const std::u16string& entry : combo_.entries()) entries.Add(to_wx(entry));
        if (entries != window_->GetStrings()) window_->Set(entries);
        if (window_->GetSelection() != combo_.chosen()) window_->SetSelection(combo_.chosen());
    }

  private:
    ComboBox& combo_;
    wxChoice* window_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(ComboBox& combo, const Place& place) {
    return std::make_unique<ComboBoxBinding>(combo, place);
}

}  // namespace qor::wx
