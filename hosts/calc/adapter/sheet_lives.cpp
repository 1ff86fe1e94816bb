#include "hosts/calc/adapter/sheet_lives.hpp"

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>

namespace qor::calc {

std::shared_ptr<const SheetLife> SheetLives::hold(const Document& document,
                                                  const Ref<css::sheet::XSpreadsheet>& sheet) {
    if (lives_.size() >= cleaning_at_) {
        std::erase_if(lives_, [](const std::weak_ptr<SheetLife>& life) { return life.expired(); });
        cleaning_at_ = 1024 + 2 * lives_.size();
    }
    auto life = std::make_shared<SheetLife>(document, sheet);
    lives_.push_back(life);
    return life;
}

std::vector<std::shared_ptr<SheetLife>> SheetLives::holders_of(const Document& document, std::int32_t index) {
    std::vector<std::shared_ptr<SheetLife>> result;
    for (const auto& held : lives_) {
        auto life = held.lock();
        if (!life || life->gone || !(life->document == document)) continue;
        const Ref<css::sheet::XCellRangeAddressable> place(life->sheet);
        if (place->getRangeAddress().Sheet == index) result.push_back(std::move(life));
    }
    return result;
}

void SheetLives::end_all(const Document& document) {
    for (const auto& held : lives_) {
        const auto life = held.lock();
        if (life && life->document == document) life->gone = true;
    }
}

}  // namespace qor::calc
