#include <algorithm>
#include <com/sun/star/util/XModifiable.hpp>

#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/adapter/sheets/chart_series.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

Object make_chart(DrawnObject object);
Object make_chart_object(DrawnObject object);

class SeriesObject final : public CalcObject<SeriesObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Series";

    SeriesObject(DrawnObject chart, ChartSeries series) : chart_(std::move(chart)), series_(std::move(series)) {}

    Identity identity() const { return Identity(series_.series.reference(), css::uno::UNO_QUERY); }
    void require_alive() const {
        chart_.require_alive();
        current();
    }
    static const MemberTable<SeriesObject>& members() {
        using S = SeriesObject;
        static const MemberTable<S> table({
            property<&S::application>(u"Application"),
            method<&S::remove>(u"Delete"),
            property<&S::formula>(u"Formula"),
            property<&S::name>(u"Name"),
            property<&S::parent>(u"Parent"),
            property<&S::plot_order>(u"PlotOrder"),
        });
        return table;
    }

  private:
    // The series with its order at this moment; raises 1004 when it was deleted.
    ChartSeries current() const {
        const std::vector<ChartSeries> all = series_of(chart_);
        const auto found = std::ranges::find(all, series_.series, &ChartSeries::series);
        if (found == all.end()) throw Error(ErrorNumber::host_refused);
        return *found;
    }

    std::u16string name() { return current().name(); }
    std::u16string formula() { return current().formula(chart_.sheet.book.host->translator()); }
    std::int32_t plot_order() { return current().order; }
    void remove() {
        before_formatting(range_at(chart_.sheet, {}));
        series_.container->removeDataSeries(series_.series.reference());
        Ref<css::util::XModifiable>(chart_.sheet.book.document)->setModified(true);
    }
    Object parent() { return make_chart(chart_); }
    Object application() { return make_application(chart_.sheet.book.host); }

    DrawnObject chart_;
    ChartSeries series_;
};

class SeriesCollection final : public CalcObject<SeriesCollection> {
  public:
    static constexpr std::u16string_view name_of_type = u"SeriesCollection";

    explicit SeriesCollection(DrawnObject chart) : chart_(std::move(chart)) {}

    void require_alive() const { chart_.require_alive(); }
    static const MemberTable<SeriesCollection>& members() {
        using S = SeriesCollection;
        static const MemberTable<S> table({
            property<&S::application>(u"Application"),
            property<&S::count>(u"Count"),
            property<&S::item>(u"Item", {u"Index"}),
            property<&S::parent>(u"Parent"),
        });
        return table;
    }

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const ChartSeries& series : series_of(chart_)) {
            result.emplace_back(make_object<SeriesObject>(chart_, series));
        }
        return result;
    }

  private:
    std::int32_t count() { return static_cast<std::int32_t>(series_of(chart_).size()); }
    Object item(const Variant& index) {
        const std::vector<ChartSeries> all = series_of(chart_);
        const auto* name = index.get_if<std::u16string>();
        const std::int32_t place = name ? 0 : to_long(index);
        const auto found = std::ranges::find_if(
            all, [&](const ChartSeries& series) { return name ? series.name() == *name : series.order == place; });
        if (found == all.end()) throw Error(ErrorNumber::host_refused);
        return make_object<SeriesObject>(chart_, *found);
    }
    Object parent() { return make_chart(chart_); }
    Object application() { return make_application(chart_.sheet.book.host); }

    DrawnObject chart_;
};

class ChartObject final : public CalcObject<ChartObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Chart";

    explicit ChartObject(DrawnObject object) : object_(std::move(object)) {}

    Identity identity() const { return Identity(object_.shape.reference(), css::uno::UNO_QUERY); }
    void require_alive() const { object_.require_alive(); }
    static const MemberTable<ChartObject>& members() {
        using C = ChartObject;
        static const MemberTable<C> table({
            property<&C::application>(u"Application"),
            property<&C::name>(u"Name"),
            property<&C::parent>(u"Parent"),
            property<&C::series>(u"SeriesCollection", {u"Index"}),
        });
        return table;
    }

  private:
    std::u16string name() { return object_.sheet.name() + u" " + object_.name(); }
    Variant series(const Variant& index) {
        const Object all = make_object<SeriesCollection>(object_);
        return index.is_missing() ? Variant(all) : all.get(names::Item, index);
    }
    Object parent() { return make_chart_object(object_); }
    Object application() { return make_application(object_.sheet.book.host); }

    DrawnObject object_;
};

class ChartFrame final : public CalcObject<ChartFrame> {
  public:
    static constexpr std::u16string_view name_of_type = u"ChartObject";

    explicit ChartFrame(DrawnObject object) : object_(std::move(object)) {}

    Identity identity() const { return Identity(object_.shape.reference(), css::uno::UNO_QUERY); }
    void require_alive() const { object_.require_alive(); }
    static const MemberTable<ChartFrame>& members() {
        using C = ChartFrame;
        static const MemberTable<C> table({
            method<&C::select>(u"Activate"),
            property<&C::application>(u"Application"),
            property<&C::chart>(u"Chart"),
            method<&C::remove>(u"Delete"),
            property<&C::name, &C::set_name>(u"Name"),
            property<&C::parent>(u"Parent"),
            method<&C::select>(u"Select"),
        });
        return table;
    }

  private:
    void select() { object_.select(); }
    void remove() { object_.remove(); }
    Object chart() { return make_chart(object_); }
    std::u16string name() { return object_.name(); }
    void set_name(const std::u16string& name) { object_.set_name(name); }
    Object parent() { return make_worksheet(object_.sheet); }
    Object application() { return make_application(object_.sheet.book.host); }

    DrawnObject object_;
};

class ChartObjects final : public CalcObject<ChartObjects> {
  public:
    static constexpr std::u16string_view name_of_type = u"ChartObjects";

    explicit ChartObjects(Sheet sheet) : sheet_(std::move(sheet)) {}

    void require_alive() const { sheet_.require_alive(); }
    static const MemberTable<ChartObjects>& members() {
        using C = ChartObjects;
        static const MemberTable<C> table({
            property<&C::application>(u"Application"),
            property<&C::count>(u"Count"),
            property<&C::item>(u"Item", {u"Index"}),
            property<&C::parent>(u"Parent"),
        });
        return table;
    }

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const DrawnObject& object : all()) result.emplace_back(make_chart_object(object));
        return result;
    }

  private:
    std::vector<DrawnObject> all() const { return embedded_objects(sheet_, Embedded::chart); }
    std::int32_t count() { return static_cast<std::int32_t>(all().size()); }
    Object item(const Variant& index) { return make_chart_object(drawn_object(all(), index)); }
    Object parent() { return make_worksheet(sheet_); }
    Object application() { return make_application(sheet_.book.host); }

    Sheet sheet_;
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
