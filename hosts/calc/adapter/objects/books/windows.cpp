#include <com/sun/star/awt/PosSize.hpp>
#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/XTopWindow2.hpp>

#include "hosts/calc/adapter/ground/window_layout.hpp"
#include "hosts/calc/adapter/objects/collection.hpp"
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

class WindowsObject final : public Collection<WindowsObject, HostPointer> {
  public:
    static constexpr std::u16string_view name_of_type = u"Windows";

    WindowsObject(HostPointer host, std::optional<Book> book) : Collection(std::move(host)), book_(std::move(book)) {}

    void require_alive() const {
        if (book_) book_->require_alive();
    }
    static const MemberTable<WindowsObject>& members();

    Object parent() const { return book_ ? make_workbook(*book_) : make_application(owner()); }
    std::vector<Window> all() const { return book_ ? owner()->windows(book_->document) : owner()->windows(); }
    Object made(const Window& window) const { return make_window({owner(), window.document}, window.controller); }
    Object named(const std::u16string& caption) const {
        return first_that([&](const Window& window) {
            return equal_ignoring_case(caption_of({owner(), window.document}, window.controller), caption);
        });
    }

  private:
    // Windows that are hidden or minimized keep their places.
    bool arrange(std::optional<std::int32_t> style, std::optional<bool> of_active_workbook) {
        const Document active = owner()->active_document();
        std::vector<Window> shown = all();
        std::erase_if(shown, [&](const Window& window) {
            return !takes_part(window) || (of_active_workbook.value_or(false) && window.document != active);
        });
        const Ref toolkit{css::awt::Toolkit::create(owner()->context().reference())};
        const css::awt::Rectangle screen = toolkit->getWorkArea();
        const auto chosen = static_cast<ArrangeStyle>(style.value_or(number_of(ArrangeStyle::tiled)));
        const auto places = arranged(chosen, shown.size(), {screen.X, screen.Y, screen.Width, screen.Height});
        // From the back to the front, so that the active one ends up there.
        for (std::size_t i = shown.size(); i-- > 0;) put(shown[i], places[i]);
        return true;
    }

    std::optional<Book> book_;
};

const MemberTable<WindowsObject>& WindowsObject::members() {
    using W = WindowsObject;
    static const MemberTable<W> table(rows_with({
        method<&W::arrange>(u"Arrange", {u"ArrangeStyle", u"ActiveWorkbook", u"SyncHorizontal", u"SyncVertical"}),
    }));
    return table;
}

}  // namespace

Object make_windows(HostPointer host, std::optional<Book> book) {
    return make_object<WindowsObject>(std::move(host), std::move(book));
}

}  // namespace qor::calc
