#include <com/sun/star/container/XIndexAccess.hpp>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/adapter/sheets/sheet_list.hpp"

namespace qor::calc {
namespace {

class SheetsObject final : public CalcObject<SheetsObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Sheets";

    SheetsObject(Book book, std::optional<std::vector<Sheet>> chosen)
        : book_(std::move(book)), chosen_(std::move(chosen)) {}

    void require_alive() const { book_.require_alive(); }
    static const MemberTable<SheetsObject>& members();

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const Sheet& sheet : sheets()) result.emplace_back(make_worksheet(sheet));
        return result;
    }

  private:
    std::vector<Sheet> sheets() const { return chosen_ ? *chosen_ : book_.sheets(); }

    std::int32_t count() {
        if (chosen_) return static_cast<std::int32_t>(chosen_->size());
        return Ref<css::container::XIndexAccess>(Ref{book_.document->getSheets()})->getCount();
    }

    Sheet sheet(const Variant& index) const {
        const auto* name = index.get_if<std::u16string>();
        if (!chosen_) return name ? book_.sheet(*name) : sheet_at(book_, to_long(index) - 1);
        if (!name) return element_at(*chosen_, to_long(index));
        for (const Sheet& candidate : *chosen_) {
            if (candidate.name() == *name) return candidate;
        }
        throw Error(ErrorNumber::subscript_out_of_range);
    }

    // A list of names or numbers gives those sheets together.
    Object item(const Variant& index) {
        const Array* list = index.array();
        if (!list) return make_worksheet(sheet(index));
        std::vector<Sheet> chosen;
        for (const Variant& one : *list) chosen.push_back(sheet(one));
        return make_sheets(book_, std::move(chosen));
    }

    Object add(const Variant& before, const Variant& after, std::optional<std::int32_t> count) {
        const auto place_of = [](const Variant& sheet) { return to_long(sheet.get(names::Index)) - 1; };
        std::int32_t place = 0;
        if (!before.is_missing()) {
            place = place_of(before);
        } else if (!after.is_missing()) {
            place = place_of(after) + 1;
        } else {
            place = book_.active_sheet().index();
        }
        return make_worksheet(insert_sheets(book_, place, count.value_or(1)));
    }

    void select(std::optional<bool> replace) {
        std::vector<std::int32_t> indices;
        for (const Sheet& sheet : sheets()) indices.push_back(sheet.index());
        select_sheets(book_, std::move(indices), replace.value_or(true));
    }

    Object parent() { return make_workbook(book_); }
    Object application() { return make_application(book_.host); }

    Book book_;
    std::optional<std::vector<Sheet>> chosen_;
};

const MemberTable<SheetsObject>& SheetsObject::members() {
    using S = SheetsObject;
    static const MemberTable<S> table({
        method<&S::add>(u"Add", {u"Before", u"After", u"Count", u"Type"}),
        property<&S::application>(u"Application"),
        property<&S::count>(u"Count"),
        property<&S::item>(u"Item", {u"Index"}),
        property<&S::parent>(u"Parent"),
        method<&S::select>(u"Select", {u"Replace"}),
    });
    return table;
}

}  // namespace

Object make_sheets(Book book) {
    return make_object<SheetsObject>(std::move(book), std::nullopt);
}

Object make_sheets(Book book, std::vector<Sheet> chosen) {
    return make_object<SheetsObject>(std::move(book), std::move(chosen));
}

}  // namespace qor::calc
