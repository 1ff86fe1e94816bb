#include "hosts/excel/com/served_names.hpp"

#include <algorithm>

namespace qor::excel {

void TableNames::add(std::u16string_view name, const std::vector<std::u16string_view>& parameters,
                     std::uint32_t by_reference) {
    Row& row = rows_.emplace_back(Row{MemberName(name), {}, by_reference});
    for (const std::u16string_view parameter : parameters) row.parameters.emplace_back(parameter);
    if (row.name.id() >= id_by_name_.size()) id_by_name_.resize(row.name.id() + 1);
    id_by_name_[row.name.id()] = static_cast<std::int32_t>(rows_.size());
}

const TableNames::Row* TableNames::row(std::int32_t id) const noexcept {
    if (id < 1 || static_cast<std::size_t>(id) > rows_.size()) return nullptr;
    return &rows_[static_cast<std::size_t>(id) - 1];
}

std::optional<std::int32_t> TableNames::member_id(std::u16string_view text) const {
    const std::optional<MemberName> name = MemberName::known(text);
    if (!name || name->id() >= id_by_name_.size() || id_by_name_[name->id()] == 0) return std::nullopt;
    return id_by_name_[name->id()];
}

std::optional<std::int32_t> TableNames::parameter_id(std::int32_t member, std::u16string_view text) const {
    const std::optional<MemberName> name = MemberName::known(text);
    const Row* const found = row(member);
    if (!name || !found) return std::nullopt;
    const auto parameter = std::ranges::find(found->parameters, *name);
    if (parameter == found->parameters.end()) return std::nullopt;
    return static_cast<std::int32_t>(parameter - found->parameters.begin());
}

std::optional<MemberName> TableNames::member(std::int32_t id) const {
    const Row* const found = row(id);
    return found ? std::optional(found->name) : std::nullopt;
}

std::optional<MemberName> TableNames::parameter(std::int32_t member, std::int32_t id) const {
    const Row* const found = row(member);
    if (!found || id < 0 || static_cast<std::size_t>(id) >= found->parameters.size()) return std::nullopt;
    return found->parameters[static_cast<std::size_t>(id)];
}

std::uint32_t TableNames::by_reference(std::int32_t member) const {
    const Row* const found = row(member);
    return found ? found->by_reference : 0;
}

namespace {

class AnyNames final : public ServedNames {
  public:
    std::optional<std::int32_t> member_id(std::u16string_view text) const override {
        const std::optional<MemberName> name = MemberName::known(text);
        return name ? std::optional(static_cast<std::int32_t>(name->id()) + 1) : std::nullopt;
    }
    std::optional<std::int32_t> parameter_id(std::int32_t, std::u16string_view text) const override {
        const std::optional<MemberName> name = MemberName::known(text);
        return name ? std::optional(static_cast<std::int32_t>(name->id())) : std::nullopt;
    }
    std::optional<MemberName> member(std::int32_t id) const override {
        return MemberName::numbered(static_cast<std::size_t>(id) - 1);
    }
    std::optional<MemberName> parameter(std::int32_t, std::int32_t id) const override {
        return MemberName::numbered(static_cast<std::size_t>(id));
    }
    std::uint32_t by_reference(std::int32_t) const override { return 0; }
};

}  // namespace

const ServedNames& any_names() {
    static const AnyNames names;
    return names;
}

}  // namespace qor::excel
