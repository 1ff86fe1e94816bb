#include <wx/button.h>

#include <cmath>

#include "screens/wx/colours.hpp"
#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

constexpr double readable_difference = 0.35;  // of luminance, from 0 to 1

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
        wxColour back = to_wx(swatch_.back_color());
        wxColour fore = to_wx(swatch_.fore_color());
        if (std::abs(back.GetLuminance() - fore.GetLuminance()) < readable_difference) {
            // One of the two is what the swatch stands for: the other one gives way.
            (back == *wxWHITE ? back : fore) = readable_on(back == *wxWHITE ? fore : back);
        }
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
