#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/sheet/XSelectedSheetsSupplier.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>

#include "hosts/calc/adapter/calc_object.hpp"
#include "hosts/calc/adapter/objects.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

using Controller = Ref<css::frame::XController>;

std::u16string number(std::size_t value) {
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

// A workbook's only window is called as the workbook, several are numbered.
std::u16string caption_of(const Book& book, const Controller& controller) {
    const std::vector<Controller> controllers = book.controllers();
    if (controllers.size() < 2) return book.name();
    const auto place = std::ranges::find(controllers, controller) - controllers.begin();
    return book.name() + u":" + number(static_cast<std::size_t>(place) + 1);
}

class WindowObject final : public CalcObject<WindowObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Window";

    WindowObject(Book book, Controller controller) : book_(std::move(book)), controller_(std::move(controller)) {}

    static const MemberTable<WindowObject>& members();

    Identity identity() const { return Identity(controller_.reference(), css::uno::UNO_QUERY); }

  private:
    Ref<css::awt::XWindow2> window() const {
        return Ref<css::awt::XWindow2>(Ref{Ref{controller_->getFrame()} -> getContainerWindow()});
    }

    std::u16string caption() { return caption_of(book_, controller_); }

    bool visible() { return window()->isVisible(); }
    void set_visible(bool visible) {
        const Ref target = window();
        target->setVisible(visible);
        if (bool(target->isVisible()) != visible) throw Error(ErrorNumber::host_refused);
    }

    // Its place among all windows, the one in front first.
    std::int32_t index() {
        const std::vector<Variant> all = make_windows(book_.host, {}).items();
        const auto same = [&](const Variant& other) { return is_same(*other.object().target()); };
        return static_cast<std::int32_t>(std::ranges::find_if(all, same) - all.begin()) + 1;
    }

    void activate() {
        Ref(controller_->getFrame())->activate();
        book_.host->activate(book_.document);
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
        property<&W::caption>(u"Caption"),
        property<&W::index>(u"Index"),
        property<&W::parent>(u"Parent"),
        property<&W::selected_sheets>(u"SelectedSheets"),
        property<&W::selection>(u"Selection"),
        property<&W::visible, &W::set_visible>(u"Visible"),
    });
    return table;
}

class WindowsObject final : public CalcObject<WindowsObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Windows";

    WindowsObject(HostPointer host, std::optional<Book> book) : host_(std::move(host)), book_(std::move(book)) {}

    static const MemberTable<WindowsObject>& members();

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const auto& [book, controller] : windows()) result.emplace_back(make_window(book, controller));
        return result;
    }

  private:
    using Windows = std::vector<std::pair<Book, Controller>>;

    Windows windows() const {
        Windows result;
        const auto add = [&](const Book& book) {
            for (const Controller& controller : book.controllers()) result.emplace_back(book, controller);
        };
        if (book_) {
            add(*book_);
            return result;
        }
        for (const Document& document : host_->documents()) add({host_, document});
        if (const Document front = host_->active_document()) {
            const Controller controller{Ref<css::frame::XModel>(front)->getCurrentController()};
            std::stable_partition(result.begin(), result.end(),
                                  [&](const auto& window) { return window.second == controller; });
        }
        return result;
    }

    std::int32_t count() { return static_cast<std::int32_t>(windows().size()); }

    Object item(const Variant& index) {
        const Windows all = windows();
        const auto* caption = index.get_if<std::u16string>();
        if (!caption) {
            const auto& [book, controller] = element_at(all, to_long(index));
            return make_window(book, controller);
        }
        for (const auto& [book, controller] : all) {
            if (equal_ignoring_case(caption_of(book, controller), *caption)) return make_window(book, controller);
        }
        throw Error(ErrorNumber::subscript_out_of_range);
    }

    Object parent() { return book_ ? make_workbook(*book_) : make_application(host_); }
    Object application() { return make_application(host_); }

    HostPointer host_;
    std::optional<Book> book_;
};

const MemberTable<WindowsObject>& WindowsObject::members() {
    using W = WindowsObject;
    static const MemberTable<W> table({
        property<&W::application>(u"Application"),
        property<&W::count>(u"Count"),
        property<&W::item>(u"Item", {u"Index"}),
        property<&W::parent>(u"Parent"),
    });
    return table;
}

}  // namespace

Object make_window(Book book, Ref<css::frame::XController> controller) {
    return make_object<WindowObject>(std::move(book), std::move(controller));
}

Object make_windows(HostPointer host, std::optional<Book> book) {
    return make_object<WindowsObject>(std::move(host), std::move(book));
}

}  // namespace qor::calc
