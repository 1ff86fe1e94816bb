#include <com/sun/star/container/XIndexAccess.hpp>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/objects/collection.hpp"
#include "hosts/calc/adapter/sheets/sheet_list.hpp"

namespace qor::calc {
namespace {

class SheetsObject final : public Collection<SheetsObject, Book> {
  public:
    static constexpr std::u16string_view name_of_type = u"Sheets";

    SheetsObject(Book book, std::optional<std::vector<Sheet>> chosen)
        : Collection(std::move(book)), chosen_(std::move(chosen)) {}

    static const MemberTable<SheetsObject>& members();

    std::vector<Sheet> all() const { return chosen_ ? *chosen_ : owner().sheets(); }
    Object made(const Sheet& sheet) const { return make_worksheet(sheet); }

    std::int32_t count() const {
        if (chosen_) return static_cast<std::int32_t>(chosen_->size());
        return Ref<css::container::XIndexAccess>(Ref{owner().document->getSheets()})->getCount();
    }

    // A list of names or numbers gives those sheets together.
    Object item(const Variant& index) const {
        const Array* list = index.array();
        if (!list) return make_worksheet(sheet(index));
        std::vector<Sheet> chosen;
        for (const Variant& one : *list) chosen.push_back(sheet(one));
        return make_sheets(owner(), std::move(chosen));
    }

  private:
    Sheet sheet(const Variant& index) const {
        const auto* name = index.get_if<std::u16string>();
        if (!chosen_) return name ? owner().sheet(*name) : sheet_at(owner(), to_long(index) - 1);
        if (!name) return element_at(*chosen_, to_long(index));
        for (const Sheet& candidate : *chosen_) {
            if (candidate.name() == *name) return candidate;
        }
        throw Error(ErrorNumber::subscript_out_of_range);
    }

    Object add(const Variant& before, const Variant& after, std::optional<std::int32_t> count) {
        const auto place_of = [](const Variant& sheet) { return to_long(sheet.get(names::Index)) - 1; };
        std::int32_t place = 0;
        if (!before.is_missing()) {
            place = place_of(before);
        } else if (!after.is_missing()) {
            place = place_of(after) + 1;
        } else {
            place = owner().active_sheet().index();
        }
        return make_worksheet(insert_sheets(owner(), place, count.value_or(1)));
    }

    void select(std::optional<bool> replace) {
        std::vector<std::int32_t> indices;
        for (const Sheet& sheet : all()) indices.push_back(sheet.index());
        select_sheets(owner(), std::move(indices), replace.value_or(true));
    }

    std::optional<std::vector<Sheet>> chosen_;
};

const MemberTable<SheetsObject>& SheetsObject::members() {
    using S = SheetsObject;
    static const MemberTable<S> table(rows_with({
        method<&S::add>(u"Add", {u"Before", u"After", u"Count", u"Type"}),
        method<&S::select>(u"Select", {u"Replace"}),
    }));
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
