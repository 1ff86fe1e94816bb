#include "platform/ini_settings_store.hpp"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/locked_file.hpp"
#include "platform/posix/ini_text.hpp"
#include "platform/posix/key_file.hpp"
#include "platform/text.hpp"

namespace qor {

namespace {

constexpr std::size_t largest_file = std::size_t{16} << 20;  // bytes

enum class Change { refused, none, made };

// Without the empty parts; the root is empty.
std::u16string normalised(std::u16string_view section) {
    std::u16string result;
    while (!section.empty()) {
        const std::size_t end = std::min(section.find(u'\\'), section.size());
        if (end > 0 && !result.empty()) result += u'\\';
        result += section.substr(0, end);
        section.remove_prefix(std::min(end + 1, section.size()));
    }
    return result;
}

std::u16string section_of(const gchar* group) {
    return normalised(unescape_name(group));
}

std::string group_of(std::u16string_view section) {
    return section.empty() ? "\\" : escape_name(section);
}

std::u16string name_of(const gchar* key) {
    return std::string_view(key) == "*" ? std::u16string() : unescape_name(key);
}

std::string key_of(std::u16string_view name) {
    if (name.empty()) return "*";
    if (name == u"*") return "%2A";
    // GKeyFile takes a key of this spelling in the first group for a statement on the whole file.
    if (name == u"Encoding") return "%45ncoding";
    return escape_name(name);
}

template <typename Meaning>
std::vector<std::string> those_that_mean(std::u16string_view wanted, const Names& names, Meaning meaning) {
    std::vector<std::string> result;
    for (gchar** name = names.get(); name && *name; ++name)
        if (equal_ignoring_case(meaning(*name), wanted)) result.emplace_back(*name);
    return result;
}

struct Place {
    std::string group;
    std::string key;
};

// One open settings file. A user's own edits can spell a section or a name twice: the first is the one that counts.
class Settings {
  public:
    explicit Settings(KeyFile file) : file_(std::move(file)) {}

    std::optional<std::u16string> value(std::u16string_view section, std::u16string_view name) const {
        const auto found = places(section, name);
        if (found.empty()) return std::nullopt;
        return value(found.front());
    }

    Change set(std::u16string_view section, std::u16string_view name, std::u16string_view text) {
        const auto found = places(section, name);
        if (!found.empty() && value(found.front()) == text) return Change::none;
        const auto existing = groups(section);
        const Place place = !found.empty()      ? found.front()
                            : !existing.empty() ? Place{existing.front(), key_of(name)}
                                                : Place{group_of(normalised(section)), key_of(name)};
        g_key_file_set_value(file_.get(), place.group.c_str(), place.key.c_str(), escape_value(text).c_str());
        return Change::made;
    }

    Change remove(std::u16string_view section, std::u16string_view name) {
        const auto found = places(section, name);
        for (const auto& [group, key] : found) g_key_file_remove_key(file_.get(), group.c_str(), key.c_str(), nullptr);
        return found.empty() ? Change::refused : Change::made;
    }

    Change remove_section(std::u16string_view section) {
        const auto found = groups(section);
        if (found.empty() || has_nested(normalised(section))) return Change::refused;
        for (const auto& group : found) g_key_file_remove_group(file_.get(), group.c_str(), nullptr);
        return Change::made;
    }

    std::string bytes() const { return bytes_of(file_); }

  private:
    std::u16string value(const Place& place) const {
        const Text line(g_key_file_get_value(file_.get(), place.group.c_str(), place.key.c_str(), nullptr));
        return unescape_value(line.get());
    }

    std::vector<std::string> groups(std::u16string_view section) const {
        return those_that_mean(normalised(section), Names(g_key_file_get_groups(file_.get(), nullptr)), section_of);
    }

    std::vector<Place> places(std::u16string_view section, std::u16string_view name) const {
        std::vector<Place> result;
        for (const auto& group : groups(section)) {
            const Names keys(g_key_file_get_keys(file_.get(), group.c_str(), nullptr, nullptr));
            for (auto& key : those_that_mean(name, keys, name_of)) result.push_back({group, std::move(key)});
        }
        return result;
    }

    bool has_nested(std::u16string_view section) const {
        const Names all(g_key_file_get_groups(file_.get(), nullptr));
        for (gchar** group = all.get(); *group; ++group) {
            const std::u16string other = section_of(*group);
            if (section.empty() ? !other.empty()
                                : other.size() > section.size() && other[section.size()] == u'\\' &&
                                      equal_ignoring_case(other.substr(0, section.size()), section))
                return true;
        }
        return false;
    }

    KeyFile file_;
};

struct Loaded {
    Settings settings;
    bool damaged;
};

// Absent for what is there and cannot be read.
std::optional<Loaded> load(const std::filesystem::path& path) {
    const FileContent content = read_whole_file(path, largest_file);
    if (content.state == FileState::unreadable) return std::nullopt;
    KeyFile file = content.state == FileState::too_large ? nullptr : parse_key_file(content.bytes);
    const bool damaged = !file;
    if (damaged) file.reset(g_key_file_new());
    return Loaded{Settings(std::move(file)), damaged};
}

template <typename MakeChange>
bool update(const std::filesystem::path& path, MakeChange make_change) {
    auto locked = LockedFile::acquire(path);
    if (!locked) return false;
    auto loaded = load(locked->path());
    if (!loaded) return false;
    const Change change = make_change(loaded->settings);
    if (change != Change::made) return change == Change::none;
    const std::string bytes = loaded->settings.bytes();
    return bytes.size() <= largest_file && locked->replace(bytes, loaded->damaged ? LockedFile::Previous::kept_as_bad
                                                                                  : LockedFile::Previous::discarded);
}

}  // namespace

IniSettingsStore::IniSettingsStore(std::filesystem::path file) : file_(std::move(file)) {}

std::optional<std::u16string> IniSettingsStore::read(std::u16string_view section, std::u16string_view name) const {
    const auto loaded = load(file_);
    return loaded ? loaded->settings.value(section, name) : std::nullopt;
}

bool IniSettingsStore::write(std::u16string_view section, std::u16string_view name, std::u16string_view value) {
    const auto folder = file_.parent_path();
    if (!folder.empty() && g_mkdir_with_parents(folder.c_str(), 0700) != 0) return false;
    return update(file_, [&](Settings& settings) { return settings.set(section, name, value); });
}

bool IniSettingsStore::erase(std::u16string_view section, std::u16string_view name) {
    return update(file_, [&](Settings& settings) { return settings.remove(section, name); });
}

bool IniSettingsStore::erase_section(std::u16string_view section) {
    return update(file_, [&](Settings& settings) { return settings.remove_section(section); });
}

}  // namespace qor
