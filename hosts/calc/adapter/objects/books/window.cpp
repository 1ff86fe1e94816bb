#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/sheet/XSelectedSheetsSupplier.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>

#include "hosts/calc/adapter/objects/owned_object.hpp"
#include "hosts/calc/adapter/sheets/window_caption.hpp"

namespace qor::calc {
namespace {

class WindowObject final : public OwnedObject<WindowObject, Book> {
  public:
    static constexpr std::u16string_view name_of_type = u"Window";

    WindowObject(Book book, Controller controller) : OwnedObject(std::move(book)), controller_(std::move(controller)) {}

    void require_alive() const {
        if (!Ref{controller_->getFrame()}) throw Error(ErrorNumber::host_refused);
    }
    static const MemberTable<WindowObject>& members();

    Identity identity() const { return Identity(controller_); }

  private:
    Ref<css::awt::XWindow2> window() const {
        return Ref<css::awt::XWindow2>(Ref{Ref{controller_->getFrame()} -> getContainerWindow()});
    }

    std::u16string caption() { return caption_of(owner(), controller_); }
    void set_caption(const std::u16string& caption) { owner().host->window_list().set_caption(controller_, caption); }

    bool visible() { return can_be_seen(controller_); }
    void set_visible(bool visible) {
        const Ref target = window();
        target->setVisible(visible);
        if (bool(target->isVisible()) != visible) throw Error(ErrorNumber::host_refused);
        if (visible) return;
        // Where the active window goes, the one that was active before it comes to the front.
        const Window next = owner().host->active_window();
        if (next.document) owner().host->activate(next);
    }

    // Its place among all windows, the active one first.
    std::int32_t index() { return index_of(owner().host->windows(), controller_, &Window::controller); }

    void activate() {
        if (!can_be_seen(controller_)) throw Error(ErrorNumber::host_refused);
        owner().host->activate({owner().document, controller_});
    }

    Object active_sheet() {
        return make_worksheet({owner(), Ref<css::sheet::XSpreadsheetView>(controller_)->getActiveSheet()});
    }

    Object selected_sheets() {
        const std::vector<Sheet> all = owner().sheets();
        std::vector<Sheet> chosen;
        for (const sal_Int32 place : Ref<css::sheet::XSelectedSheetsSupplier>(controller_)->getSelectedSheets()) {
            chosen.push_back(all.at(static_cast<std::size_t>(place)));
        }
        return make_sheets(owner(), std::move(chosen));
    }

    Object selection() { return selection_of(owner(), controller_); }
    Object active_cell() { return active_cell_of(owner(), controller_); }

    Controller controller_;
};

const MemberTable<WindowObject>& WindowObject::members() {
    using W = WindowObject;
    static const MemberTable<W> table(rows_with({
        method<&W::activate>(u"Activate"),
        property<&W::active_cell>(u"ActiveCell"),
        property<&W::active_sheet>(u"ActiveSheet"),
        property<&W::caption, &W::set_caption>(u"Caption"),
        property<&W::index>(u"Index"),
        property<&W::selected_sheets>(u"SelectedSheets"),
        property<&W::selection>(u"Selection"),
        property<&W::visible, &W::set_visible>(u"Visible"),
    }));
    return table;
}

}  // namespace

Object make_window(Book book, Controller controller) {
    return make_object<WindowObject>(std::move(book), std::move(controller));
}

}  // namespace qor::calc
