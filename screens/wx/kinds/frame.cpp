#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

// The page of a tab, which bears the caption; or a box of its own: the caption in bold above what it holds.
class FrameBinding final : public Binding {
  public:
    FrameBinding(const Frame& frame, const Place& place) : window_(new wxPanel(place.parent)), inside_(window_) {
        if (dynamic_cast<wxNotebook*>(place.parent)) return;
        auto* caption = new wxStaticText(window_, wxID_ANY, {});
        caption->SetFont(caption->GetFont().Bold());
        caption->SetLabel(to_wx(frame.caption()));
        inside_ = new wxPanel(window_);
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        const int gap = caption->GetCharWidth();
        sizer->Add(caption, wxSizerFlags().Expand().Border(wxBOTTOM, gap / 2));
        sizer->Add(inside_, wxSizerFlags(1).Expand().Border(wxLEFT, 2 * gap));
        window_->SetSizer(sizer);
    }
    wxWindow& window() const override { return *window_; }
    wxWindow& inside() const override { return *inside_; }
    void show_model() override {}

  private:
    wxPanel* window_;
    wxPanel* inside_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(Frame& frame, const Place& place) {
    return std::make_unique<FrameBinding>(frame, place);
}

}  // namespace qor::wx
