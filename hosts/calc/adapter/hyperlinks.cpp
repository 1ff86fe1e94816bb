#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextContent.hpp>
#include <com/sun/star/text/XTextFieldsSupplier.hpp>

#include "hosts/calc/adapter/calc_object.hpp"
#include "hosts/calc/adapter/objects.hpp"
#include "hosts/calc/adapter/undo_step.hpp"
#include "hosts/calc/adapter/write_guard.hpp"
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
            method<&HyperlinksObject::remove>(u"Delete"),
            property<&HyperlinksObject::parent>(u"Parent"),
        });
        return table;
    }

  private:
    using Cell = Ref<css::text::XTextFieldsSupplier>;
    using Link = Ref<css::text::XTextContent>;

    template <class Visit>
    void for_each_cell(Visit visit) const {
        for (const Cells& cells : areas_.areas) {
            // Only texts of several parts can hold a link, which spares asking all the plain ones.
            const Ref texts{
                Ref<css::sheet::XCellRangesQuery>(cells)->queryContentCells(css::sheet::CellFlags::FORMATTED)};
            const Ref elements{Ref{texts->getCells()} -> createEnumeration()};
            while (elements->hasMoreElements()) visit(Cell(elements->nextElement()));
        }
    }

    static std::vector<Link> links_in(const Cell& cell) {
        const Ref<css::container::XIndexAccess> fields(Ref{cell->getTextFields()});
        std::vector<Link> links;
        for (sal_Int32 i = fields->getCount(); i > 0; --i) {
            const Ref<css::beans::XPropertySet> field(fields->getByIndex(i - 1));
            if (Ref(field->getPropertySetInfo())->hasPropertyByName("URL")) links.emplace_back(field);
        }
        return links;
    }

    std::int32_t count() {
        std::size_t result = 0;
        for_each_cell([&](const Cell& cell) { result += links_in(cell).size(); });
        return static_cast<std::int32_t>(result);
    }

    // Their texts stay.
    void remove() {
        const UndoStep step(u"Delete Hyperlinks");
        before_formatting(areas_);
        std::vector<Cell> cells;
        for_each_cell([&](const Cell& cell) { cells.push_back(cell); });
        for (const Cell& cell : cells) {
            const Ref<css::text::XText> text(cell);
            for (const Link& link : links_in(cell)) {
                const auto shown = get_property<rtl::OUString>(link, "Representation");
                text->insertString(link->getAnchor(), shown, true);
            }
        }
    }

    Object parent() { return make_range(areas_); }
    Object application() { return make_application(areas_.sheet.book.host); }

    RangeAreas areas_;
};

}  // namespace

Object make_hyperlinks(RangeAreas areas) {
    return make_object<HyperlinksObject>(std::move(areas));
}

}  // namespace qor::calc
