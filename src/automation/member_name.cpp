#include "automation/member_name.hpp"

#include <deque>
#include <mutex>
#include <string>
#include <unordered_map>

#include "automation/member_names.hpp"

namespace qor {
namespace {

// Members' names are identifiers of the object models, which are plain ASCII.
std::u16string folded(std::u16string_view text) {
    std::u16string result(text);
    for (char16_t& c : result) {
        if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c + (u'a' - u'A'));
    }
    return result;
}

struct Names {
    std::mutex mutex;
    std::unordered_map<std::u16string, std::size_t> ids_by_folded_text;
    std::deque<std::u16string> spellings;  // by number; none ever moves

    Names() {
        for (const MemberName& name : names::all) {
            ids_by_folded_text.emplace(folded(name.text()), spellings.size());
            spellings.emplace_back(name.text());
        }
    }
};

Names& all_names() {
    static Names names;
    return names;
}

}  // namespace

MemberName::MemberName(std::u16string_view text) {
    auto& [mutex, ids, spellings] = all_names();
    const std::scoped_lock lock(mutex);
    const auto [place, is_new] = ids.try_emplace(folded(text), spellings.size());
    if (is_new) spellings.emplace_back(text);
    id_ = place->second;
    text_ = spellings[id_];
}

std::optional<MemberName> MemberName::known(std::u16string_view text) {
    auto& [mutex, ids, spellings] = all_names();
    const std::scoped_lock lock(mutex);
    const auto found = ids.find(folded(text));
    if (found == ids.end()) return std::nullopt;
    return MemberName(spellings[found->second], found->second);
}

std::optional<MemberName> MemberName::numbered(std::size_t id) {
    auto& [mutex, ids, spellings] = all_names();
    const std::scoped_lock lock(mutex);
    if (id >= spellings.size()) return std::nullopt;
    return MemberName(spellings[id], id);
}

}  // namespace qor
