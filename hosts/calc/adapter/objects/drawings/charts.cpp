#include <algorithm>
#include <com/sun/star/util/XModifiable.hpp>

#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/objects/drawings/embedded_object.hpp"
#include "hosts/calc/adapter/sheets/chart_series.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

Object make_chart(DrawnObject object);
Object make_chart_object(DrawnObject object);

class SeriesObject final : public OwnedObject<SeriesObject, DrawnObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Series";

    SeriesObject(DrawnObject chart, ChartSeries series) : OwnedObject(std::move(chart)), series_(std::move(series)) {}

    Identity identity() const { return Identity(series_.series); }
    void require_alive() const {
        OwnedObject::require_alive();
        current();
    }
    Object parent() const { return make_chart(owner()); }
    static const MemberTable<SeriesObject>& members() {
        using S = SeriesObject;
        static const MemberTable<S> table(rows_with({
            method<&S::remove>(u"Delete"),
            property<&S::formula>(u"Formula"),
            property<&S::name>(u"Name"),
            property<&S::plot_order>(u"PlotOrder"),
        }));
        return table;
    }

  private:
    // The series with its order at this moment; raises 1004 when it was deleted.
    ChartSeries current() const {
        const std::vector<ChartSeries> all = series_of(owner());
        const auto found = std::ranges::find(all, series_.series, &ChartSeries::series);
        if (found == all.end()) throw Error(ErrorNumber::host_refused);
        return *found;
    }

    std::u16string name() { return current().name(); }
    std::u16string formula() { return current().formula(owner().sheet.book.host->translator()); }
    std::int32_t plot_order() { return current().order; }
    void remove() {
        const Sheet& sheet = owner().sheet;
        before_formatting(range_at(sheet, {}));
        series_.container->removeDataSeries(series_.series.reference());
        Ref<css::util::XModifiable>(sheet.book.document)->setModified(true);
    }

    ChartSeries series_;
};

class SeriesCollection final : public Collection<SeriesCollection, DrawnObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"SeriesCollection";
    static constexpr ErrorNumber outside = ErrorNumber::host_refused;

    using Collection::Collection;

    Object parent() const { return make_chart(owner()); }
    std::vector<ChartSeries> all() const { return series_of(owner()); }
    Object made(const ChartSeries& series) const { return make_object<SeriesObject>(owner(), series); }
    Object named(const std::u16string& name) const {
        return first_that([&](const ChartSeries& series) { return series.name() == name; });
    }
};

class ChartObject final : public OwnedObject<ChartObject, DrawnObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Chart";

    using OwnedObject::OwnedObject;

    Identity identity() const { return Identity(owner().shape); }
    Object parent() const { return make_chart_object(owner()); }
    static const MemberTable<ChartObject>& members() {
        static const MemberTable<ChartObject> table(rows_with({
            property<&ChartObject::name>(u"Name"),
            property<&ChartObject::series>(u"SeriesCollection", {u"Index"}),
        }));
        return table;
    }

  private:
    std::u16string name() { return owner().sheet.name() + u" " + owner().name(); }
    Variant series(const Variant& index) { return item_or_all(make_object<SeriesCollection>(owner()), index); }
};

class ChartFrame final : public EmbeddedObject<ChartFrame> {
  public:
    static constexpr std::u16string_view name_of_type = u"ChartObject";

    using EmbeddedObject::EmbeddedObject;

    static const MemberTable<ChartFrame>& members() {
        static const MemberTable<ChartFrame> table(rows_with({
            property<&ChartFrame::chart>(u"Chart"),
        }));
        return table;
    }

  private:
    Object chart() { return make_chart(owner()); }
};

class ChartObjects final : public EmbeddedObjects<ChartObjects, ChartFrame, Embedded::chart> {
  public:
    static constexpr std::u16string_view name_of_type = u"ChartObjects";

    using EmbeddedObjects::EmbeddedObjects;
};

Object make_chart(DrawnObject object) {
    return make_object<ChartObject>(std::move(object));
}

Object make_chart_object(DrawnObject object) {
    return make_object<ChartFrame>(std::move(object));
}

}  // namespace

Object make_chart_objects(Sheet sheet) {
    return make_object<ChartObjects>(std::move(sheet));
}

Object active_chart_of(const Book& book) {
    const auto selected = selected_object(book);
    if (!selected) return {};
    const std::vector<DrawnObject> charts = embedded_objects(selected->sheet, Embedded::chart);
    const bool is_chart = std::ranges::find(charts, selected->shape, &DrawnObject::shape) != charts.end();
    return is_chart ? make_chart(*selected) : Object();
}

}  // namespace qor::calc
