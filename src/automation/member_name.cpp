#include "automation/member_name.hpp"

#include <mutex>
#include <string>
#include <unordered_map>

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

struct Interned {
    std::size_t id;
    std::u16string spelling;
};

}  // namespace

MemberName::MemberName(std::u16string_view text) {
    static std::mutex mutex;
    static std::unordered_map<std::u16string, Interned> names;
    const std::scoped_lock lock(mutex);
    const auto& [key, interned] = *names.try_emplace(folded(text), Interned{names.size(), std::u16string(text)}).first;
    text_ = interned.spelling;
    id_ = interned.id;
}

}  // namespace qor
