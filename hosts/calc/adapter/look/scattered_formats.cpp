#include "hosts/calc/adapter/look/scattered_formats.hpp"

#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <optional>

#include "hosts/calc/adapter/ground/undo_action.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/surely.hpp"

namespace qor::calc {
namespace {

using FormattedCells = Ref<css::uno::XInterface>;

constexpr const char* number_format = "NumberFormat";
constexpr const char* records = "IsUndoEnabled";

// While it lives, the office does not prepare to record what is done to the document. When that begins the office also
// forgets the steps of the innermost undo context, so it gets an empty one.
class NoRecording {
  public:
    explicit NoRecording(const Document& document) : document_(document), empty_(document, {}) {
        set_property(document_, records, false);
    }
    NoRecording(const NoRecording&) = delete;
    NoRecording& operator=(const NoRecording&) = delete;
    ~NoRecording() {
        surely([&] { set_property(document_, records, true); });
    }

  private:
    Document document_;
    UndoContext empty_;
};

class FormatChange final : public UndoAction {
  public:
    // Without a key before, the cells had the format of their style.
    FormatChange(Document document, Places places, std::optional<sal_Int32> before, sal_Int32 after)
        : UndoAction(std::move(document), std::move(places)), before_(before), after_(after) {}

  private:
    void take_back() override {
        const Ref cells = ranges_in(document(), places());
        if (before_) return set_property(cells, number_format, *before_);
        Ref<css::beans::XPropertyState>(cells)->setPropertyToDefault(rtl::OUString::createFromAscii(number_format));
    }
    void do_again() override { set_property(ranges_in(document(), places()), number_format, after_); }

    std::optional<sal_Int32> before_;
    sal_Int32 after_;
};

}  // namespace

void set_scattered_format(const RangeAreas& areas, std::int32_t key) {
    const FormattedCells cells = areas.whole();
    const auto state =
        Ref<css::beans::XPropertyState>(cells)->getPropertyState(rtl::OUString::createFromAscii(number_format));
    if (state == css::beans::PropertyState_AMBIGUOUS_VALUE) return set_property(cells, number_format, key);
    std::optional<sal_Int32> before;
    if (state == css::beans::PropertyState_DIRECT_VALUE) before = get_property<sal_Int32>(cells, number_format);
    const Document& document = areas.sheet.book.document;
    const UndoStep step(u"Format");
    UndoStep::note_change(document);
    const UndoAction::Places places = Ref<css::sheet::XSheetCellRanges>(cells)->getRangeAddresses();
    // Recorded first, so that what fails halfway is undone, too.
    add_undo_action(document, new FormatChange(document, places, before, key));
    const NoRecording unrecorded(document);
    set_property(cells, number_format, key);
}

}  // namespace qor::calc
