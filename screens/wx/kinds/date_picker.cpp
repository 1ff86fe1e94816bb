#include <wx/datectrl.h>
#include <wx/dateevt.h>

#include <cmath>

#include "runtime/dates.hpp"
#include "screens/wx/kinds/kinds.hpp"

namespace qor::wx {
namespace {

const wxDateTime& day_0() {
    static const wxDateTime day(30, wxDateTime::Dec, 1899);
    return day;
}

class DatePickerBinding final : public Binding {
  public:
    DatePickerBinding(DatePicker& picker, const Place& place)
        : picker_(picker),
          window_(new wxDatePickerCtrl(place.parent, wxID_ANY, wxDefaultDateTime, wxDefaultPosition, wxDefaultSize,
                                       wxDP_DROPDOWN | wxDP_SHOWCENTURY)) {
        window_->Bind(wxEVT_DATE_CHANGED, [this, user_does = place.user_does](const wxDateEvent& event) {
            const wxDateTime day = event.GetDate();
            user_does([&] { picker_.set_day(date_serial(day.GetYear(), day.GetMonth() + 1, day.GetDay())); });
        });
    }
    wxWindow& window() const override { return *window_; }
    void show_model() override {
        const wxDateTime day = day_0() + wxDateSpan::Days(static_cast<int>(std::floor(picker_.day().serial)));
        if (!window_->GetValue().IsSameDate(day)) window_->SetValue(day);
    }

  private:
    DatePicker& picker_;
    wxDatePickerCtrl* window_;
};

}  // namespace

std::unique_ptr<Binding> bind_kind(DatePicker& picker, const Place& place) {
    return std::make_unique<DatePickerBinding>(picker, place);
}

}  // namespace qor::wx
