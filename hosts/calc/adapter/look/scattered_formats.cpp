#include "hosts/calc/adapter/look/scattered_formats.hpp"

#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <optional>

#include "hosts/calc/adapter/ground/undo_action.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

using UndoManager = Ref<css::document::XUndoManager>;
using FormattedCells = Ref<css::uno::XInterface>;

constexpr const char* number_format = "NumberFormat";
constexpr const char* records = "IsUndoEnabled";

// While it lives, the office does not prepare to record what is done to the document. When that begins the office also
// forgets the steps of the innermost undo context, so it gets an empty one.
class NoRecording {
  public:
    NoRecording(const Document& document, const UndoManager& manager) : document_(document), manager_(manager) {
        manager_->enterUndoContext({});
        try {
            set_property(document_, records, false);
        } catch (...) {
            leave();
            throw;
        }
    }
    NoRecording(const NoRecording&) = delete;
    NoRecording& operator=(const NoRecording&) = delete;
    ~NoRecording() {
        surely([&] { set_property(document_, records, true); });
        leave();
    }

  private:
    void leave() const {
        surely([&] { manager_->leaveUndoContext(); });
    }
    // A document that records nothing any more would lose what its user does, so one failure is not believed.
    template <class Statement>
    static void surely(const Statement& statement) {
        const auto fails = [&] { return attempt([&] { guarded(statement); }) != 0; };
        if (fails()) fails();
    }

    Document document_;
    UndoManager manager_;
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
    const UndoManager manager(Ref<css::document::XUndoManagerSupplier>(document)->getUndoManager());
    const UndoAction::Places places = Ref<css::sheet::XSheetCellRanges>(cells)->getRangeAddresses();
    // Recorded first, so that what fails halfway is undone, too.
    add_undo_action(document, new FormatChange(document, places, before, key));
    const NoRecording unrecorded(document, manager);
    set_property(cells, number_format, key);
}

}  // namespace qor::calc
