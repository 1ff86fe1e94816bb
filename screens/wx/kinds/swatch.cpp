#include <wx/button.h>

#include "screens/wx/colours.hpp"
#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

class SwatchBinding final : public Binding {
  public:
    SwatchBinding(const Swatch& swatch, const Place& place)
        : swatch_(swatch),
          window_(new wxButton(place.parent, wxID_ANY, to_wx(swatch.caption()), wxDefaultPosition, wxDefaultSize,
                               wxBU_EXACTFIT)) {
        window_->SetMinSize(window_->GetBestSize() + wxSize(3 * window_->GetCharWidth(), 0));
        window_->Bind(wxEVT_BUTTON,
                      [&swatch, user_does = place.user_does](wxCommandEvent&) { user_does([&] { swatch.press(); }); });
    }
    wxWindow& window() const override { return *window_; }
    void show_model() override {
        const wxColour back = to_wx(swatch_.back_color());
        const wxColour fore = to_wx(swatch_.fore_color());
        if (window_->GetBackgroundColour() != back) window_->SetBackgroundColour(back);
        if (window_->GetForegroundColour() != fore) window_->SetForegroundColour(fore);
    }

  private:
    const Swatch& swatch_;
    wxButton* window_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(Swatch& swatch, const Place& place) {
    return std::make_unique<SwatchBinding>(swatch, place);
}

}  // namespace qor::wx
