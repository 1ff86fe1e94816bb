#include "screens/wx/tree/tree_window.hpp"

#include <wx/dcbuffer.h>
#include <wx/dcclient.h>
#include <wx/settings.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "screens/wx/text.hpp"
#include "screens/wx/tree/tree_paint.hpp"

namespace qor::wx {
namespace {

// A row of the tree's own sizes holds a line of text with some air.
double scale_for(const wxWindow& window, const TreeMetrics& metrics) {
    return std::ceil(window.GetCharHeight() * 1.25) / metrics.row_height;
}

}  // namespace

TreeWindow::TreeWindow(wxWindow* parent, TreeView& tree, std::function<void(const std::function<void()>&)> user_does)
    : tree_(tree), user_does_(std::move(user_does)), scale_(0) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
           wxBORDER_NONE | wxWANTS_CHARS | wxVSCROLL | wxHSCROLL | wxFULL_REPAINT_ON_RESIZE);
    scale_ = scale_for(*this, tree.metrics());
    SetScrollRate(GetCharWidth(), row_height());
    EnableScrolling(false, false);  // it paints a frame that stays where it is
    bind_pointer();
    bind_keys();
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { paint(); });
    for (const auto& focus : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS}) {
        Bind(focus, [this](wxFocusEvent& event) {
            Refresh();
            event.Skip();
        });
    }
}

void TreeWindow::show_tree() {
    if (GetVirtualSize() != full_size()) SetVirtualSize(full_size());
    if (std::exchange(shown_selection_, tree_.selected()) != tree_.selected() && tree_.selected()) {
        scroll_to(*tree_.selected());
    }
    set_cursor();
    show_label_box();
    if (tree_.popup() && !std::exchange(popup_shown_, true)) CallAfter(&TreeWindow::show_popup);
    Refresh();
}

wxString TreeWindow::spoken_row() const {
    const TreeNode* node = tree_.selected();
    if (!node) return {};
    constexpr int checked = 2;
    wxString text = to_wx(node->text()) + (node->image() == checked ? ", checked" : ", not checked");
    if (node->first_child()) text += node->expanded() ? ", expanded" : ", collapsed";
    return text + wxString::Format(", level %d", node->level());
}

wxPoint TreeWindow::on_window(const Pointer& place) const {
    return CalcScrolledPosition(
        {static_cast<int>(pixels(place.x)), static_cast<int>(place.y / tree_.metrics().row_height * row_height())});
}
wxPoint TreeWindow::picture_of(const TreeNode& node) const {
    return on_window(*tree_.picture_point(node));
}
wxPoint TreeWindow::text_of(const TreeNode& node) const {
    return on_window(*tree_.text_point(node));
}

wxSize TreeWindow::full_size() const {
    int width = 0;
    const auto rows = tree_.visible_rows();
    for (const TreeNode* node : rows) {
        int text_width = 0;
        const wxFont font = font_of(*this, *node);
        GetTextExtent(to_wx(node->text()), &text_width, nullptr, nullptr, nullptr, &font);
        const double left = pixels(tree_.metrics().indentation * node->level() + tree_.metrics().picture_width);
        width = std::max(width, static_cast<int>(left + text_width + 2 * text_gap(*this)));
    }
    return {width, static_cast<int>(rows.size()) * row_height()};
}

// As much as it holds now, within reason.
wxSize TreeWindow::DoGetBestClientSize() const {
    constexpr int columns = 40;
    constexpr int rows = 14;
    wxSize size = full_size() + wxSize(wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this), 0);
    size.DecTo({columns * GetCharWidth(), rows * row_height()});
    return size;
}

void TreeWindow::paint() {
    wxPaintDC device(this);
    const wxSize size = GetClientSize();
    device.SetBackground(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    device.Clear();
    const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(device));
    if (!context) return;
    const wxPoint origin = CalcUnscrolledPosition({0, 0});
    context->Translate(-origin.x, 0);
    TreePainter painter(*this, tree_, *context, scale_);
    const auto rows = tree_.visible_rows();
    const auto last =
        std::min<std::size_t>(rows.size(), static_cast<std::size_t>((origin.y + size.y) / row_height()) + 1);
    for (auto row = static_cast<std::size_t>(origin.y / row_height()); row < last; ++row) {
        painter.paint_row(*rows[row], static_cast<double>(row) * row_height() - origin.y, origin.x + size.x);
    }
    context->Translate(origin.x, 0);
    painter.paint_frame(size);
}

}  // namespace qor::wx
