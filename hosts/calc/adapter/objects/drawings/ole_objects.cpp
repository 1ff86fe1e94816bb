#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/ground/file_paths.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/adapter/sheets/drawn_objects.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

class OleObject final : public CalcObject<OleObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"OLEObject";

    explicit OleObject(DrawnObject object) : object_(std::move(object)) {}

    Identity identity() const { return Identity(object_.shape.reference(), css::uno::UNO_QUERY); }
    void require_alive() const { object_.require_alive(); }
    static const MemberTable<OleObject>& members() {
        using O = OleObject;
        static const MemberTable<O> table({
            method<&O::select>(u"Activate"),
            property<&O::application>(u"Application"),
            method<&O::remove>(u"Delete"),
            property<&O::name, &O::set_name>(u"Name"),
            property<&O::type>(u"OLEType"),
            property<&O::parent>(u"Parent"),
            method<&O::select>(u"Select"),
            property<&O::source_name>(u"SourceName"),
        });
        return table;
    }

  private:
    rtl::OUString link() const { return get_property<rtl::OUString>(object_.shape, "LinkURL"); }

    std::u16string name() { return object_.name(); }
    void set_name(const std::u16string& name) { object_.set_name(name); }
    std::int32_t type() { return link().isEmpty() ? numbers::ole_type::embedded : numbers::ole_type::linked; }
    std::u16string source_name() {
        const rtl::OUString address = link();
        if (address.isEmpty()) throw Error(ErrorNumber::host_refused);
        return path_of_address(view_of(address));
    }
    void select() { object_.select(); }
    void remove() { object_.remove(); }
    Object parent() { return make_worksheet(object_.sheet); }
    Object application() { return make_application(object_.sheet.book.host); }

    DrawnObject object_;
};

class OleObjects final : public CalcObject<OleObjects> {
  public:
    static constexpr std::u16string_view name_of_type = u"OLEObjects";

    explicit OleObjects(Sheet sheet) : sheet_(std::move(sheet)) {}

    void require_alive() const { sheet_.require_alive(); }
    static const MemberTable<OleObjects>& members() {
        using O = OleObjects;
        static const MemberTable<O> table({
            property<&O::application>(u"Application"),
            property<&O::count>(u"Count"),
            property<&O::item>(u"Item", {u"Index"}),
            property<&O::parent>(u"Parent"),
        });
        return table;
    }

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const DrawnObject& object : all()) result.emplace_back(make_object<OleObject>(object));
        return result;
    }

  private:
    std::vector<DrawnObject> all() const { return embedded_objects(sheet_, Embedded::other); }
    std::int32_t count() { return static_cast<std::int32_t>(all().size()); }
    Object item(const Variant& index) { return make_object<OleObject>(drawn_object(all(), index)); }
    Object parent() { return make_worksheet(sheet_); }
    Object application() { return make_application(sheet_.book.host); }

    Sheet sheet_;
};

}  // namespace

Object make_ole_objects(Sheet sheet) {
    return make_object<OleObjects>(std::move(sheet));
}

}  // namespace qor::calc
