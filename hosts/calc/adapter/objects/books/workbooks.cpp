#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/files/documents.hpp"
#include "hosts/calc/adapter/objects/collection.hpp"

namespace qor::calc {
namespace {

class WorkbooksObject final : public Collection<WorkbooksObject, HostPointer> {
  public:
    static constexpr std::u16string_view name_of_type = u"Workbooks";

    using Collection::Collection;

    static const MemberTable<WorkbooksObject>& members();

    std::vector<Document> all() const { return owner()->documents(); }
    Object made(const Document& document) const { return make_workbook({owner(), document}); }
    Object named(const std::u16string& name) const { return make_workbook(book_named(owner(), name)); }

  private:
    // A number asks for a workbook with one sheet of that kind. There are worksheets only.
    Object add(const Variant& after) {
        if (after.get_if<std::u16string>()) return make_workbook(add_book_after(owner(), to_text(after)));
        const bool other_kind = !after.is_missing() && to_long(after) != numbers::sheet_type::worksheet;
        if (other_kind) throw Error(ErrorNumber::host_refused);
        return make_workbook(add_book(owner()));
    }

    // Each workbook asks for itself; one that the user does not let go stays open.
    void close() {
        for (const Variant& workbook : elements()) workbook.call(names::Close);
    }

    Object open(const std::u16string& path, const Variant&, std::optional<bool> read_only) {
        return make_workbook(open_book(owner(), path, read_only.value_or(false)));
    }
};

const MemberTable<WorkbooksObject>& WorkbooksObject::members() {
    using W = WorkbooksObject;
    static const MemberTable<W> table(rows_with({
        method<&W::add>(u"Add", {u"Template"}),
        method<&W::close>(u"Close"),
        method<&W::open>(u"Open", {u"Filename", u"UpdateLinks", u"ReadOnly"}),
    }));
    return table;
}

}  // namespace

Object make_workbooks(HostPointer host) {
    return make_object<WorkbooksObject>(std::move(host));
}

}  // namespace qor::calc
