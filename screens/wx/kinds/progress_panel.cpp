#include <wx/gauge.h>

#include "screens/wx/kinds/kinds.hpp"

namespace qor::wx {
namespace {

class ProgressPanelBinding final : public Binding {
  public:
    ProgressPanelBinding(const ProgressPanel& panel, const Place& place)
        : panel_(panel), window_(new wxGauge(place.parent, wxID_ANY, 100)) {}
    wxWindow& window() const override { return *window_; }
    void show_model() override {
        if (window_->GetValue() != panel_.flood_percent()) window_->SetValue(panel_.flood_percent());
    }

  private:
    const ProgressPanel& panel_;
    wxGauge* window_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(ProgressPanel& panel, const Place& place) {
    return std::make_unique<ProgressPanelBinding>(panel, place);
}

}  // namespace qor::wx
