#include <wx/bmpbuttn.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include "screens/wx/accessible.hpp"
#include "screens/wx/faces.hpp"
#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/kinds/typing.hpp"

namespace qor::wx {
namespace {

class PickBoxBinding final : public Binding {
  public:
    PickBoxBinding(PickBox& box, const Place& place)
        : box_(box), window_(new wxPanel(place.parent)), typing_(box, *window_, place) {
        auto* button = new wxBitmapButton(window_, wxID_ANY, face(box.face()));
        button->SetName("pick");
        name_for_reader(*button, "Pick");
        const auto pick = [&box, user_does = place.user_does] { user_does([&] { box.pick(); }); };
        button->Bind(wxEVT_BUTTON, [pick](wxCommandEvent&) { pick(); });
        typing_.box().Bind(wxEVT_KEY_DOWN, [pick](wxKeyEvent& event) {
            if (event.GetKeyCode() == WXK_DOWN && event.GetModifiers() == wxMOD_ALT) {
                pick();
            } else {
                event.Skip();
            }
        });
        auto* sizer = new wxBoxSizer(wxHORIZONTAL);
        sizer->Add(&typing_.box(), wxSizerFlags(1).CentreVertical());
        sizer->Add(button, wxSizerFlags().Expand());
        window_->SetSizer(sizer);
    }
    wxWindow& window() const override { return *window_; }
    wxWindow& focused() const override { return typing_.box(); }
    void show_model() override { typing_.show_model(); }
    void focus_came() override { box_.on_enter(); }
    void focus_went() override { box_.on_leave(); }

  private:
    PickBox& box_;
    wxPanel* window_;
    Typing typing_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(PickBox& box, const Place& place) {
    return std::make_unique<PickBoxBinding>(box, place);
}

}  // namespace qor::wx
