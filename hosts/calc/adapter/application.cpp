#include "hosts/calc/adapter/application.hpp"

#include <pwd.h>
#include <unistd.h>

#include <com/sun/star/sheet/XCalculatable.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>

#include "hosts/calc/adapter/calc_object.hpp"
#include "hosts/calc/adapter/configuration.hpp"
#include "hosts/calc/adapter/convert_formula.hpp"
#include "hosts/calc/adapter/objects.hpp"
#include "hosts/calc/adapter/spelling.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

class ApplicationObject final : public CalcObject<ApplicationObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Application";

    explicit ApplicationObject(HostPointer host) : host_(std::move(host)) {}

    static const MemberTable<ApplicationObject>& members();

    Identity identity() const { return Identity(host_->desktop().reference(), css::uno::UNO_QUERY); }

  private:
    // Nothing where no window of a workbook can be seen.
    template <class Make>
    Object in_active_window(Make make) {
        const Window window = host_->active_window();
        return window.document ? make(Book{host_, window.document}, window.controller) : Object();
    }
    Object active_workbook() {
        return in_active_window([](Book book, const Controller&) { return make_workbook(std::move(book)); });
    }
    Object active_sheet() {
        return in_active_window([](Book book, const Controller& window) {
            return make_worksheet({std::move(book), Ref<css::sheet::XSpreadsheetView>(window)->getActiveSheet()});
        });
    }
    Object active_chart() {
        return in_active_window([](const Book& book, const Controller&) { return active_chart_of(book); });
    }
    bool check_spelling(const std::u16string& word) { return is_spelled_right(active_book(host_), word); }
    Object active_window() { return in_active_window(make_window); }
    Object active_cell() { return in_active_window(active_cell_of); }
    Object selection() { return in_active_window(selection_of); }

    static Variant item_or_all(Object collection, const Variant& index) {
        return index.is_missing() ? Variant(std::move(collection)) : collection.get(names::Item, index);
    }
    Variant workbooks(const Variant& index) { return item_or_all(make_workbooks(host_), index); }
    Variant windows(const Variant& index) { return item_or_all(make_windows(host_, {}), index); }
    Variant command_bars(const Variant& index) { return item_or_all(make_command_bars(host_), index); }
    Variant worksheets(const Variant& index) { return item_or_all(make_sheets(active_book(host_)), index); }

    Variant range(const Variant& first, const Variant& last) {
        return make_worksheet(active_book(host_).active_sheet()).get(names::Range, first, last);
    }
    Variant cells(const Variant& row, const Variant& column) {
        return make_worksheet(active_book(host_).active_sheet()).get(names::Cells, row, column);
    }
    Variant rows(const Variant& index) {
        return make_worksheet(active_book(host_).active_sheet()).get(names::Rows, index);
    }
    Variant columns(const Variant& index) {
        return make_worksheet(active_book(host_).active_sheet()).get(names::Columns, index);
    }

    // The name in the user's profile, else the one of the login.
    std::u16string user_name() {
        const Configuration user(host_->context(), u"/org.openoffice.UserProfile/Data");
        const std::u16string given = user.text("givenname");
        const std::u16string family = user.text("sn");
        if (!given.empty() && !family.empty()) return given + u" " + family;
        if (!given.empty() || !family.empty()) return given + family;
        const passwd* account = ::getpwuid(::geteuid());
        return from_utf8(account ? account->pw_name : "");
    }

    std::u16string version() {
        return Configuration(host_->context(), u"/org.openoffice.Setup/Product").text("ooSetupVersion");
    }
    std::u16string name() { return host_->name(); }

    void help(const Variant& file, const Variant&) {
        throw Error(ErrorNumber::host_refused, {},
                    u"The help file " + (file.is_missing() ? std::u16string() : to_text(file)) + u" cannot be opened.");
    }

    bool screen_updating() { return host_->screen_updating(); }
    void set_screen_updating(bool on) { host_->set_screen_updating(on); }
    bool display_alerts() { return host_->display_alerts; }
    void set_display_alerts(bool on) { host_->display_alerts = on; }

    void calculate() {
        for (const Document& document : host_->documents()) Ref<css::sheet::XCalculatable>(document)->calculate();
    }

    Variant converted_formula(const std::u16string& formula, std::int32_t from_style,
                              std::optional<std::int32_t> to_style, std::optional<std::int32_t> kind,
                              const Variant& relative_to) {
        return convert_formula(host_, formula, from_style, to_style, kind, relative_to);
    }
    Object worksheet_function() { return make_worksheet_function(host_); }

    Object application() { return make_application(host_); }

    HostPointer host_;
};

const MemberTable<ApplicationObject>& ApplicationObject::members() {
    using A = ApplicationObject;
    static const MemberTable<A> table({
        property<&A::active_cell>(u"ActiveCell"),
        property<&A::active_chart>(u"ActiveChart"),
        property<&A::active_sheet>(u"ActiveSheet"),
        property<&A::active_window>(u"ActiveWindow"),
        property<&A::active_workbook>(u"ActiveWorkbook"),
        property<&A::application>(u"Application"),
        method<&A::calculate>(u"Calculate"),
        property<&A::cells>(u"Cells", {u"RowIndex", u"ColumnIndex"}),
        method<&A::check_spelling>(u"CheckSpelling", {u"Word", u"CustomDictionary", u"IgnoreUppercase"}),
        property<&A::columns>(u"Columns", {u"Index"}),
        property<&A::command_bars>(u"CommandBars", {u"Index"}),
        method<&A::converted_formula>(
            u"ConvertFormula", {u"Formula", u"FromReferenceStyle", u"ToReferenceStyle", u"ToAbsolute", u"RelativeTo"}),
        property<&A::display_alerts, &A::set_display_alerts>(u"DisplayAlerts"),
        method<&A::help>(u"Help", {u"HelpFile", u"HelpContextID"}),
        property<&A::name>(u"Name"),
        property<&A::application>(u"Parent"),
        property<&A::range>(u"Range", {u"Cell1", u"Cell2"}),
        property<&A::rows>(u"Rows", {u"Index"}),
        property<&A::screen_updating, &A::set_screen_updating>(u"ScreenUpdating"),
        property<&A::selection>(u"Selection"),
        property<&A::worksheets>(u"Sheets", {u"Index"}),
        property<&A::user_name>(u"UserName"),
        property<&A::version>(u"Version"),
        property<&A::windows>(u"Windows", {u"Index"}),
        property<&A::workbooks>(u"Workbooks", {u"Index"}),
        property<&A::worksheet_function>(u"WorksheetFunction"),
        property<&A::worksheets>(u"Worksheets", {u"Index"}),
    });
    return table;
}

}  // namespace

Object make_application(HostPointer host) {
    return make_object<ApplicationObject>(std::move(host));
}

Object make_application(const css::uno::Reference<css::uno::XComponentContext>& context, std::shared_ptr<HostUser> user,
                        std::u16string companion_folder) {
    return guarded([&] {
        return make_application(std::make_shared<Host>(context, std::move(user), std::move(companion_folder)));
    });
}

}  // namespace qor::calc
