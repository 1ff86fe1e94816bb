#include "tools/sheets/SorWor.hpp"

#include <algorithm>
#include <vector>

#include "automation/member_names.hpp"
#include "runtime/conversion.hpp"
#include "services/CSort.hpp"
#include "tree/tree_nodes.hpp"

namespace qor {
namespace {

// Each at its sheet's place; a chart between the worksheets leaves the place of the last one behind the list.
std::vector<Variant> sorted_names(const Object& worksheets) {
    const std::vector<Variant> sheets = worksheets.items();
    std::vector<Variant> sheet_names(sheets.size());
    for (const Variant& sheet : sheets) {
        attempt([&] {
            const auto place = static_cast<std::size_t>(to_long(sheet.get(names::Index)) - 1);
            if (place < sheet_names.size()) sheet_names[place] = sheet.get(names::Name);
        });
    }
    CSort::QuickSort(sheet_names, 0, static_cast<std::int32_t>(sheet_names.size()) - 1);
    return sheet_names;
}

// Each comes to the front, so the last one ends first.
void bring_to_front(const Object& worksheets, const Variant& name) {
    attempt([&] {
        worksheets.get(names::Item, name).call(names::Move, named(names::Before, worksheets.get(names::Item, 1)));
    });
}

}  // namespace

void SorWor(ctlTree& tree, bool Ascending) {
    const std::int32_t total = tree.CountCheckBoxes(2);
    std::int32_t done = 0;
    for (const TreeNode* node : tree.checked_nodes(2)) {
        attempt([&] {
            const Object worksheets = workbook_of(*node).get(names::Worksheets);
            std::vector<Variant> sheet_names = sorted_names(worksheets);
            if (Ascending) std::ranges::reverse(sheet_names);
            for (const Variant& name : sheet_names) bring_to_front(worksheets, name);
        });
        tree.Progress(++done, total);
    }
}

}  // namespace qor
