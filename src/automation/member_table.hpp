#pragma once

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "automation/variant.hpp"

namespace qor {

// How a member's failure meets its caller.
enum class OnError : std::uint8_t {
    leave,  // as it was raised: the objects of a host
    raise,  // raised on, with the member's name and a carriage return in front of the source
    pass,   // passed over: the member answers what it starts with
};

// The accesses that a row answers to, as bits of Access. Hosts ask for methods as properties and the other way round.
namespace accesses {
inline constexpr unsigned callable = static_cast<unsigned>(Access::call) | static_cast<unsigned>(Access::get);
inline constexpr unsigned readable_and_writable = callable | static_cast<unsigned>(Access::put);
}  // namespace accesses

// One member of an object: everything there is to know about it stands in its row.
template <class Target>
struct Member {
    std::u16string_view name;
    unsigned accesses;                            // see above
    std::vector<std::u16string_view> parameters;  // for named arguments; a put's value is not among them
    // Gets the positional arguments, named ones already in their places, trailing ones possibly absent.
    std::function<Variant(Target&, Access, std::span<Variant>)> invoke;
    OnError on_error = OnError::leave;
    Variant result_at_failure = {};  // the answer where a failure is passed over
    std::uint32_t by_reference = 0;  // a bit for each parameter that goes back to the caller, the first one lowest
};

// An object's members by name. Raises 438 for a name that is not there or not in that access, 450 for too many
// arguments and 448 for an unknown named one.
template <class Target>
class MemberTable {
  public:
    explicit MemberTable(std::vector<Member<Target>> rows) : rows_(std::move(rows)) {
        for (std::size_t place = 0; place < rows_.size(); ++place) {
            const std::size_t id = MemberName(rows_[place].name).id();
            if (id >= place_by_id_.size()) place_by_id_.resize(id + 1, none);
            place_by_id_[id] = place;
        }
    }

    const std::vector<Member<Target>>& rows() const noexcept { return rows_; }

    const Member<Target>* find(const MemberName& name) const noexcept {
        if (name.id() >= place_by_id_.size() || place_by_id_[name.id()] == none) return nullptr;
        return &rows_[place_by_id_[name.id()]];
    }

    Variant invoke(Target& target, const MemberName& name, Access access, Arguments arguments) const {
        const Member<Target>* member = find(name);
        if (!member || !(member->accesses & static_cast<unsigned>(access))) {
            throw Error(ErrorNumber::no_such_member, std::u16string(target.type_name()));
        }
        switch (member->on_error) {
            case OnError::pass: {
                Variant result = member->result_at_failure;
                attempt([&] { result = invoke_row(target, *member, access, arguments); });
                return result;
            }
            case OnError::raise:
                return with_trace(member->name, [&] { return invoke_row(target, *member, access, arguments); });
            case OnError::leave:
                break;
        }
        return invoke_row(target, *member, access, arguments);
    }

  private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    static Variant invoke_row(Target& target, const Member<Target>& member, Access access, Arguments arguments) {
        const std::size_t value_count = access == Access::put ? 1 : 0;
        if (arguments.positional.size() > member.parameters.size() + value_count) {
            throw Error(ErrorNumber::wrong_argument_count);
        }
        if (arguments.named.empty()) return member.invoke(target, access, arguments.positional);
        std::vector<Variant> places(arguments.positional.begin(), arguments.positional.end());
        for (const NamedArgument& argument : arguments.named) {
            const std::size_t place = place_of(member, argument.name);
            if (place >= places.size()) places.resize(place + 1, Missing{});
            places[place] = argument.value;
        }
        Variant result = member.invoke(target, access, places);
        // What a parameter by reference holds now goes back to where it came from.
        for (NamedArgument& argument : arguments.named) argument.value = places[place_of(member, argument.name)];
        std::copy_n(places.begin(), arguments.positional.size(), arguments.positional.begin());
        return result;
    }

    static std::size_t place_of(const Member<Target>& member, const MemberName& name) {
        const auto parameter =
            std::ranges::find(member.parameters, name, [](std::u16string_view text) { return MemberName(text); });
        if (parameter == member.parameters.end()) throw Error(ErrorNumber::named_argument_not_found);
        return static_cast<std::size_t>(parameter - member.parameters.begin());
    }

    std::vector<Member<Target>> rows_;
    std::vector<std::size_t> place_by_id_;
};

}  // namespace qor
