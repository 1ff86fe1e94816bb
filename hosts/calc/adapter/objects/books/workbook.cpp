#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/util/XModifiable.hpp>

#include "hosts/calc/adapter/files/documents.hpp"
#include "hosts/calc/adapter/files/saving.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {
namespace {

class WorkbookObject final : public CalcObject<WorkbookObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Workbook";

    explicit WorkbookObject(Book book) : book_(std::move(book)) {}

    void require_alive() const { book_.require_alive(); }
    static const MemberTable<WorkbookObject>& members();

    Identity identity() const { return Identity(book_.document); }

  private:
    std::u16string name() { return book_.name(); }

    std::u16string full_name() {
        std::u16string path = book_.file_path();
        return path.empty() ? book_.name() : path;
    }

    std::u16string path() {
        const std::u16string path = book_.file_path();
        return path.substr(0, path.empty() ? 0 : path.rfind(u'/'));
    }

    std::int32_t format() { return file_format(book_); }

    bool read_only() { return Ref<css::frame::XStorable>(book_.document)->isReadonly(); }

    bool saved() { return !Ref<css::util::XModifiable>(book_.document)->isModified(); }
    void set_saved(bool saved) { Ref<css::util::XModifiable>(book_.document)->setModified(!saved); }

    Variant windows(const Variant& index) { return item_or_all(make_windows(book_.host, book_), index); }
    Variant worksheets(const Variant& index) { return item_or_all(make_sheets(book_), index); }
    Object active_chart() { return active_chart_of(book_); }
    Variant defined_names(const Variant& index) { return item_or_all(make_names(book_), index); }
    Variant built_in_properties(const Variant& index) { return item_or_all(make_built_in_properties(book_), index); }
    Variant custom_properties(const Variant& index) { return item_or_all(make_custom_properties(book_), index); }
    Object active_sheet() { return make_worksheet(book_.active_sheet()); }

    void activate() { book_.host->activate(book_.document); }

    void close(std::optional<bool> save_changes, const std::optional<std::u16string>& path) {
        if (!save_changes) {
            if (!ask_before_closing(book_)) return;
        } else if (*save_changes && !saved()) {
            if (path) {
                save_book_as(book_, *path, {});
            } else if (!save_or_ask_where(book_)) {
                return;
            }
        }
        close_book(book_);
    }
    void save() { save_book(book_); }
    void save_as(const std::u16string& path, std::optional<std::int32_t> format) { save_book_as(book_, path, format); }
    void save_copy_as(const std::u16string& path) { save_book_copy(book_, path); }

    Object application() { return make_application(book_.host); }

    Book book_;
};

const MemberTable<WorkbookObject>& WorkbookObject::members() {
    using W = WorkbookObject;
    static const MemberTable<W> table({
        method<&W::activate>(u"Activate"),
        property<&W::active_chart>(u"ActiveChart"),
        property<&W::active_sheet>(u"ActiveSheet"),
        property<&W::application>(u"Application"),
        property<&W::built_in_properties>(u"BuiltinDocumentProperties", {u"Index"}),
        method<&W::close>(u"Close", {u"SaveChanges", u"Filename"}),
        property<&W::custom_properties>(u"CustomDocumentProperties", {u"Index"}),
        property<&W::format>(u"FileFormat"),
        property<&W::full_name>(u"FullName"),
        property<&W::name>(u"Name"),
        property<&W::defined_names>(u"Names", {u"Index"}),
        property<&W::application>(u"Parent"),
        property<&W::path>(u"Path"),
        property<&W::read_only>(u"ReadOnly"),
        method<&W::save>(u"Save"),
        method<&W::save_as>(u"SaveAs", {u"Filename", u"FileFormat"}),
        method<&W::save_copy_as>(u"SaveCopyAs", {u"Filename"}),
        property<&W::saved, &W::set_saved>(u"Saved"),
        property<&W::worksheets>(u"Sheets", {u"Index"}),
        property<&W::windows>(u"Windows", {u"Index"}),
        property<&W::worksheets>(u"Worksheets", {u"Index"}),
    });
    return table;
}

}  // namespace

Object make_workbook(Book book) {
    return make_object<WorkbookObject>(std::move(book));
}

}  // namespace qor::calc
