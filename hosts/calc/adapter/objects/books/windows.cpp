#include <com/sun/star/awt/PosSize.hpp>
#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/XTopWindow2.hpp>

#include "hosts/calc/adapter/ground/window_layout.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/adapter/sheets/window_caption.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

Ref<css::awt::XWindow> container_of(const Window& window) {
    return {Ref{window.controller->getFrame()} -> getContainerWindow()};
}

bool takes_part(const Window& window) {
    return can_be_seen(window.controller) && !Ref<css::awt::XTopWindow2>(container_of(window))->getIsMinimized();
}

void put(const Window& window, const WindowPlace& place) {
    const Ref container = container_of(window);
    const Ref<css::awt::XTopWindow2> top(container);
    if (top->getIsMaximized()) top->setIsMaximized(false);
    container->setPosSize(place.x, place.y, place.width, place.height, css::awt::PosSize::POSSIZE);
    Ref<css::awt::XTopWindow>(container)->toFront();
}

class WindowsObject final : public CalcObject<WindowsObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Windows";

    WindowsObject(HostPointer host, std::optional<Book> book) : host_(std::move(host)), book_(std::move(book)) {}

    void require_alive() const {
        if (book_) book_->require_alive();
    }
    static const MemberTable<WindowsObject>& members();

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const Window& window : windows()) result.emplace_back(window_object(window));
        return result;
    }

  private:
    std::vector<Window> windows() const { return book_ ? host_->windows(book_->document) : host_->windows(); }
    Object window_object(const Window& window) const {
        return make_window({host_, window.document}, window.controller);
    }

    std::int32_t count() { return static_cast<std::int32_t>(windows().size()); }

    Object item(const Variant& index) {
        const std::vector<Window> all = windows();
        const auto* caption = index.get_if<std::u16string>();
        if (!caption) return window_object(element_at(all, to_long(index)));
        for (const Window& window : all) {
            if (equal_ignoring_case(caption_of({host_, window.document}, window.controller), *caption)) {
                return window_object(window);
            }
        }
        throw Error(ErrorNumber::subscript_out_of_range);
    }

    // Windows that are hidden or minimized keep their places.
    bool arrange(std::optional<std::int32_t> style, std::optional<bool> of_active_workbook) {
        const Document active = host_->active_document();
        std::vector<Window> shown = windows();
        std::erase_if(shown, [&](const Window& window) {
            return !takes_part(window) || (of_active_workbook.value_or(false) && window.document != active);
        });
        const Ref toolkit{css::awt::Toolkit::create(host_->context())};
        const css::awt::Rectangle screen = toolkit->getWorkArea();
        const auto chosen = static_cast<ArrangeStyle>(style.value_or(number_of(ArrangeStyle::tiled)));
        const auto places = arranged(chosen, shown.size(), {screen.X, screen.Y, screen.Width, screen.Height});
        // From the back to the front, so that the active one ends up there.
        for (std::size_t i = shown.size(); i-- > 0;) put(shown[i], places[i]);
        return true;
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
        method<&W::arrange>(u"Arrange", {u"ArrangeStyle", u"ActiveWorkbook", u"SyncHorizontal", u"SyncVertical"}),
        property<&W::count>(u"Count"),
        property<&W::item>(u"Item", {u"Index"}),
        property<&W::parent>(u"Parent"),
    });
    return table;
}

}  // namespace

Object make_windows(HostPointer host, std::optional<Book> book) {
    return make_object<WindowsObject>(std::move(host), std::move(book));
}

}  // namespace qor::calc
