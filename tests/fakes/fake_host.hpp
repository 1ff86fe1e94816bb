#pragma once

#include <utility>

#include "automation/member_names.hpp"
#include "runtime/conversion.hpp"
#include "tests/fakes/fake_object.hpp"
#include "tests/fakes/in_place.hpp"

namespace qor::fakes {

// All that the add-in stands on in a test, put in place while this lives: a screen, settings, and a host whose
// application knows what the test hangs on it.
template <class ScreenOfTest>
class HostWith {
  public:
    HostLog host_log;
    ScreenOfTest screen;
    MemorySettings settings;
    InPlace in_place{{screen, settings}};

    const Object host = make_object<FakeObject>(host_log, u"Application");
    FakeObject& application = dynamic_cast<FakeObject&>(*host.target());
    Lines done;  // as the members that write wrote it

    template <class... ScreenArguments>
    explicit HostWith(ScreenArguments&&... arguments) : screen(std::forward<ScreenArguments>(arguments)...) {}

    // The host calls the add-in: the application is there. It goes with this.
    void begin_command() const { gExcel = host; }

    Object make(
        std::u16string type, const FakeObject::Fill& fill = [](FakeObject&) {}) {
        return make_fake(host_log, std::move(type), fill);
    }
    Object collection(std::u16string type, std::vector<Object> elements) {
        return make_collection(host_log, std::move(type), std::move(elements));
    }

    // A blank and its text for each value; for an object its name's.
    static std::u16string joined(Values values) {
        std::u16string line;
        for (const Variant& value : values)
            line += u' ' + to_text(value.is(Variant::Kind::object) ? value.get(names::Name) : value);
        return line;
    }
    // A member that writes down the line with its arguments.
    FakeObject::Answer writes(std::u16string line, Variant answer = {}) {
        return [this, line = std::move(line), answer = std::move(answer)](Access, Values arguments) -> Variant {
            done.push_back(line + joined(arguments));
            return answer;
        };
    }
    // A property that keeps what was last put into it, and writes that down.
    FakeObject::Answer keeps(std::u16string line, Variant value) {
        return [this, line = std::move(line), held = std::move(value)](Access access, Values arguments) mutable {
            if (access == Access::put) {
                held = arguments.back();
                done.push_back(line + joined(arguments));
            }
            return held;
        };
    }
    // The collection, or its element of that place or that name.
    FakeObject::Answer finds(std::u16string type, std::vector<Object> elements, const MemberName& name = names::Name) {
        return [this, type = std::move(type), elements = std::move(elements), name](Access, Values index) -> Variant {
            if (index.empty()) return collection(type, elements);
            if (index[0].is(Variant::Kind::long_integer))
                return elements.at(static_cast<std::size_t>(to_long(index[0])) - 1);
            for (const Object& element : elements) {
                if (to_text(element.get(name)) == to_text(index[0])) return element;
            }
            throw Error(ErrorNumber::subscript_out_of_range);
        };
    }
};

using FakeHost = HostWith<FakeScreen>;

}  // namespace qor::fakes
