#include "hosts/calc/adapter/objects/application/application_dialogs.hpp"

#include <filesystem>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/ground/file_paths.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "platform/file_address.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

std::u16string_view without_spaces(std::u16string_view text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == std::u16string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::vector<FileDialog::Kind> kinds_in(std::u16string_view filter) {
    std::vector<FileDialog::Kind> kinds;
    while (!filter.empty()) {
        const std::size_t comma = filter.find(u',');
        if (comma == std::u16string_view::npos) {
            throw Error(ErrorNumber::host_refused, {}, u"A file filter is a list of pairs.");
        }
        const std::u16string_view label = filter.substr(0, comma);
        filter.remove_prefix(comma + 1);
        const std::size_t end = std::min(filter.find(u','), filter.size());
        kinds.push_back({std::u16string(without_spaces(label)), std::u16string(without_spaces(filter.substr(0, end)))});
        filter.remove_prefix(std::min(end + 1, filter.size()));
    }
    return kinds;
}

// What stands behind the asterisk of the first pattern: ".xls". Empty where that is a pattern, too.
std::u16string_view extension_in(std::u16string_view patterns) {
    const std::u16string_view first = patterns.substr(0, patterns.find(u';'));
    if (!first.starts_with(u"*.") || first.find_first_of(u"*?", 1) != std::u16string_view::npos) return {};
    return first.substr(1);
}

bool is_web_address(std::u16string_view page) {
    const std::u16string address = to_lower(page);
    return address.starts_with(u"https://") || address.starts_with(u"http://");
}

}  // namespace

Variant get_save_as_filename(Host& host, std::u16string_view initial, std::u16string_view filter,
                             std::int32_t filter_index, const std::u16string& title) {
    FileDialog dialog{.purpose = FileDialog::Purpose::save,
                      .title = title,
                      .kinds = kinds_in(filter),
                      .folder = {},
                      .file_name = std::u16string(initial)};
    const auto wanted = static_cast<std::size_t>(std::max(filter_index, 1)) - 1;
    dialog.chosen_kind = wanted < dialog.kinds.size() ? wanted : 0;
    auto path = host.user().file_to_save(dialog);
    if (!path) return false;
    if (!dialog.kinds.empty() && file_name_of(*path).find(u'.') == std::u16string::npos) {
        path->append(extension_in(dialog.kinds.at(dialog.chosen_kind).pattern));
    }
    return *std::move(path);
}

Variant input_box(const HostPointer& host, const std::u16string& prompt, const std::u16string& title,
                  const Variant& proposed, std::int32_t type) {
    if (type != numbers::input_type::range)
        throw Error(ErrorNumber::host_refused, {}, u"InputBox asks for a range only.");
    RangeQuestion question{prompt, title, {}};
    if (proposed.is(Variant::Kind::object)) {
        question.proposed = to_text(proposed.get(names::Address));
    } else if (!proposed.is_missing()) {
        question.proposed = to_text(proposed);
    }
    const auto range = host->user().range(question);
    if (!range) return false;
    return make_range(range_named(active_book(host).active_sheet(), *range));
}

void show_help(Host& host, const std::u16string& page, std::int32_t place) {
    const auto refuse = [&] { refuse_file(page, u"cannot be opened as help."); };
    std::u16string address = page;
    if (!is_web_address(page)) {
        const std::u16string path = full_path(path_of_address(page));
        std::error_code ignored;
        if (!std::filesystem::is_regular_file(to_utf8(path), ignored)) refuse();
        address = address_of_path(path);
    }
    if (place != 0) address += u"#" + from_utf8(std::to_string(place));
    if (!host.user().show_page(address)) refuse();
}

}  // namespace qor::calc
