#include <algorithm>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/text/XTextField.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include "hosts/calc/adapter/ground/cell_query.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/objects/owned_object.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

// The links in a range: those in the text of cells. Formulas that make links are none of them, as in Excel.
class HyperlinksObject final : public OwnedObject<HyperlinksObject, RangeAreas> {
  public:
    static constexpr std::u16string_view name_of_type = u"Hyperlinks";

    using OwnedObject::OwnedObject;

    static const MemberTable<HyperlinksObject>& members() {
        static const MemberTable<HyperlinksObject> table(rows_with({
            property<&HyperlinksObject::count>(u"Count"),
            method<&HyperlinksObject::remove>(u"Delete"),
        }));
        return table;
    }

  private:
    using Cell = Ref<css::container::XEnumerationAccess>;
    using Link = Ref<css::text::XTextRange>;

    template <class Visit>
    void for_each_cell(Visit visit) const {
        for (const Cells& cells : owner().areas) {
            // Only texts of several parts can hold a link, which spares asking all the plain ones.
            const CellPlaces texts = content_places(cells, css::sheet::CellFlags::FORMATTED);
            if (texts.empty()) continue;
            const Rectangle area = rectangle_of(cells);
            for (const css::table::CellRangeAddress& at : texts) {
                for (sal_Int32 row = at.StartRow; row <= at.EndRow; ++row) {
                    for (sal_Int32 column = at.StartColumn; column <= at.EndColumn; ++column) {
                        visit(Cell(Ref{cells->getCellByPosition(column - area.left, row - area.top)}));
                    }
                }
            }
        }
    }

    // From the last one on, so that what is done to one leaves the places of the others.
    static std::vector<Link> links_in(const Cell& cell) {
        std::vector<Link> links;
        const Ref paragraphs{cell->createEnumeration()};
        while (paragraphs->hasMoreElements()) {
            const Ref parts{Cell(paragraphs->nextElement())->createEnumeration()};
            while (parts->hasMoreElements()) {
                const Link part(parts->nextElement());
                if (is_link(part)) links.push_back(part);
            }
        }
        std::ranges::reverse(links);
        return links;
    }

    static bool is_link(const Link& part) {
        if (get_property<rtl::OUString>(part, "TextPortionType") != "TextField") return false;
        const Ref<css::beans::XPropertySet> field(get_property<Ref<css::text::XTextField>>(part, "TextField"));
        return Ref(field->getPropertySetInfo())->hasPropertyByName("URL");
    }

    std::int32_t count() {
        std::size_t result = 0;
        for_each_cell([&](const Cell& cell) { result += links_in(cell).size(); });
        return static_cast<std::int32_t>(result);
    }

    // Their texts stay.
    void remove() {
        const UndoStep step(u"Delete Hyperlinks");
        before_formatting(owner());
        for_each_cell([](const Cell& cell) {
            for (const Link& link : links_in(cell)) link->setString(link->getString());
        });
    }
};

}  // namespace

Object make_hyperlinks(RangeAreas areas) {
    return make_object<HyperlinksObject>(std::move(areas));
}

}  // namespace qor::calc
