#include <wx/dataview.h>

#include "screens/wx/kinds/kinds.hpp"
#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

// Reads the list's texts when they are to be painted.
class Rows final : public wxDataViewVirtualListModel {
  public:
    explicit Rows(const ListBox& list) : list_(list) {}

    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override {
        // Between a change of the list and its showing the toolkit may ask for rows that are gone.
        value = row < list_.count() ? to_wx(list_.text(row, column)) : wxString();
    }
    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

  private:
    const ListBox& list_;
};

class ListBoxBinding final : public Binding {
  public:
    ListBoxBinding(ListBox& list, const Place& place)
        : list_(list),
          window_(new wxDataViewCtrl(place.parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, style_of(list))),
          rows_(new Rows(list)) {
        window_->AssociateModel(rows_.get());
        for (std::size_t column = 0; column < list.columns().size(); ++column) add_column(column);
        bind_events(place);
    }
    wxWindow& window() const override { return *window_; }
    // What is shown already is left alone: the toolkit forgets from where the user extends a selection.
    void show_model() override {
        if (std::vector<std::u16string> texts = all_texts(); texts != shown_) {
            shown_ = std::move(texts);
            rows_->Reset(static_cast<unsigned>(list_.count()));
        }
        if (selection() == list_.selection()) return;
        wxDataViewItemArray selected;
        for (const std::size_t row : list_.selection()) selected.Add(item(row));
        window_->SetSelections(selected);
    }

  private:
    std::vector<std::u16string> all_texts() const {
        std::vector<std::u16string> texts;
        for (std::size_t row = 0; row < list_.count(); ++row) {
            for (std::size_t column = 0; column < list_.columns().size(); ++column) {
                texts.push_back(list_.text(row, column));
            }
        }
        return texts;
    }

    std::set<std::size_t> selection() const {
        wxDataViewItemArray selected;
        window_->GetSelections(selected);
        std::set<std::size_t> rows;
        for (const wxDataViewItem& one : selected) rows.insert(rows_->GetRow(one));
        return rows;
    }

    static long style_of(const ListBox& list) {
        const bool several = list.selecting() == ListBox::Selecting::several_rows;
        return (several ? wxDV_MULTIPLE : wxDV_SINGLE) | wxDV_ROW_LINES;
    }

    void add_column(std::size_t place) {
        const ListBox::Column& shown = list_.columns()[place];
        auto* column = new wxDataViewColumn(to_wx(shown.caption), new wxDataViewTextRenderer,
                                            static_cast<unsigned>(place), wxCOL_WIDTH_AUTOSIZE, wxALIGN_LEFT,
                                            wxDATAVIEW_COL_RESIZABLE | wxDATAVIEW_COL_SORTABLE);
        window_->AppendColumn(column);
        column->SetHidden(!shown.visible);
    }

    void bind_events(const Place& place) {
        const auto user_does = place.user_does;
        window_->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this, user_does](wxDataViewEvent& event) {
            const wxDataViewItem clicked = event.GetItem();
            user_does([&] { take_selection(clicked); });
        });
        window_->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this, user_does](wxDataViewEvent& event) {
            const std::size_t row = rows_->GetRow(event.GetItem());
            user_does([&] { list_.double_click_row(row); });
        });
        // The list sorts itself; the toolkit is not to sort what it shows.
        window_->Bind(wxEVT_DATAVIEW_COLUMN_HEADER_CLICK, [this, user_does](wxDataViewEvent& event) {
            const auto column = static_cast<std::size_t>(event.GetColumn());
            user_does([&] { list_.click_caption(column); });
        });
    }

    void take_selection(const wxDataViewItem& clicked) {
        const std::set<std::size_t> rows = selection();
        for (std::size_t row = 0; row < list_.count(); ++row) {
            if (list_.is_selected(row) != rows.contains(row)) list_.set_selected(row, rows.contains(row));
        }
        if (clicked.IsOk()) list_.click_row(rows_->GetRow(clicked));
    }

    wxDataViewItem item(std::size_t row) const { return rows_->GetItem(static_cast<unsigned>(row)); }

    ListBox& list_;
    wxDataViewCtrl* window_;
    wxObjectDataPtr<Rows> rows_;
    std::vector<std::u16string> shown_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(ListBox& list, const Place& place) {
    return std::make_unique<ListBoxBinding>(list, place);
}

}  // namespace qor::wx
