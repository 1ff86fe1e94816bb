#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/spinbutt.h>

#include "screens/wx/accessible.hpp"
#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/kinds/typing.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

class SpinBoxBinding final : public Binding {
  public:
    SpinBoxBinding(SpinBox& box, const Place& place)
        : box_(box), window_(new wxPanel(place.parent)), typing_(box, *window_, place) {
        wxTextCtrl& text = typing_.box();
        const wxString widest = to_wx(from_utf8(std::to_string(box.most())));
        text.SetInitialSize(text.GetSizeFromText(widest));

        // The arrows hold no number of their own: the text is the number.
        auto* arrows = new wxSpinButton(window_, wxID_ANY);
        arrows->SetRange(-1, 1);
        name_for_reader(*arrows, "Up and down");
        const auto step = [this, user_does = place.user_does](int by) { user_does([&] { box_.step(by); }); };
        const auto press = [this, step](wxSpinEvent& event, int by) {
            event.Veto();
            typing_.box().SetFocus();
            step(by);
        };
        arrows->Bind(wxEVT_SPIN_UP, [press](wxSpinEvent& event) { press(event, 1); });
        arrows->Bind(wxEVT_SPIN_DOWN, [press](wxSpinEvent& event) { press(event, -1); });
        text.Bind(wxEVT_KEY_DOWN, [step](wxKeyEvent& event) {
            const int key = event.GetKeyCode();
            if (event.HasAnyModifiers() || (key != WXK_UP && key != WXK_DOWN)) {
                event.Skip();
            } else {
                step(key == WXK_UP ? 1 : -1);
            }
        });
        auto* sizer = new wxBoxSizer(wxHORIZONTAL);
        sizer->Add(&text, wxSizerFlags(1).CentreVertical());
        sizer->Add(arrows, wxSizerFlags().Expand());
        window_->SetSizer(sizer);
    }
    wxWindow& window() const override { return *window_; }
    wxWindow& focused() const override { return typing_.box(); }
    void show_model() override { typing_.show_model(); }
    void focus_came() override {
        typing_.box().SelectAll();
        box_.on_enter();
    }
    void focus_went() override { box_.on_leave(); }

  private:
    SpinBox& box_;
    wxPanel* window_;
    Typing typing_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(SpinBox& box, const Place& place) {
    return std::make_unique<SpinBoxBinding>(box, place);
}

}  // namespace qor::wx
