#include <wx/notebook.h>

#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

// The windows inside are the pages, in the order of the captions.
class TabsBinding final : public Binding {
  public:
    TabsBinding(Tabs& tabs, const Place& place) : tabs_(tabs), window_(new wxNotebook(place.parent, wxID_ANY)) {
        window_->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this, user_does = place.user_does](wxBookCtrlEvent& event) {
            event.Skip();
            if (complete_) user_does([&] { tabs_.turn_to(event.GetSelection()); });
        });
    }
    wxWindow& window() const override { return *window_; }
    void completed() override {
        std::vector<wxWindow*> pages(window_->GetChildren().begin(), window_->GetChildren().end());
        for (std::size_t place = 0; place < pages.size(); ++place) {
            window_->AddPage(pages[place], to_wx(tabs_.captions().at(place)));
        }
        complete_ = true;
    }
    void show_model() override {
        if (window_->GetSelection() != tabs_.current()) {
            window_->ChangeSelection(static_cast<std::size_t>(tabs_.current()));
        }
    }

  private:
    Tabs& tabs_;
    wxNotebook* window_;
    bool complete_ = false;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(Tabs& tabs, const Place& place) {
    return std::make_unique<TabsBinding>(tabs, place);
}

}  // namespace qor::wx
