#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>

#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

class OptionsBinding final : public Binding {
  public:
    OptionsBinding(Options& options, const Place& place) : options_(options), window_(new wxPanel(place.parent)) {
        // The toolkit always holds one button of a group chosen: none of the others while it is this one.
        none_ = new wxRadioButton(window_, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
        none_->Hide();
        const int gap = window_->GetCharWidth();
        auto* sizer = new wxFlexGridSizer(place.hints.columns, gap / 2, 3 * gap);
        for (const std::u16string& caption : options_.captions()) {
            auto* button = new wxRadioButton(window_, wxID_ANY, to_wx(caption));
            const int own = static_cast<int>(buttons_.size());
            button->Bind(wxEVT_RADIOBUTTON, [this, own, user_does = place.user_does](wxCommandEvent&) {
                user_does([&] { options_.choose(own); });
            });
            buttons_.push_back(button);
            sizer->Add(button);
        }
        window_->SetSizer(sizer);
    }
    wxWindow& window() const override { return *window_; }
    void show_model() override {
        wxRadioButton* chosen =
            options_.chosen() == Options::none ? none_ : buttons_.at(static_cast<std::size_t>(options_.chosen()));
        if (!chosen->GetValue()) chosen->SetValue(true);
    }

  private:
    Options& options_;
    wxPanel* window_;
    wxRadioButton* none_;
    std::vector<wxRadioButton*> buttons_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(Options& options, const Place& place) {
    return std::make_unique<OptionsBinding>(options, place);
}

}  // namespace qor::wx
