#include "hosts/calc/adapter/cells/formats_before.hpp"

#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>

#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

const rtl::OUString property("NumberFormat");

}  // namespace

FormatsBefore::FormatsBefore(const Cells& cells) {
    const Ref<css::container::XIndexAccess> looks(
        Ref{Ref<css::sheet::XUniqueCellFormatRangesSupplier>(cells)->getUniqueCellFormatRanges()});
    for (sal_Int32 i = 0, count = looks->getCount(); i < count; ++i) {
        const Ref<css::uno::XInterface> places(looks->getByIndex(i));
        const bool own = Ref<css::beans::XPropertyState>(places)->getPropertyState(property) !=
                         css::beans::PropertyState_DEFAULT_VALUE;
        const Ref<css::beans::XPropertySet> properties(places);
        formats_.push_back({places, own ? properties->getPropertyValue(property) : css::uno::Any()});
    }
}

void FormatsBefore::put_back() const {
    for (const Format& format : formats_) {
        if (format.key.hasValue()) {
            Ref<css::beans::XPropertySet>(format.cells)->setPropertyValue(property, format.key);
        } else {
            Ref<css::beans::XPropertyState>(format.cells)->setPropertyToDefault(property);
        }
    }
}

}  // namespace qor::calc
