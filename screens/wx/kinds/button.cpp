#include <wx/button.h>

#include <map>

#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

// Buttons that every platform has a place of its own for.
wxWindowID id_of(const std::u16string& caption) {
    static const std::map<std::u16string_view, wxWindowID> known{{u"OK", wxID_OK},
                                                                 {u"Cancel", wxID_CANCEL},
                                                                 {u"Close", wxID_CLOSE},
                                                                 {u"Apply", wxID_APPLY},
                                                                 {u"Help", wxID_HELP}};
    const auto place = known.find(caption);
    return place == known.end() ? wxID_ANY : place->second;
}

class ButtonBinding final : public Binding {
  public:
    ButtonBinding(const Button& button, const Place& place)
        : window_(new wxButton(place.parent, id_of(button.caption()), to_wx(button.caption()))) {
        window_->Bind(wxEVT_BUTTON,
                      [&button, user_does = place.user_does](wxCommandEvent&) { user_does([&] { button.press(); }); });
    }
    wxWindow& window() const override { return *window_; }
    void show_model() override {}

  private:
    wxButton* window_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(Button& button, const Place& place) {
    return std::make_unique<ButtonBinding>(button, place);
}

}  // namespace qor::wx
