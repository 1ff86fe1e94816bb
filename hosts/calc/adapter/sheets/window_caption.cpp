#include "hosts/calc/adapter/sheets/window_caption.hpp"

#include <algorithm>

#include "platform/text.hpp"

namespace qor::calc {

std::u16string caption_of(const Book& book, const Controller& window) {
    if (auto given = book.host->window_list().caption(window)) return *std::move(given);
    const std::vector<Controller> all = book.controllers();
    if (all.size() < 2) return book.name();
    const auto place = std::ranges::find(all, window) - all.begin();
    return book.name() + u":" + from_utf8(std::to_string(place + 1));
}

}  // namespace qor::calc
