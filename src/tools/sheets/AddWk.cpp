#include "tools/sheets/AddWk.hpp"

#include "automation/member_names.hpp"
#include "tree/tree_nodes.hpp"

namespace qor {

void AddWk(ctlTree& tree, std::int32_t Number, bool AtBeginning) {
    if (Number < 1) return;
    const std::int32_t total = tree.CountCheckBoxes(2);
    std::int32_t done = 0;
    for (const TreeNode* node : tree.checked_nodes(2)) {
        attempt([&] {
            const Object worksheets = workbook_of(*node).get(names::Worksheets);
            const Variant place = AtBeginning ? Variant(1) : worksheets.get(names::Count);
            worksheets.call(names::Add,
                            named(AtBeginning ? names::Before : names::After, worksheets.get(names::Item, place)),
                            named(names::Count, Number));
        });
        tree.Progress(++done, total);
    }
}

}  // namespace qor
