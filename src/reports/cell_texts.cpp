#include "reports/cell_texts.hpp"

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

std::pair<std::int32_t, std::int32_t> place_of(const Variant& cell) {
    return {to_long(cell.get(names::Row)), to_long(cell.get(names::Column))};
}

}  // namespace

const CellTexts& CellNames::on(const std::u16string& workbook_name, const std::u16string& sheet_name) {
    auto workbook = workbooks_.find(workbook_name);
    if (workbook == workbooks_.end()) {
        std::map<std::u16string, CellTexts> sheets;
        for (const Variant& name : gExcel.get(names::Workbooks, workbook_name).get(names::Names).object().items()) {
            // A name that stands for a formula, for cells that are gone or for several of them is no cell's name.
            attempt([&] {
                const Variant cell = name.get(names::RefersToRange);
                if (to_long(cell.get(names::Count)) != 1) return;
                CellTexts& texts = sheets[to_text(cell.get(names::Worksheet).get(names::Name))];
                texts.emplace(place_of(cell), to_text(name.get(names::Name)));
            });
        }
        workbook = workbooks_.emplace(workbook_name, std::move(sheets)).first;
    }
    return workbook->second[sheet_name];
}

CellTexts comment_texts(const Object& sheet) {
    CellTexts texts;
    for (const Variant& comment : sheet.get(names::Comments).object().items()) {
        attempt([&] { texts.emplace(place_of(comment.get(names::Parent)), to_text(comment.call(names::Text))); });
    }
    return texts;
}

}  // namespace qor
