#include <com/sun/star/util/XProtectable.hpp>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/cells/clipboard.hpp"
#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"
#include "hosts/calc/adapter/sheets/sheet_list.hpp"
#include "hosts/calc/adapter/sheets/sheet_marks.hpp"
#include "hosts/calc/adapter/sheets/sheet_print.hpp"
#include "hosts/calc/adapter/sheets/sheet_transfer.hpp"
#include "hosts/calc/adapter/sheets/spelling.hpp"
#include "hosts/calc/adapter/sheets/used_area.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

namespace visibility = numbers::visibility;

constexpr Rectangle whole_sheet{0, 0, column_limit - 1, row_limit - 1};

class WorksheetObject final : public CalcObject<WorksheetObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Worksheet";

    explicit WorksheetObject(Sheet sheet) : sheet_(std::move(sheet)) {}

    static const MemberTable<WorksheetObject>& members();

    const Sheet& sheet() const noexcept { return sheet_; }
    std::u16string place() const { return sheet_.name(); }
    void require_alive() const { sheet_.require_alive(); }
    // The office makes a new object each time that a sheet is asked for.
    auto identity() const {
        require_alive();
        return std::pair(sheet_.book.document, sheet_.index());
    }

  private:
    std::u16string name() { return sheet_.name(); }
    void set_name(const std::u16string& name) { rename_sheet(sheet_, name); }
    std::int32_t index() { return sheet_.index() + 1; }

    std::int32_t visible() {
        if (get_property<bool>(sheet_.sheet, "IsVisible")) return visibility::visible;
        return sheet_marks(sheet_).very_hidden ? visibility::very_hidden : visibility::hidden;
    }
    // True is -1 too; any other number that is not 0 or 2 shows the sheet.
    void set_visible(std::int32_t state) {
        const bool shown = state != visibility::hidden && state != visibility::very_hidden;
        before_structure_change(sheet_.book);
        set_property(sheet_.sheet, "IsVisible", shown);
        // The last visible sheet stays as it is without a word.
        if (get_property<bool>(sheet_.sheet, "IsVisible") != shown) throw Error(ErrorNumber::host_refused);
        SheetMarks marks = sheet_marks(sheet_);
        marks.very_hidden = state == visibility::very_hidden;
        set_sheet_marks(sheet_, marks);
    }

    bool protect_contents() { return Ref<css::util::XProtectable>(sheet_.sheet)->isProtected(); }
    // Of a protection that was not made here only the contents are known, so it counts for all.
    SheetMarks::Protection protection() {
        const bool contents = protect_contents();
        const auto asked = sheet_marks(sheet_).protection;
        return asked && asked->contents == contents ? *asked : SheetMarks::Protection{contents, contents, contents};
    }
    bool protect_drawing_objects() { return protection().drawing_objects; }
    bool protect_scenarios() { return protection().scenarios; }

    void protect(std::optional<std::u16string> password, std::optional<bool> drawing_objects,
                 std::optional<bool> contents, std::optional<bool> scenarios) {
        const SheetMarks::Protection asked{contents.value_or(true), drawing_objects.value_or(true),
                                           scenarios.value_or(true)};
        before_change(sheet_.book);
        const Ref<css::util::XProtectable> protectable(sheet_.sheet);
        if (asked.contents && !protectable->isProtected()) protectable->protect(to_uno(password.value_or(u"")));
        SheetMarks marks = sheet_marks(sheet_);
        marks.protection = asked;
        set_sheet_marks(sheet_, marks);
    }
    void unprotect(std::optional<std::u16string> password) {
        before_change(sheet_.book);
        const Ref<css::util::XProtectable> protectable(sheet_.sheet);
        if (protectable->isProtected()) {
            attempt([&] { guarded([&] { protectable->unprotect(to_uno(password.value_or(u""))); }); });
        }
        if (protectable->isProtected()) {
            throw Error(ErrorNumber::host_refused, {}, u"The password you supplied is not correct.");
        }
        SheetMarks marks = sheet_marks(sheet_);
        marks.protection.reset();
        set_sheet_marks(sheet_, marks);
    }

    Object used_range() { return make_range(range_at(sheet_, used_area(sheet_))); }

    Object part(RangeUnit unit, const Variant& first, const Variant& second) {
        Object all = make_range(range_at(sheet_, whole_sheet, unit));
        if (first.is_missing()) return all;
        return second.is_missing() ? all.get(names::Item, first) : all.get(names::Item, first, second);
    }
    Object cells(const Variant& row, const Variant& column) {
        if (row.is_missing() || column.is_missing()) return part(RangeUnit::cells, row, column);
        return make_range(range_at(sheet_, cell_named(row, column, {})));
    }
    Object rows(const Variant& index) { return part(RangeUnit::rows, index, Missing{}); }
    Object columns(const Variant& index) { return part(RangeUnit::columns, index, Missing{}); }

    Object range(const Variant& first, const Variant& last) {
        return make_range(range_at(sheet_, whole_sheet)).get(names::Range, first, last);
    }

    Variant comments(const Variant& index) { return item_or_all(make_comments(sheet_), index); }
    Object hyperlinks() { return make_hyperlinks(range_at(sheet_, whole_sheet)); }

    // Without a destination it goes where the selection is.
    void paste(const Variant& destination) { paste_from_clipboard(place_to_paste(destination), numbers::paste::all); }
    void paste_special(std::optional<std::int32_t> what) {
        paste_from_clipboard(place_to_paste(Missing{}), what.value_or(numbers::paste::all));
    }
    RangeAreas place_to_paste(const Variant& destination) {
        if (!destination.is_missing()) return areas_of(destination);
        activate();
        auto selected = selected_areas(sheet_.book, sheet_.book.model()->getCurrentController());
        if (!selected) throw Error(ErrorNumber::host_refused);
        return *std::move(selected);
    }

    void activate() {
        sheet_.book.host->activate(sheet_.book.document);
        activate_sheet(sheet_);
    }
    void select(std::optional<bool> replace) { select_sheets(sheet_.book, {sheet_.index()}, replace.value_or(true)); }
    void remove() { delete_sheet(sheet_); }
    void copy(const Variant& before, const Variant& after) { copy_sheet(sheet_, place_named(before, after)); }
    void move(const Variant& before, const Variant& after) { move_sheet(sheet_, place_named(before, after)); }
    static std::optional<SheetPlace> place_named(const Variant& before, const Variant& after) {
        if (!before.is_missing()) return SheetPlace{sheet_of(before).book, sheet_of(before).index()};
        if (!after.is_missing()) return SheetPlace{sheet_of(after).book, sheet_of(after).index() + 1};
        return {};
    }

    std::u16string scroll_area() { return sheet_marks(sheet_).scroll_area; }
    void set_scroll_area(const std::u16string& text) {
        SheetMarks marks = sheet_marks(sheet_);
        marks.scroll_area.clear();
        if (!text.empty()) {
            const RangeAreas area = range_named(sheet_, text);
            const bool one_here = area.areas.size() == 1 && area.sheet.index() == sheet_.index();
            if (!one_here) throw Error(ErrorNumber::host_refused);
            marks.scroll_area = address_of(area, {});
        }
        set_sheet_marks(sheet_, marks);
    }

    bool transition_form_entry() { return sheet_marks(sheet_).transition_form_entry; }
    void set_transition_form_entry(bool on) {
        SheetMarks marks = sheet_marks(sheet_);
        marks.transition_form_entry = on;
        set_sheet_marks(sheet_, marks);
    }

    Variant chart_objects(const Variant& index) { return item_or_all(make_chart_objects(sheet_), index); }
    Variant ole_objects(const Variant& index) { return item_or_all(make_ole_objects(sheet_), index); }
    Object shapes() { return make_shapes(sheet_); }

    void check_spelling() { qor::calc::check_spelling(range_at(sheet_, whole_sheet)); }
    void print_out(std::optional<std::int32_t> from, std::optional<std::int32_t> to, std::optional<std::int32_t> copies,
                   const Variant&, std::optional<std::u16string> printer, const Variant&, std::optional<bool> collate,
                   std::optional<std::u16string> file) {
        print_sheet(sheet_, {.first_page = from,
                             .last_page = to,
                             .copies = copies.value_or(1),
                             .collate = collate.value_or(true),
                             .printer = printer,
                             .file = file});
    }
    void calculate() { make_application(sheet_.book.host).call(MemberName(u"Calculate")); }

    Object parent() { return make_workbook(sheet_.book); }
    Object application() { return make_application(sheet_.book.host); }

    Sheet sheet_;
};

const MemberTable<WorksheetObject>& WorksheetObject::members() {
    using W = WorksheetObject;
    static const MemberTable<W> table({
        method<&W::activate>(u"Activate"),
        property<&W::application>(u"Application"),
        method<&W::calculate>(u"Calculate"),
        property<&W::cells>(u"Cells", {u"RowIndex", u"ColumnIndex"}),
        property<&W::chart_objects>(u"ChartObjects", {u"Index"}),
        method<&W::check_spelling>(u"CheckSpelling"),
        property<&W::columns>(u"Columns", {u"Index"}),
        property<&W::comments>(u"Comments", {u"Index"}),
        method<&W::copy>(u"Copy", {u"Before", u"After"}),
        method<&W::remove>(u"Delete"),
        property<&W::hyperlinks>(u"Hyperlinks"),
        property<&W::index>(u"Index"),
        method<&W::move>(u"Move", {u"Before", u"After"}),
        property<&W::name, &W::set_name>(u"Name"),
        property<&W::ole_objects>(u"OLEObjects", {u"Index"}),
        property<&W::parent>(u"Parent"),
        method<&W::paste>(u"Paste", {u"Destination"}),
        method<&W::paste_special>(u"PasteSpecial", {u"Paste"}),
        method<&W::print_out>(u"PrintOut", {u"From", u"To", u"Copies", u"Preview", u"ActivePrinter", u"PrintToFile",
                                            u"Collate", u"PrToFileName"}),
        method<&W::protect>(u"Protect", {u"Password", u"DrawingObjects", u"Contents", u"Scenarios"}),
        property<&W::protect_contents>(u"ProtectContents"),
        property<&W::protect_drawing_objects>(u"ProtectDrawingObjects"),
        property<&W::protect_scenarios>(u"ProtectScenarios"),
        property<&W::range>(u"Range", {u"Cell1", u"Cell2"}),
        property<&W::rows>(u"Rows", {u"Index"}),
        property<&W::scroll_area, &W::set_scroll_area>(u"ScrollArea"),
        method<&W::select>(u"Select", {u"Replace"}),
        property<&W::shapes>(u"Shapes"),
        property<&W::transition_form_entry, &W::set_transition_form_entry>(u"TransitionFormEntry"),
        method<&W::unprotect>(u"Unprotect", {u"Password"}),
        property<&W::used_range>(u"UsedRange"),
        property<&W::visible, &W::set_visible>(u"Visible"),
    });
    return table;
}

}  // namespace

const Sheet& sheet_of(const Variant& value) {
    const auto* worksheet = dynamic_cast<const WorksheetObject*>(value.object().target());
    if (!worksheet) throw Error(ErrorNumber::host_refused);
    return worksheet->sheet();
}

Object make_worksheet(Sheet sheet) {
    return make_object<WorksheetObject>(std::move(sheet));
}

}  // namespace qor::calc
