#include "hosts/calc/adapter/objects/application/application.hpp"

#include <com/sun/star/sheet/XCalculatable.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/files/recent_file_list.hpp"
#include "hosts/calc/adapter/ground/configuration.hpp"
#include "hosts/calc/adapter/ground/reference_style_setting.hpp"
#include "hosts/calc/adapter/ground/user_name.hpp"
#include "hosts/calc/adapter/objects/application/application_dialogs.hpp"
#include "hosts/calc/adapter/objects/application/convert_formula.hpp"
#include "hosts/calc/adapter/objects/application/macro_options.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/adapter/sheets/spelling.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

class ApplicationObject final : public CalcObject<ApplicationObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Application";

    explicit ApplicationObject(HostPointer host) : host_(std::move(host)) {}

    static const MemberTable<ApplicationObject>& members();

    Identity identity() const { return Identity(host_->desktop()); }

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

    std::u16string login_name() { return user_name(*host_); }

    std::u16string version() {
        return Configuration(host_->context(), u"/org.openoffice.Setup/Product").text("ooSetupVersion");
    }
    std::u16string name() { return host_->name(); }

    void help(std::optional<std::u16string> page, std::optional<std::int32_t> place) {
        show_help(*host_, page.value_or(u""), place.value_or(0));
    }
    Variant save_as_filename(std::optional<std::u16string> initial, std::optional<std::u16string> filter,
                             std::optional<std::int32_t> filter_index, std::optional<std::u16string> title) {
        return get_save_as_filename(*host_, initial.value_or(u""), filter.value_or(u"All Files (*.*),*.*"),
                                    filter_index.value_or(1), title.value_or(u"Save As"));
    }
    // Places and help of the box come between the proposal and the type.
    Variant ask(const std::u16string& prompt, std::optional<std::u16string> title, const Variant& proposed,
                const Variant&, const Variant&, const Variant&, const Variant&, std::optional<std::int32_t> type) {
        return input_box(host_, prompt, title.value_or(u"Input"), proposed, type.value_or(numbers::input_type::text));
    }
    void macro_options(const std::u16string& macro) { require_macro(*host_, macro); }

    Variant defined_names(const Variant& index) { return item_or_all(make_names(active_book(host_)), index); }
    Variant recent_files(const Variant& index) { return item_or_all(make_recent_files(host_), index); }
    bool display_recent_files() { return recent_file_limit(*host_) > 0; }
    void set_display_recent_files(bool shown) {
        constexpr std::int32_t usual = 25;
        if (shown != display_recent_files()) set_recent_file_limit(*host_, shown ? usual : 0);
    }
    Object this_workbook() { return make_companion_book(host_); }

    std::int32_t style_of_references() { return number_of(reference_style(*host_)); }
    void set_style_of_references(std::int32_t style) {
        const auto wanted = static_cast<ReferenceStyle>(style);
        const bool known = wanted == ReferenceStyle::letters || wanted == ReferenceStyle::row_column;
        if (!known) throw Error(ErrorNumber::host_refused);
        set_reference_style(*host_, wanted);
    }

    Variant status_bar() { return host_->status_bar.text(); }
    // False gives the bar back to the office.
    void set_status_bar(const Variant& text) {
        const auto* shown = text.get_if<bool>();
        if (shown && !*shown) return host_->status_bar.give_back();
        host_->status_bar.show(to_text(text), host_->active_window().controller);
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
        property<&A::display_recent_files, &A::set_display_recent_files>(u"DisplayRecentFiles"),
        method<&A::save_as_filename>(u"GetSaveAsFilename",
                                     {u"InitialFilename", u"FileFilter", u"FilterIndex", u"Title", u"ButtonText"}),
        method<&A::help>(u"Help", {u"HelpFile", u"HelpContextID"}),
        method<&A::ask>(u"InputBox",
                        {u"Prompt", u"Title", u"Default", u"Left", u"Top", u"HelpFile", u"HelpContextID", u"Type"}),
        method<&A::macro_options>(u"MacroOptions",
                                  {u"Macro", u"Description", u"HasMenu", u"MenuText", u"HasShortcutKey", u"ShortcutKey",
                                   u"Category", u"StatusBar", u"HelpContextID", u"HelpFile"}),
        property<&A::name>(u"Name"),
        property<&A::defined_names>(u"Names", {u"Index"}),
        property<&A::application>(u"Parent"),
        property<&A::range>(u"Range", {u"Cell1", u"Cell2"}),
        property<&A::recent_files>(u"RecentFiles", {u"Index"}),
        property<&A::style_of_references, &A::set_style_of_references>(u"ReferenceStyle"),
        property<&A::rows>(u"Rows", {u"Index"}),
        property<&A::screen_updating, &A::set_screen_updating>(u"ScreenUpdating"),
        property<&A::selection>(u"Selection"),
        property<&A::worksheets>(u"Sheets", {u"Index"}),
        property<&A::status_bar, &A::set_status_bar>(u"StatusBar"),
        property<&A::this_workbook>(u"ThisWorkbook"),
        property<&A::login_name>(u"UserName"),
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

Object make_application(const Context& context, std::shared_ptr<HostUser> user, std::u16string companion_folder) {
    return guarded([&] {
        return make_application(std::make_shared<Host>(context, std::move(user), std::move(companion_folder)));
    });
}

}  // namespace qor::calc
