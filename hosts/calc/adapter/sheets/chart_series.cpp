#include "hosts/calc/adapter/sheets/chart_series.hpp"

#include <algorithm>
#include <com/sun/star/chart2/XChartDocument.hpp>
#include <com/sun/star/chart2/XChartTypeContainer.hpp>
#include <com/sun/star/chart2/XCoordinateSystemContainer.hpp>
#include <com/sun/star/chart2/data/XDataSource.hpp>
#include <com/sun/star/chart2/data/XTextualDataSequence.hpp>

#include "hosts/calc/adapter/ground/number_text.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

namespace data = css::chart2::data;
using Sequence = Ref<data::XDataSequence>;
using Labelled = Ref<data::XLabeledDataSequence>;

std::u16string role_of(const Sequence& sequence) {
    return sequence ? from_uno(get_property<rtl::OUString>(sequence, "Role")) : std::u16string();
}

Labelled data_in_role(const Ref<css::chart2::XDataSeries>& series, std::u16string_view role) {
    for (const auto& one : Ref<data::XDataSource>(series)->getDataSequences()) {
        Labelled labelled(one);
        if (role_of(labelled->getValues()) == role) return labelled;
    }
    return {};
}

// The line, area or height of most charts; stock charts have a price.
Labelled main_data(const Ref<css::chart2::XDataSeries>& series) {
    for (const std::u16string_view role : {u"values-y", u"values-last", u"values-size"}) {
        if (Labelled found = data_in_role(series, role)) return found;
    }
    return {};
}

// The areas of a reference of Calc, which blanks separate outside of quotes.
std::vector<std::u16string> areas_in(std::u16string_view reference) {
    std::vector<std::u16string> areas(1);
    bool inside_quotes = false;
    for (const char16_t c : reference) {
        if (c == u'\'') inside_quotes = !inside_quotes;
        if (!inside_quotes && (c == u' ' || c == u';')) {
            areas.emplace_back();
        } else {
            areas.back() += c;
        }
    }
    std::erase(areas, std::u16string());
    return areas;
}

std::u16string constant_text(const css::uno::Any& value) {
    double number = 0;
    if (value >>= number) return number_text(number);
    rtl::OUString text;
    value >>= text;
    return in_quotes(view_of(text), u'"');
}

// A chart with data of its own has no cells behind them: its data come as an array.
std::u16string as_argument(const Sequence& sequence, const FormulaTranslator& translator) {
    if (!sequence) return {};
    const rtl::OUString source = sequence->getSourceRangeRepresentation();
    if (view_of(source).find(u'$') == std::u16string_view::npos) {
        std::u16string list;
        for (const css::uno::Any& value : sequence->getData())
            list += (list.empty() ? u"" : u",") + constant_text(value);
        return u"{" + list + u"}";
    }
    std::u16string text;
    const std::vector<std::u16string> areas = areas_in(view_of(source));
    for (const std::u16string& area : areas) {
        if (!text.empty()) text += u",";
        text += translator.to_excel(u"=" + area).substr(1);
    }
    return areas.size() > 1 ? u"(" + text + u")" : text;
}

}  // namespace

std::u16string ChartSeries::name() const {
    std::u16string text;
    if (const Labelled found = main_data(series); found) {
        if (const Ref<data::XTextualDataSequence> label(Ref{found->getLabel()}); label) {
            for (const rtl::OUString& part : label->getTextualData())
                text += (text.empty() ? u"" : u" ") + from_uno(part);
        }
    }
    return text.empty() ? u"Series" + from_utf8(std::to_string(order)) : text;
}

std::u16string ChartSeries::formula(const FormulaTranslator& translator) const {
    const Labelled main = main_data(series);
    if (!main) throw Error(ErrorNumber::host_refused);
    std::u16string label;
    if (const Sequence found(main->getLabel()); found) {
        const bool from_cells = view_of(found->getSourceRangeRepresentation()).find(u'$') != std::u16string_view::npos;
        label = from_cells ? as_argument(found, translator) : in_quotes(name(), u'"');
    }
    const Labelled own = data_in_role(series, u"values-x");
    const Labelled along = own ? own : Labelled(categories);
    const Sequence categories_data = along ? Sequence(along->getValues()) : Sequence();
    return u"=SERIES(" + label + u"," + as_argument(categories_data, translator) + u"," +
           as_argument(main->getValues(), translator) + u"," + from_utf8(std::to_string(order)) + u")";
}

std::vector<ChartSeries> series_of(const DrawnObject& chart) {
    namespace chart2 = css::chart2;
    const Ref<chart2::XChartDocument> document(get_property<Ref<css::uno::XInterface>>(chart.shape, "Model"));
    const Ref<chart2::XCoordinateSystemContainer> diagram(Ref{document->getFirstDiagram()});
    std::vector<ChartSeries> result;
    if (!diagram) return result;
    for (const auto& system : diagram->getCoordinateSystems()) {
        const Ref coordinates{system};
        Ref<css::uno::XInterface> categories;
        if (coordinates->getDimension() > 0) {
            const Ref axis{coordinates->getAxisByDimension(0, 0)};
            if (axis) categories = Ref<css::uno::XInterface>(Ref{axis->getScaleData().Categories});
        }
        for (const auto& type : Ref<chart2::XChartTypeContainer>(coordinates)->getChartTypes()) {
            const Ref<chart2::XDataSeriesContainer> container(Ref{type});
            for (const auto& series : container->getDataSeries()) {
                result.push_back({container, series, categories, static_cast<std::int32_t>(result.size()) + 1});
            }
        }
    }
    return result;
}

}  // namespace qor::calc
