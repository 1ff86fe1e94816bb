#pragma once

#include <doctest/doctest.h>

#include "core/CCom.hpp"
#include "tests/fakes/fake_host.hpp"

namespace qor::fakes {

// A host with an active workbook, which calls commands of the automation object.
template <class ScreenOfTest>
class CommandHostWith : public HostWith<ScreenOfTest> {
  public:
    Object com = make_object<CCom>();

    CommandHostWith() { this->application.holds(names::ActiveWorkbook, this->make(u"Workbook")); }

    template <class... Arguments>
    void call(std::u16string_view member, Arguments&&... arguments) const {
        com.call(MemberName(member), this->host, std::forward<Arguments>(arguments)...);
    }
    // Of a value that must be one.
    static std::u16string text_of(const Variant& value) {
        REQUIRE(value.is(Variant::Kind::text));
        return *value.get_if<std::u16string>();
    }
};

using CommandHost = CommandHostWith<FakeScreen>;

}  // namespace qor::fakes
