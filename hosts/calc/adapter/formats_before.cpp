#include "hosts/calc/adapter/formats_before.hpp"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>

#include "hosts/calc/uno/property.hpp"

namespace qor::calc {

FormatsBefore::FormatsBefore(const Cells& cells) {
    const Ref<css::container::XIndexAccess> looks(
        Ref{Ref<css::sheet::XUniqueCellFormatRangesSupplier>(cells)->getUniqueCellFormatRanges()});
    for (sal_Int32 i = 0, count = looks->getCount(); i < count; ++i) {
        const Ref<css::uno::XInterface> places(looks->getByIndex(i));
        formats_.push_back({places, get_property<sal_Int32>(places, "NumberFormat")});
    }
}

void FormatsBefore::put_back() const {
    for (const Format& format : formats_) set_property(format.cells, "NumberFormat", format.key);
}

}  // namespace qor::calc
