#include <com/sun/star/sheet/XSheetAnnotation.hpp>
#include <com/sun/star/sheet/XSheetAnnotationAnchor.hpp>
#include <com/sun/star/sheet/XSheetAnnotations.hpp>
#include <com/sun/star/sheet/XSheetAnnotationsSupplier.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {
namespace {

using Annotations = Ref<css::sheet::XSheetAnnotations>;
using Annotation = Ref<css::sheet::XSheetAnnotation>;

Annotations annotations_of(const Sheet& sheet) {
    return Ref<css::sheet::XSheetAnnotationsSupplier>(sheet.sheet)->getAnnotations();
}

class CommentObject final : public CalcObject<CommentObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Comment";

    CommentObject(Sheet sheet, css::table::CellAddress cell) : sheet_(std::move(sheet)), cell_(cell) {}

    void require_alive() const { sheet_.require_alive(); }
    static const MemberTable<CommentObject>& members() {
        using C = CommentObject;
        static const MemberTable<C> table({
            property<&C::application>(u"Application"),
            property<&C::author>(u"Author"),
            method<&C::remove>(u"Delete"),
            property<&C::parent>(u"Parent"),
            method<&C::text>(u"Text"),
            property<&C::visible, &C::set_visible>(u"Visible"),
        });
        return table;
    }

  private:
    // The office hands out an empty one where there is none.
    Annotation annotation_at_cell() const {
        const Ref cell{sheet_.sheet->getCellByPosition(cell_.Column, cell_.Row)};
        return Annotation(Ref{Ref<css::sheet::XSheetAnnotationAnchor>(cell)->getAnnotation()});
    }

    // Raises 1004 when the comment is gone.
    Annotation annotation() const {
        const Annotation here = annotation_at_cell();
        if (!Ref<css::text::XTextRange>(here)->getString().isEmpty()) return here;
        const Annotations all = annotations_of(sheet_);
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
        before_change(sheet_.book);
        const NoUndo unseen_by_undo(sheet_.book.document);
        annotation()->setIsVisible(visible);
    }
    void remove() {
        before_formatting(range_at(sheet_, {cell_.Column, cell_.Row, cell_.Column, cell_.Row}));
        const Annotations all = annotations_of(sheet_);
        for (sal_Int32 i = 0; i < all->getCount(); ++i) {
            const css::table::CellAddress at = Annotation(all->getByIndex(i))->getPosition();
            if (at.Column == cell_.Column && at.Row == cell_.Row) return all->removeByIndex(i);
        }
    }
    Object parent() { return make_range(range_at(sheet_, {cell_.Column, cell_.Row, cell_.Column, cell_.Row})); }
    Object application() { return make_application(sheet_.book.host); }

    Sheet sheet_;
    css::table::CellAddress cell_;
};

class CommentsObject final : public CalcObject<CommentsObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Comments";

    explicit CommentsObject(Sheet sheet) : sheet_(std::move(sheet)) {}

    void require_alive() const { sheet_.require_alive(); }
    static const MemberTable<CommentsObject>& members() {
        using C = CommentsObject;
        static const MemberTable<C> table({
            property<&C::application>(u"Application"),
            property<&C::count>(u"Count"),
            property<&C::item>(u"Item", {u"Index"}),
            property<&C::parent>(u"Parent"),
        });
        return table;
    }

    std::vector<Variant> elements() const {
        const Annotations all = annotations_of(sheet_);
        std::vector<Variant> result;
        const sal_Int32 count = all->getCount();
        result.reserve(static_cast<std::size_t>(count));
        for (sal_Int32 i = 0; i < count; ++i) {
            result.emplace_back(make_comment(sheet_, Annotation(all->getByIndex(i))->getPosition()));
        }
        return result;
    }

  private:
    std::int32_t count() { return annotations_of(sheet_)->getCount(); }
    Object item(std::int32_t index) {
        const std::vector<Variant> all = elements();
        return element_at(all, index).object();
    }
    Object parent() { return make_worksheet(sheet_); }
    Object application() { return make_application(sheet_.book.host); }

    Sheet sheet_;
};

}  // namespace

Object make_comment(Sheet sheet, css::table::CellAddress cell) {
    return make_object<CommentObject>(std::move(sheet), cell);
}

Object make_comments(Sheet sheet) {
    return make_object<CommentsObject>(std::move(sheet));
}

}  // namespace qor::calc
