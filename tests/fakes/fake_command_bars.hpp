#pragma once

#include <algorithm>
#include <list>
#include <memory>

#include "automation/member_names.hpp"
#include "runtime/bind.hpp"
#include "tests/fakes/fake_object.hpp"

// Menus and toolbars of a host that writes down what is put on them.
namespace qor::fakes {

struct FakeControl {
    std::int32_t type = 1;
    std::int32_t id = 1;
    std::map<std::u16string, Variant> properties;  // as they were put last
    std::vector<std::u16string> steps;             // what was done to it, in order, such as u"Caption" or u"PasteFace"
    std::u16string face;                           // what was pasted
    std::vector<std::u16string> entries;           // of a drop-down
    std::list<FakeControl> controls;               // of a popup

    std::u16string text(const std::u16string& property) const {
        const auto place = properties.find(property);
        return place == properties.end() ? u"" : to_text(place->second);
    }
};

struct FakeBar {
    std::u16string name;
    std::map<std::u16string, Variant> properties;
    std::list<FakeControl> controls;
    bool temporary = false;
};

struct FakeBars {
    HostLog& log;
    std::list<FakeBar> bars = {};
    std::u16string clipboard = {};  // the face that was put there last

    FakeBar* find(std::u16string_view name) {
        const auto place = std::ranges::find(bars, name, &FakeBar::name);
        return place == bars.end() ? nullptr : &*place;
    }
};

Object make_control(FakeBars& bars, std::list<FakeControl>& among, FakeControl& control);

class FakeControls final : public Dispatch {
  public:
    FakeControls(FakeBars& bars, std::list<FakeControl>& controls) : bars_(bars), controls_(controls) {}

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        bars_.log.enter(type_name(), name.text(), access);
        if (!(name == names::Add)) throw Error(ErrorNumber::no_such_member);
        auto place = controls_.end();
        FakeControl control;
        for (const NamedArgument& argument : arguments.named) {
            if (argument.name == names::Type) control.type = to_long(argument.value);
            if (argument.name == names::Before) place = std::next(controls_.begin(), to_long(argument.value) - 1);
            if (argument.name == names::Temporary) control.properties[u"Temporary"] = argument.value;
        }
        return make_control(bars_, controls_, *controls_.insert(place, std::move(control)));
    }
    std::u16string_view type_name() const noexcept override { return u"CommandBarControls"; }

  private:
    FakeBars& bars_;
    std::list<FakeControl>& controls_;
};

class FakeControlObject final : public Dispatch {
  public:
    FakeControlObject(FakeBars& bars, std::list<FakeControl>& among, FakeControl& control)
        : bars_(bars), among_(among), control_(control) {}

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        bars_.log.enter(type_name(), name.text(), access);
        const std::u16string member(name.text());
        if (access == Access::put) {
            control_.steps.push_back(member);
            control_.properties[member] = arguments.positional.back();
            return {};
        }
        if (name == names::Controls) return make_object<FakeControls>(bars_, control_.controls);
        if (name == names::Index) return static_cast<std::int32_t>(place() + 1);
        if (name == names::ListCount) return static_cast<std::int32_t>(control_.entries.size());
        if (access == Access::call) return call(name, arguments);
        return control_.properties[member];
    }
    std::u16string_view type_name() const noexcept override { return u"CommandBarControl"; }

  private:
    Variant call(const MemberName& name, Arguments arguments) {
        control_.steps.emplace_back(name.text());
        if (name == names::PasteFace) {
            control_.face = bars_.clipboard;
        } else if (name == names::AddItem) {
            control_.entries.push_back(to_text(arguments.positional[0]));
        } else if (name == names::Clear) {
            control_.entries.clear();
        } else if (name == names::Delete) {
            among_.erase(std::next(among_.begin(), place()));
        }
        return {};
    }
    std::ptrdiff_t place() const {
        const auto at = std::ranges::find_if(among_, [&](const FakeControl& other) { return &other == &control_; });
        return std::distance(among_.begin(), at);
    }

    FakeBars& bars_;
    std::list<FakeControl>& among_;
    FakeControl& control_;
};

inline Object make_control(FakeBars& bars, std::list<FakeControl>& among, FakeControl& control) {
    return make_object<FakeControlObject>(bars, among, control);
}

class FakeBarObject final : public Dispatch {
  public:
    FakeBarObject(FakeBars& bars, FakeBar& bar) : bars_(bars), bar_(bar) {}

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        bars_.log.enter(type_name(), name.text(), access);
        const std::u16string member(name.text());
        if (access == Access::put) return bar_.properties[member] = arguments.positional.back();
        if (name == names::Name) return bar_.name;
        if (name == names::Controls) return make_object<FakeControls>(bars_, bar_.controls);
        if (name == names::FindControl) return find(arguments);
        if (name == names::Delete) {
            bars_.bars.remove_if([&](const FakeBar& other) { return &other == &bar_; });
            return {};
        }
        return bar_.properties[member];
    }
    std::u16string_view type_name() const noexcept override { return u"CommandBar"; }

  private:
    Variant find(Arguments arguments) {
        const auto fits = [&](const FakeControl& control) {
            return std::ranges::all_of(arguments.named, [&](const NamedArgument& argument) {
                if (argument.name == names::Type) return control.type == to_long(argument.value);
                if (argument.name == names::Id) return control.id == to_long(argument.value);
                if (argument.name == names::Visible)
                    return (control.text(u"Visible") != u"False") == to_boolean(argument.value);
                return argument.name == names::Tag && control.text(u"Tag") == to_text(argument.value);
            });
        };
        const auto place = std::ranges::find_if(bar_.controls, fits);
        return place == bar_.controls.end() ? Variant(Object()) : Variant(make_control(bars_, bar_.controls, *place));
    }

    FakeBars& bars_;
    FakeBar& bar_;
};

// Application.CommandBars with an argument or none.
inline Object make_command_bars(FakeBars& bars) {
    return make_fake(bars.log, u"CommandBars", [&bars](FakeObject& fake) {
        std::vector<Object> all;
        for (FakeBar& bar : bars.bars) all.push_back(make_object<FakeBarObject>(bars, bar));
        fake.contains(all);
        fake.answers(names::Add, [&bars](Access, Values arguments) -> Variant {
            FakeBar& bar = bars.bars.emplace_back();
            bar.name = to_text(arguments[0]);
            bar.temporary = to_boolean(arguments[1]);
            return make_object<FakeBarObject>(bars, bar);
        });
    });
}

inline Variant command_bars_of(FakeBars& bars, Values index) {
    if (index.empty()) return make_command_bars(bars);
    if (const auto* number = index[0].get_if<std::int32_t>())
        return make_object<FakeBarObject>(bars, *std::next(bars.bars.begin(), *number - 1));
    FakeBar* bar = bars.find(to_text(index[0]));
    if (!bar) throw Error(ErrorNumber::invalid_call);
    return make_object<FakeBarObject>(bars, *bar);
}

}  // namespace qor::fakes
