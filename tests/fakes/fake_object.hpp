#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "automation/variant.hpp"

// Objects that answer as a host would, for what a real host can't be brought to: refusing one certain call.
namespace qor::fakes {

using Lines = std::vector<std::u16string>;
using Values = std::span<Variant>;

// What all fake objects of one host share.
struct HostLog {
    std::size_t calls = 0;
    std::function<bool(std::u16string_view type, std::u16string_view member, Access access)> refuses;  // raises 1004

    void enter(std::u16string_view type, std::u16string_view member, Access access) {
        ++calls;
        if (refuses && refuses(type, member, access)) throw Error(ErrorNumber::host_refused);
    }
};

class FakeObject final : public Dispatch {
  public:
    // What a member does. Its arguments are the positional ones and, behind them, those with names.
    using Answer = std::function<Variant(Access, Values)>;
    using Fill = std::function<void(FakeObject&)>;

    FakeObject(HostLog& log, std::u16string type) : log_(log), type_(std::move(type)) {}

    FakeObject& answers(const MemberName& name, Answer answer) {
        members_[name.id()] = std::move(answer);
        return *this;
    }
    // A property that keeps what was last put into it.
    FakeObject& holds(const MemberName& name, Variant value) {
        return answers(name, [held = std::move(value)](Access access, Values arguments) mutable -> Variant {
            if (access == Access::put) held = arguments.back();
            return held;
        });
    }
    FakeObject& contains(std::vector<Object> elements) {
        elements_.assign(elements.begin(), elements.end());
        return *this;
    }

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        log_.enter(type_, name.text(), access);
        const auto member = members_.find(name.id());
        if (member == members_.end()) throw Error(ErrorNumber::no_such_member);
        std::vector<Variant> all(arguments.positional.begin(), arguments.positional.end());
        for (const NamedArgument& argument : arguments.named) all.push_back(argument.value);
        return member->second(access, all);
    }
    std::vector<Variant> items() override {
        log_.enter(type_, u"items", Access::get);
        return elements_;
    }
    std::u16string_view type_name() const noexcept override { return type_; }

  private:
    HostLog& log_;
    std::u16string type_;
    std::map<std::size_t, Answer> members_;
    std::vector<Variant> elements_;
};

inline Object make_fake(HostLog& log, std::u16string type, const FakeObject::Fill& fill) {
    auto* fake = new FakeObject(log, std::move(type));
    Object object(fake);
    fill(*fake);
    return object;
}

inline Object make_collection(HostLog& log, std::u16string type, std::vector<Object> elements) {
    return make_fake(log, std::move(type), [&](FakeObject& fake) { fake.contains(std::move(elements)); });
}

}  // namespace qor::fakes
