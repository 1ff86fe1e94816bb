#include "hosts/calc/adapter/ground/defined_names.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
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

class NamesObject final : public CalcObject<NamesObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Names";

    explicit NamesObject(Book book) : book_(std::move(book)) {}

    void require_alive() const { book_.require_alive(); }
    static const MemberTable<NamesObject>& members() {
        using N = NamesObject;
        static const MemberTable<N> table({
            method<&N::add>(u"Add", {u"Name", u"RefersTo"}),
            property<&N::application>(u"Application"),
            property<&N::count>(u"Count"),
            property<&N::item>(u"Item", {u"Index"}),
            property<&N::parent>(u"Parent"),
        });
        return table;
    }

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (DefinedName& name : defined_names(book_)) result.emplace_back(make_object<NameObject>(std::move(name)));
        return result;
    }

  private:
    std::int32_t count() { return static_cast<std::int32_t>(defined_names(book_).size()); }

    // Excel's Names know only error 1004.
    Object item(const Variant& index) {
        if (const auto* text = index.get_if<std::u16string>()) {
            return make_object<NameObject>(defined_name(book_, *text));
        }
        const std::int32_t place = to_long(index);
        const std::vector<DefinedName> all = defined_names(book_);
        if (place < 1 || static_cast<std::size_t>(place) > all.size()) throw Error(ErrorNumber::host_refused);
        return make_object<NameObject>(all[static_cast<std::size_t>(place) - 1]);
    }

    Object add(const std::u16string& name, const Variant& meaning) {
        return make_object<NameObject>(define_name(book_, name, formula_of(meaning)));
    }

    static std::u16string formula_of(const Variant& meaning) {
        return meaning.is(Variant::Kind::object) ? u"=" + reference_to(areas_of(meaning)) : to_text(meaning);
    }

    Object parent() { return make_workbook(book_); }
    Object application() { return make_application(book_.host); }

    Book book_;
};

}  // namespace

Object make_name(DefinedName name) {
    return make_object<NameObject>(std::move(name));
}

Object make_names(Book book) {
    return make_object<NamesObject>(std::move(book));
}

}  // namespace qor::calc
