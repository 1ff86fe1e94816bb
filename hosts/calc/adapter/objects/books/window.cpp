#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/sheet/XSelectedSheetsSupplier.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>

#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/adapter/sheets/window_caption.hpp"

namespace qor::calc {
namespace {

class WindowObject final : public CalcObject<WindowObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Window";

    WindowObject(Book book, Controller controller) : book_(std::move(book)), controller_(std::move(controller)) {}

    void require_alive() const {
        if (!Ref{controller_->getFrame()}) throw Error(ErrorNumber::host_refused);
    }
    static const MemberTable<WindowObject>& members();

    Identity identity() const { return Identity(controller_.reference(), css::uno::UNO_QUERY); }

  private:
    Ref<css::awt::XWindow2> window() const {
        return Ref<css::awt::XWindow2>(Ref{Ref{controller_->getFrame()} -> getContainerWindow()});
    }

    std::u16string caption() { return caption_of(book_, controller_); }
    void set_caption(const std::u16string& caption) { book_.host->window_list().set_caption(controller_, caption); }

    bool visible() { return can_be_seen(controller_); }
    void set_visible(bool visible) {
        const Ref target = window();
        target->setVisible(visible);
        if (bool(target->isVisible()) != visible) throw Error(ErrorNumber::host_refused);
        if (visible) return;
        // Where the active window goes, the one that was active before it comes to the front.
        const Window next = book_.host->active_window();
        if (next.document) book_.host->activate(next);
    }

    // Its place among all windows, the active one first.
    std::int32_t index() {
        const std::vector<Window> all = book_.host->windows();
        const auto place = std::ranges::find(all, controller_, &Window::controller);
        if (place == all.end()) throw Error(ErrorNumber::host_refused);
        return static_cast<std::int32_t>(place - all.begin()) + 1;
    }

    void activate() {
        if (!can_be_seen(controller_)) throw Error(ErrorNumber::host_refused);
        book_.host->activate({book_.document, controller_});
    }

    Object active_sheet() {
        return make_worksheet({book_, Ref<css::sheet::XSpreadsheetView>(controller_)->getActiveSheet()});
    }

    Object selected_sheets() {
        const std::vector<Sheet> all = book_.sheets();
        std::vector<Sheet> chosen;
        for (const sal_Int32 place : Ref<css::sheet::XSelectedSheetsSupplier>(controller_)->getSelectedSheets()) {
            chosen.push_back(all.at(static_cast<std::size_t>(place)));
        }
        return make_sheets(book_, std::move(chosen));
    }

    Object selection() { return selection_of(book_, controller_); }
    Object active_cell() { return active_cell_of(book_, controller_); }
    Object parent() { return make_workbook(book_); }
    Object application() { return make_application(book_.host); }

    Book book_;
    Controller controller_;
};

const MemberTable<WindowObject>& WindowObject::members() {
    using W = WindowObject;
    static const MemberTable<W> table({
        method<&W::activate>(u"Activate"),
        property<&W::active_cell>(u"ActiveCell"),
        property<&W::active_sheet>(u"ActiveSheet"),
        property<&W::application>(u"Application"),
        property<&W::caption, &W::set_caption>(u"Caption"),
        property<&W::index>(u"Index"),
        property<&W::parent>(u"Parent"),
        property<&W::selected_sheets>(u"SelectedSheets"),
        property<&W::selection>(u"Selection"),
        property<&W::visible, &W::set_visible>(u"Visible"),
    });
    return table;
}

}  // namespace

Object make_window(Book book, Controller controller) {
    return make_object<WindowObject>(std::move(book), std::move(controller));
}

}  // namespace qor::calc
