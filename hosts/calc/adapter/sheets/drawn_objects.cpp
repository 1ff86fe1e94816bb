#include "hosts/calc/adapter/sheets/drawn_objects.hpp"

#include <algorithm>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/sheet/XSheetAnnotationsSupplier.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

using Shape = Ref<css::drawing::XShape>;

constexpr std::u16string_view chart_class = u"12dcae26-281f-416f-a234-c3086127382e";
constexpr const char* embedded_shape = "com.sun.star.drawing.OLE2Shape";
constexpr const char* comment_shape = "com.sun.star.drawing.CaptionShape";

std::vector<Shape> shapes_on(const Sheet& sheet) {
    const Ref<css::container::XIndexAccess> page(sheet.page());
    std::vector<Shape> result;
    for (sal_Int32 i = 0, count = page->getCount(); i < count; ++i) result.emplace_back(page->getByIndex(i));
    return result;
}

bool is_of_type(const Shape& shape, const char* service) {
    return Ref<css::lang::XServiceInfo>(shape)->supportsService(rtl::OUString::createFromAscii(service));
}

bool is_chart(const Shape& shape) {
    return to_lower(view_of(get_property<rtl::OUString>(shape, "CLSID"))) == chart_class;
}

}  // namespace

std::u16string DrawnObject::name() const {
    const rtl::OUString given = Ref<css::container::XNamed>(shape)->getName();
    return from_uno(given.isEmpty() ? get_property<rtl::OUString>(shape, "PersistName") : given);
}

void DrawnObject::set_name(const std::u16string& name) const {
    before_change(sheet.book);
    Ref<css::container::XNamed>(shape)->setName(to_uno(name));
}

void DrawnObject::select() const {
    sheet.book.host->activate(sheet.book.document);
    activate_sheet(sheet);
    const Ref<css::view::XSelectionSupplier> view(Ref{sheet.book.model()->getCurrentController()});
    if (!view->select(css::uno::Any(shape.reference()))) throw Error(ErrorNumber::host_refused);
}

void DrawnObject::remove() const {
    before_formatting(range_at(sheet, {}));
    Ref<css::drawing::XShapes>(sheet.page())->remove(shape.reference());
}

void DrawnObject::require_alive() const {
    sheet.require_alive();
    const std::vector<Shape> all = shapes_on(sheet);
    if (std::ranges::find(all, shape) == all.end()) throw Error(ErrorNumber::host_refused);
}

std::vector<DrawnObject> embedded_objects(const Sheet& sheet, Embedded kind) {
    std::vector<DrawnObject> result;
    for (const Shape& shape : shapes_on(sheet)) {
        if (!is_of_type(shape, embedded_shape)) continue;
        if (is_chart(shape) == (kind == Embedded::chart)) result.push_back({sheet, shape});
    }
    return result;
}

// The office draws the captions of comments when they are shown.
std::int32_t count_drawn_objects(const Sheet& sheet) {
    const std::vector<Shape> all = shapes_on(sheet);
    const auto captions = std::ranges::count_if(all, [](const Shape& s) { return is_of_type(s, comment_shape); });
    const Ref comments{Ref<css::sheet::XSheetAnnotationsSupplier>(sheet.sheet)->getAnnotations()};
    return static_cast<std::int32_t>(all.size()) - static_cast<std::int32_t>(captions) +
           Ref<css::container::XIndexAccess>(comments)->getCount();
}

std::optional<DrawnObject> selected_object(const Book& book) {
    const Ref<css::view::XSelectionSupplier> view(Ref{book.model()->getCurrentController()});
    const Ref<css::container::XIndexAccess> selected(view->getSelection());
    // A range of cells has an index, too.
    if (!selected || !Ref<css::drawing::XShapes>(selected) || selected->getCount() != 1) return {};
    return DrawnObject{book.active_sheet(), Shape(selected->getByIndex(0))};
}

}  // namespace qor::calc
