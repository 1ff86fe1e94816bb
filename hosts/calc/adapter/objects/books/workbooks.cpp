#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/files/documents.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {
namespace {

class WorkbooksObject final : public CalcObject<WorkbooksObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Workbooks";

    explicit WorkbooksObject(HostPointer host) : host_(std::move(host)) {}

    static const MemberTable<WorkbooksObject>& members();

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const Document& document : host_->documents()) result.emplace_back(make_workbook({host_, document}));
        return result;
    }

  private:
    std::int32_t count() { return static_cast<std::int32_t>(host_->documents().size()); }

    Object item(const Variant& index) {
        if (const auto* name = index.get_if<std::u16string>()) return make_workbook(book_named(host_, *name));
        const std::vector<Document> open = host_->documents();
        return make_workbook({host_, element_at(open, to_long(index))});
    }

    // A number asks for a workbook with one sheet of that kind. There are worksheets only.
    Object add(const Variant& after) {
        if (after.get_if<std::u16string>()) return make_workbook(add_book_after(host_, to_text(after)));
        const bool other_kind = !after.is_missing() && to_long(after) != numbers::sheet_type::worksheet;
        if (other_kind) throw Error(ErrorNumber::host_refused);
        return make_workbook(add_book(host_));
    }

    // Each workbook asks for itself; one that the user does not let go stays open.
    void close() {
        for (const Variant& workbook : elements()) workbook.call(names::Close);
    }

    Object open(const std::u16string& path, const Variant&, std::optional<bool> read_only) {
        return make_workbook(open_book(host_, path, read_only.value_or(false)));
    }

    Object application() { return make_application(host_); }

    HostPointer host_;
};

const MemberTable<WorkbooksObject>& WorkbooksObject::members() {
    using W = WorkbooksObject;
    static const MemberTable<W> table({
        method<&W::add>(u"Add", {u"Template"}),
        property<&W::application>(u"Application"),
        method<&W::close>(u"Close"),
        property<&W::count>(u"Count"),
        property<&W::item>(u"Item", {u"Index"}),
        method<&W::open>(u"Open", {u"Filename", u"UpdateLinks", u"ReadOnly"}),
        property<&W::application>(u"Parent"),
    });
    return table;
}

}  // namespace

Object make_workbooks(HostPointer host) {
    return make_object<WorkbooksObject>(std::move(host));
}

}  // namespace qor::calc
