#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "automation/member_table.hpp"

namespace qor::excel {

// The numbers by which a host knows the members of an object and their parameters.
class ServedNames {
  public:
    virtual ~ServedNames() = default;

    // From 1.
    virtual std::optional<std::int32_t> member_id(std::u16string_view text) const = 0;
    // From 0.
    virtual std::optional<std::int32_t> parameter_id(std::int32_t member, std::u16string_view text) const = 0;

    // Nothing for a number that is none of these.
    virtual std::optional<MemberName> member(std::int32_t id) const = 0;
    virtual std::optional<MemberName> parameter(std::int32_t member, std::int32_t id) const = 0;
    // A bit for each parameter that goes back to the caller.
    virtual std::uint32_t by_reference(std::int32_t member) const = 0;
};

// Those of a member table, in its order.
class TableNames final : public ServedNames {
  public:
    template <class Target>
    explicit TableNames(const MemberTable<Target>& table) {
        for (const Member<Target>& row : table.rows()) add(row.name, row.parameters, row.by_reference);
    }

    std::optional<std::int32_t> member_id(std::u16string_view text) const override;
    std::optional<std::int32_t> parameter_id(std::int32_t member, std::u16string_view text) const override;
    std::optional<MemberName> member(std::int32_t id) const override;
    std::optional<MemberName> parameter(std::int32_t member, std::int32_t id) const override;
    std::uint32_t by_reference(std::int32_t member) const override;

  private:
    struct Row {
        MemberName name;
        std::vector<MemberName> parameters;
        std::uint32_t by_reference;
    };

    void add(std::u16string_view name, const std::vector<std::u16string_view>& parameters, std::uint32_t by_reference);
    const Row* row(std::int32_t id) const noexcept;

    std::vector<Row> rows_;
    std::vector<std::int32_t> id_by_name_;  // by the name's own number; 0: no member
};

// Every name is a member and a parameter: the object itself says at the call what it does not have. Its names are those
// that this process has spelled.
const ServedNames& any_names();

}  // namespace qor::excel
