#include <com/sun/star/sheet/XSheetAnnotation.hpp>
#include <com/sun/star/sheet/XSheetAnnotationAnchor.hpp>
#include <com/sun/star/sheet/XSheetAnnotations.hpp>
#include <com/sun/star/sheet/XSheetAnnotationsSupplier.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/objects/collection.hpp"

namespace qor::calc {
namespace {

using Annotations = Ref<css::sheet::XSheetAnnotations>;
using Annotation = Ref<css::sheet::XSheetAnnotation>;

Annotations annotations_of(const Sheet& sheet) {
    return Ref<css::sheet::XSheetAnnotationsSupplier>(sheet.sheet)->getAnnotations();
}

class CommentObject final : public OwnedObject<CommentObject, Sheet> {
  public:
    static constexpr std::u16string_view name_of_type = u"Comment";

    CommentObject(Sheet sheet, css::table::CellAddress cell) : OwnedObject(std::move(sheet)), cell_(cell) {}

    static const MemberTable<CommentObject>& members() {
        using C = CommentObject;
        static const MemberTable<C> table(rows_with({
            property<&C::author>(u"Author"),
            method<&C::remove>(u"Delete"),
            method<&C::text>(u"Text"),
            property<&C::visible, &C::set_visible>(u"Visible"),
        }));
        return table;
    }

    Object parent() const { return make_range(cell()); }

  private:
    RangeAreas cell() const { return range_at(owner(), {cell_.Column, cell_.Row, cell_.Column, cell_.Row}); }

    // The office hands out an empty one where there is none.
    Annotation annotation_at_cell() const {
        const Ref cell{owner().sheet->getCellByPosition(cell_.Column, cell_.Row)};
        return Annotation(Ref{Ref<css::sheet::XSheetAnnotationAnchor>(cell)->getAnnotation()});
    }

    // Raises 1004 when the comment is gone.
    Annotation annotation() const {
        const Annotation here = annotation_at_cell();
        if (!Ref<css::text::XTextRange>(here)->getString().isEmpty()) return here;
        const Annotations all = annotations_of(owner());
        const sal_Int32 count = all->getCount();
        for (sal_Int32 i = 0; i < count; ++i) {
            Annotation candidate(all->getByIndex(i));
            const css::table::CellAddress at = candidate->getPosition();
            if (at.Column == cell_.Column && at.Row == cell_.Row) return candidate;
        }
        throw Error(ErrorNumber::host_refused);
    }

    std::u16string text() { return from_uno(Ref<css::text::XTextRange>(annotation())->getString()); }
    std::u16string author() { return from_uno(annotation()->getAuthor()); }
    bool visible() { return annotation()->getIsVisible(); }
    void set_visible(bool visible) {
        before_change(owner().book);
        const NoUndo unseen_by_undo(owner().book.document);
        annotation()->setIsVisible(visible);
    }
    void remove() {
        before_formatting(cell());
        const Annotations all = annotations_of(owner());
        for (sal_Int32 i = 0; i < all->getCount(); ++i) {
            const css::table::CellAddress at = Annotation(all->getByIndex(i))->getPosition();
            if (at.Column == cell_.Column && at.Row == cell_.Row) return all->removeByIndex(i);
        }
    }

    css::table::CellAddress cell_;
};

class CommentsObject final : public Collection<CommentsObject, Sheet> {
  public:
    static constexpr std::u16string_view name_of_type = u"Comments";

    using Collection::Collection;

    std::int32_t count() const { return annotations_of(owner())->getCount(); }
    std::vector<css::table::CellAddress> all() const {
        const Annotations annotations = annotations_of(owner());
        std::vector<css::table::CellAddress> result;
        const sal_Int32 count = annotations->getCount();
        result.reserve(static_cast<std::size_t>(count));
        for (sal_Int32 i = 0; i < count; ++i) {
            result.push_back(Annotation(annotations->getByIndex(i))->getPosition());
        }
        return result;
    }
    Object made(const css::table::CellAddress& cell) const { return make_comment(owner(), cell); }
};

}  // namespace

Object make_comment(Sheet sheet, css::table::CellAddress cell) {
    return make_object<CommentObject>(std::move(sheet), cell);
}

Object make_comments(Sheet sheet) {
    return make_object<CommentsObject>(std::move(sheet));
}

}  // namespace qor::calc
