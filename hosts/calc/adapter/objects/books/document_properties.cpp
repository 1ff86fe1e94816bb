#include <cmath>
#include <variant>

#include "hosts/calc/adapter/files/built_in_properties.hpp"
#include "hosts/calc/adapter/files/user_properties.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/objects/collection.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

// What Office raises where a property has no value.
[[noreturn]] void raise_unspecified(std::u16string_view member) {
    constexpr std::int32_t unspecified_error = -2147467259;
    throw Error(unspecified_error, {}, u"Method '" + std::u16string(member) + u"' of object 'DocumentProperty' failed");
}

class DocumentPropertyObject final : public OwnedObject<DocumentPropertyObject, Book> {
  public:
    static constexpr std::u16string_view name_of_type = u"DocumentProperty";

    // A built-in property, or the name of one of the user's.
    using Which = std::variant<const BuiltInProperty*, std::u16string>;

    DocumentPropertyObject(Book book, Which which) : OwnedObject(std::move(book)), which_(std::move(which)) {}

    static const MemberTable<DocumentPropertyObject>& members() {
        using P = DocumentPropertyObject;
        static const MemberTable<P> table(rows_with({
            method<&P::remove>(u"Delete"),
            property<&P::link_to_content>(u"LinkToContent"),
            property<&P::name>(u"Name"),
            property<&P::type>(u"Type"),
            property<&P::value, &P::set_value>(u"Value"),
        }));
        return table;
    }

  private:
    const BuiltInProperty* built_in() const {
        const auto* property = std::get_if<const BuiltInProperty*>(&which_);
        return property ? *property : nullptr;
    }
    // Raises when it is gone.
    const std::u16string& own_name() const {
        const auto& own = std::get<std::u16string>(which_);
        if (!UserProperties(owner()).has(own)) raise_unspecified(u"Name");
        return own;
    }

    std::u16string name() { return built_in() ? std::u16string(built_in()->name) : own_name(); }

    std::int32_t type() { return number_of(built_in() ? built_in()->kind : kind_of(value())); }
    static PropertyKind kind_of(const Variant& value) {
        if (value.get_if<bool>()) return PropertyKind::boolean;
        if (value.get_if<Date>()) return PropertyKind::date;
        if (value.get_if<std::int32_t>()) return PropertyKind::whole_number;
        return value.get_if<double>() ? PropertyKind::number : PropertyKind::text;
    }

    Variant value() {
        if (!built_in()) return as_whole_number(UserProperties(owner()).value(own_name()));
        Variant value = built_in()->read ? built_in()->read(owner()) : Variant();
        if (value.is_empty()) raise_unspecified(u"Value");
        return value;
    }
    // The office keeps no whole numbers.
    static Variant as_whole_number(const Variant& value) {
        const auto* number = value.get_if<double>();
        const bool whole = number && std::trunc(*number) == *number && std::abs(*number) <= INT32_MAX;
        return whole ? Variant(static_cast<std::int32_t>(*number)) : value;
    }

    void set_value(const Variant& value) {
        if (built_in() && !built_in()->write) raise_unspecified(u"Value");
        before_change(owner());
        if (built_in()) return built_in()->write(owner(), value);
        UserProperties(owner()).set_value(own_name(), value);
    }

    void remove() {
        if (built_in()) raise_unspecified(u"Delete");
        before_change(owner());
        UserProperties(owner()).remove(own_name());
    }

    bool link_to_content() { return false; }

    Which which_;
};

class DocumentPropertiesObject final : public Collection<DocumentPropertiesObject, Book> {
  public:
    static constexpr std::u16string_view name_of_type = u"DocumentProperties";

    // For a name or a number that is not there, as Office does.
    static constexpr ErrorNumber outside = ErrorNumber::invalid_call;

    DocumentPropertiesObject(Book book, bool built_in) : Collection(std::move(book)), built_in_(built_in) {}

    static const MemberTable<DocumentPropertiesObject>& members() {
        using P = DocumentPropertiesObject;
        static const MemberTable<P> table(rows_with({
            method<&P::add>(u"Add", {u"Name", u"LinkToContent", u"Type", u"Value", u"LinkSource"}),
        }));
        return table;
    }

    std::vector<DocumentPropertyObject::Which> all() const {
        std::vector<DocumentPropertyObject::Which> result;
        if (built_in_) {
            for (const BuiltInProperty& property : built_in_properties()) result.emplace_back(&property);
        } else {
            for (std::u16string& name : UserProperties(owner()).names()) result.emplace_back(std::move(name));
        }
        return result;
    }
    Object made(DocumentPropertyObject::Which which) const {
        return make_object<DocumentPropertyObject>(owner(), std::move(which));
    }
    Object named(const std::u16string& name) const {
        return first_that([&](const DocumentPropertyObject::Which& which) {
            return equal_ignoring_case(to_text(made(which).get(names::Name)), name);
        });
    }

  private:
    // A value is brought into the kind that is asked for. There is none that follows a cell.
    Object add(const std::u16string& name, bool link_to_content, std::optional<std::int32_t> type,
               const Variant& value) {
        if (built_in_) throw Error(ErrorNumber::no_such_member);
        const UserProperties properties(owner());
        if (link_to_content || name.empty() || properties.has(name)) throw Error(ErrorNumber::invalid_call);
        const Variant kept = in_kind(static_cast<PropertyKind>(type.value_or(0)), value);
        before_change(owner());
        properties.set_value(name, kept);
        return made(name);
    }
    static Variant in_kind(PropertyKind kind, const Variant& value) {
        switch (kind) {
            case PropertyKind::whole_number:
                return to_long(value);
            case PropertyKind::boolean:
                return to_boolean(value);
            case PropertyKind::date:
                return to_date(value);
            case PropertyKind::text:
                return to_text(value);
            case PropertyKind::number:
                return to_double(value);
        }
        throw Error(ErrorNumber::invalid_call);
    }

    bool built_in_;
};

}  // namespace

Object make_built_in_properties(Book book) {
    return make_object<DocumentPropertiesObject>(std::move(book), true);
}

Object make_custom_properties(Book book) {
    return make_object<DocumentPropertiesObject>(std::move(book), false);
}

}  // namespace qor::calc
