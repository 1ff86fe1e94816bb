#pragma once

#include <map>
#include <utility>

#include "automation/member_names.hpp"
#include "tests/fakes/fake_object.hpp"

namespace qor::fakes {

// The cells of a worksheet that is written into: each property of each cell as it was last put, such as u"Value",
// u"Font.Bold" or u"Borders9.Weight".
using Grid = std::map<std::tuple<std::int32_t, std::int32_t, std::u16string>, Variant>;

// Neighbouring cells of one row, or a part of their format. Types in the log: u"Cell" for one, u"Cells" for several.
class FakeCells final : public Dispatch {
  public:
    FakeCells(HostLog& log, Grid& grid, std::int32_t row, std::int32_t first, std::int32_t last,
              std::u16string part = {})
        : log_(log), grid_(grid), row_(row), first_(first), last_(last), part_(std::move(part)) {}

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        const std::u16string property = part_ + std::u16string(name.text());
        log_.enter(type_name(), property, access);
        if (access != Access::put) {
            REQUIRE((name == names::Font || name == names::Borders));
            if (name == names::Borders) REQUIRE(*arguments.positional[0].get_if<std::int32_t>() == 9);
            const std::u16string part = name == names::Font ? u"Font." : u"Borders9.";
            return make_object<FakeCells>(log_, grid_, row_, first_, last_, part);
        }
        const Variant& value = arguments.positional.back();
        for (std::int32_t column = first_; column <= last_; ++column) {
            const auto* array = value.array();
            grid_[{row_, column, property}] = array ? array->at(0, static_cast<std::size_t>(column - first_)) : value;
        }
        return {};
    }
    std::u16string_view type_name() const noexcept override { return first_ == last_ ? u"Cell" : u"Cells"; }

    std::int32_t first() const { return first_; }
    std::int32_t last() const { return last_; }
    std::int32_t row() const { return row_; }

  private:
    HostLog& log_;
    Grid& grid_;
    std::int32_t row_;
    std::int32_t first_;
    std::int32_t last_;
    std::u16string part_;
};

inline Object make_grid_sheet(HostLog& log, Grid& grid) {
    return make_fake(log, u"Worksheet", [&](FakeObject& fake) {
        fake.answers(names::Cells, [&log, &grid](Access, std::span<Variant> at) -> Variant {
            const std::int32_t column = *at[1].get_if<std::int32_t>();
            return make_object<FakeCells>(log, grid, *at[0].get_if<std::int32_t>(), column, column);
        });
        fake.answers(names::Range, [&log, &grid](Access, std::span<Variant> corners) -> Variant {
            const auto& first = dynamic_cast<FakeCells&>(*corners[0].object().target());
            const auto& last = dynamic_cast<FakeCells&>(*corners[1].object().target());
            return make_object<FakeCells>(log, grid, first.row(), first.first(), last.last());
        });
    });
}

}  // namespace qor::fakes
