#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/text/XTextFieldsSupplier.hpp>

#include "hosts/calc/adapter/calc_object.hpp"
#include "hosts/calc/adapter/objects.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

// The links in a range: those in the text of cells. Formulas that make links are none of them, as in Excel.
class HyperlinksObject final : public CalcObject<HyperlinksObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Hyperlinks";

    explicit HyperlinksObject(RangeAreas areas) : areas_(std::move(areas)) {}

    void require_alive() const { areas_.sheet.require_alive(); }
    static const MemberTable<HyperlinksObject>& members() {
        static const MemberTable<HyperlinksObject> table({
            property<&HyperlinksObject::application>(u"Application"),
            property<&HyperlinksObject::count>(u"Count"),
        });
        return table;
    }

  private:
    std::int32_t count() {
        std::int32_t result = 0;
        for (const Cells& cells : areas_.areas) {
            // Only texts of several parts can hold a link, which spares asking all the plain ones.
            const Ref texts{
                Ref<css::sheet::XCellRangesQuery>(cells)->queryContentCells(css::sheet::CellFlags::FORMATTED)};
            const Ref elements{Ref{texts->getCells()} -> createEnumeration()};
            while (elements->hasMoreElements()) {
                const Ref<css::text::XTextFieldsSupplier> cell(elements->nextElement());
                result += links_in(cell);
            }
        }
        return result;
    }

    static std::int32_t links_in(const Ref<css::text::XTextFieldsSupplier>& cell) {
        const Ref<css::container::XIndexAccess> fields(Ref{cell->getTextFields()});
        std::int32_t links = 0;
        for (sal_Int32 i = fields->getCount(); i > 0; --i) {
            const Ref<css::beans::XPropertySet> field(fields->getByIndex(i - 1));
            if (Ref(field->getPropertySetInfo())->hasPropertyByName("URL")) ++links;
        }
        return links;
    }

    Object application() { return make_application(areas_.sheet.book.host); }

    RangeAreas areas_;
};

}  // namespace

Object make_hyperlinks(RangeAreas areas) {
    return make_object<HyperlinksObject>(std::move(areas));
}

}  // namespace qor::calc
