#include "screens/wx/accessible.hpp"
#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/tree/tree_window.hpp"

namespace qor::wx {
namespace {

constexpr double flat_indentation = 90;  // twips

class TreeViewBinding final : public Binding {
  public:
    TreeViewBinding(TreeView& tree, const Place& place) {
        if (place.hints.flat) {
            TreeMetrics metrics = tree.metrics();
            metrics.indentation = flat_indentation;
            tree.set_metrics(metrics);
        }
        window_ = new TreeWindow(place.parent, tree, place.user_does);
    }
    wxWindow& window() const override { return *window_; }
    void show_model() override {
        window_->show_tree();
        describe_to_reader(*window_, window_->spoken_row());
    }

  private:
    TreeWindow* window_ = nullptr;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(TreeView& tree, const Place& place) {
    return std::make_unique<TreeViewBinding>(tree, place);
}

}  // namespace qor::wx
