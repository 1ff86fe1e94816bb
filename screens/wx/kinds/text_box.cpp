#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/kinds/typing.hpp"

namespace qor::wx {
namespace {

class TextBoxBinding final : public Binding {
  public:
    TextBoxBinding(TextBox& box, const Place& place) : box_(box), typing_(box, *place.parent, place) {}
    wxWindow& window() const override { return typing_.box(); }
    void show_model() override { typing_.show_model(); }
    void focus_came() override { box_.on_enter(); }
    void focus_went() override { box_.on_leave(); }

  private:
    TextBox& box_;
    Typing typing_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(TextBox& box, const Place& place) {
    return std::make_unique<TextBoxBinding>(box, place);
}

}  // namespace qor::wx
