#include <wx/stattext.h>

#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

class LabelBinding final : public Binding {
  public:
    LabelBinding(const Label& label, const Place& place)
        : label_(label), window_(new wxStaticText(place.parent, wxID_ANY, {})), width_(place.hints.width) {}
    wxWindow& window() const override { return *window_; }
    void show_model() override {
        const wxString text = to_wx(label_.text());
        if (shown_ == text) return;
        shown_ = text;
        window_->SetLabelText(text);
        if (width_ != 0) window_->Wrap(width_);
    }

  private:
    const Label& label_;
    wxStaticText* window_;
    int width_;
    wxString shown_;  // before its lines were broken
};

}  // namespace

std::unique_ptr<Binding> bind_kind(Label& label, const Place& place) {
    return std::make_unique<LabelBinding>(label, place);
}

}  // namespace qor::wx
