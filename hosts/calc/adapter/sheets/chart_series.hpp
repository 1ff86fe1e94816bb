#pragma once

#include <com/sun/star/chart2/XDataSeries.hpp>
#include <com/sun/star/chart2/XDataSeriesContainer.hpp>
#include <string>
#include <vector>

#include "hosts/calc/adapter/sheets/drawn_objects.hpp"

namespace qor::calc {

// One series of a chart and what holds it.
struct ChartSeries {
    Ref<css::chart2::XDataSeriesContainer> container;
    Ref<css::chart2::XDataSeries> series;
    Ref<css::uno::XInterface> categories;  // a labelled sequence of data; empty when the chart has none
    std::int32_t order;                    // from 1, over the whole chart

    // The text of its label, else "Series1" by its order.
    std::u16string name() const;
    // =SERIES(name,categories,values,order) with references as Excel writes them.
    std::u16string formula(const FormulaTranslator& translator) const;
};

// In the order in which the chart draws them.
std::vector<ChartSeries> series_of(const DrawnObject& chart);

}  // namespace qor::calc
