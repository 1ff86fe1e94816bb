#pragma once

#include <com/sun/star/beans/XPropertyContainer.hpp>
#include <com/sun/star/document/XDocumentProperties.hpp>
#include <string>
#include <vector>

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

Ref<css::document::XDocumentProperties> document_properties(const Book& book);

// The properties that a document has beside those that the office knows: text, number, boolean or date. Names are
// compared without regard to case.
class UserProperties {
  public:
    explicit UserProperties(const Book& book);

    // Those that a user sees, in the office's order: without what file formats and this adapter keep there.
    std::vector<std::u16string> names() const;
    bool has(std::u16string_view name) const;
    // Empty when there is none of that name.
    Variant value(std::u16string_view name) const;
    // Makes it when there is none. Raises 1004 for a value of another kind.
    void set_value(std::u16string_view name, const Variant& value) const;
    void remove(std::u16string_view name) const;

  private:
    rtl::OUString spelled(std::u16string_view name) const;

    Ref<css::beans::XPropertyContainer> properties_;
};

}  // namespace qor::calc
