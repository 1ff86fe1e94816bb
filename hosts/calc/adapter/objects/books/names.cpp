#include "hosts/calc/adapter/ground/defined_names.hpp"
#include "hosts/calc/adapter/objects/collection.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"

namespace qor::calc {
namespace {

class NameObject final : public CalcObject<NameObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Name";

    explicit NameObject(DefinedName name) : name_(std::move(name)) {}

    void require_alive() const { name_.text(); }
    static const MemberTable<NameObject>& members() {
        using N = NameObject;
        static const MemberTable<N> table({
            property<&N::application>(u"Application"),
            method<&N::remove>(u"Delete"),
            property<&N::index>(u"Index"),
            property<&N::name>(u"Name"),
            property<&N::parent>(u"Parent"),
            property<&N::refers_to, &N::set_refers_to>(u"RefersTo"),
            property<&N::refers_to_range>(u"RefersToRange"),
            property<&N::refers_to, &N::set_refers_to>(u"Value"),
        });
        return table;
    }

    // The office makes a new object each time that a name is asked for.
    auto identity() const { return std::pair(name_.book.document, name_.text()); }

  private:
    std::u16string name() { return name_.text(); }
    std::int32_t index() {
        const std::u16string own = name_.text();
        const std::vector<DefinedName> all = defined_names(name_.book);
        const auto place = std::ranges::find(all, own, &DefinedName::text);
        return static_cast<std::int32_t>(place - all.begin()) + 1;
    }
    std::u16string refers_to() { return name_.refers_to(); }
    void set_refers_to(const std::u16string& formula) { name_.set_refers_to(formula); }
    Object refers_to_range() { return make_range(name_.cells()); }
    void remove() { name_.remove(); }
    Object parent() { return make_workbook(name_.book); }
    Object application() { return make_application(name_.book.host); }

    DefinedName name_;
};

class NamesObject final : public Collection<NamesObject, Book> {
  public:
    static constexpr std::u16string_view name_of_type = u"Names";

    static constexpr ErrorNumber outside = ErrorNumber::host_refused;  // the only one that Excel's Names know

    using Collection::Collection;

    static const MemberTable<NamesObject>& members() {
        static const MemberTable<NamesObject> table(rows_with({
            method<&NamesObject::add>(u"Add", {u"Name", u"RefersTo"}),
        }));
        return table;
    }

    std::vector<DefinedName> all() const { return defined_names(owner()); }
    Object made(DefinedName name) const { return make_object<NameObject>(std::move(name)); }
    Object named(const std::u16string& text) const { return made(defined_name(owner(), text)); }

  private:
    Object add(const std::u16string& name, const Variant& meaning) {
        return made(define_name(owner(), name, formula_of(meaning)));
    }

    static std::u16string formula_of(const Variant& meaning) {
        return meaning.is(Variant::Kind::object) ? u"=" + reference_to(areas_of(meaning)) : to_text(meaning);
    }
};

}  // namespace

Object make_name(DefinedName name) {
    return make_object<NameObject>(std::move(name));
}

Object make_names(Book book) {
    return make_object<NamesObject>(std::move(book));
}

}  // namespace qor::calc
