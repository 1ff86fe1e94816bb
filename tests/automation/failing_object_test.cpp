#include "tests/support/failing_object.hpp"

#include <doctest/doctest.h>

#include "automation/member_names.hpp"
#include "tests/fakes/fake_object.hpp"

namespace {

using qor::Object;
using qor::Variant;
using qor::support::AccessFailure;
namespace names = qor::names;

// A workbook that holds one sheet, answers the sheet it is given by Move, and keeps its name.
Object workbook(qor::fakes::HostLog& log) {
    const Object sheet =
        qor::fakes::make_fake(log, u"Worksheet", [](auto& fake) { fake.holds(names::Name, u"Sheet1"); });
    return qor::fakes::make_fake(log, u"Workbook", [&](auto& fake) {
        fake.holds(names::Name, u"Book1")
            .answers(names::ActiveSheet, [sheet](auto, auto) { return Variant(sheet); })
            .answers(names::Move, [](auto, auto arguments) { return arguments[0].get(names::Name); })
            .contains({sheet});
    });
}

}  // namespace

TEST_CASE("the n-th access fails, and only that one") {
    qor::fakes::HostLog log;
    const auto plan = std::make_shared<AccessFailure>();
    plan->failing = 3;
    const Object book = qor::support::failing_object(workbook(log), plan);
    CHECK(*book.get(names::Name).get_if<std::u16string>() == u"Book1");
    const Object sheet = book.get(names::ActiveSheet);
    CHECK(qor::attempt([&] { sheet.put(names::Name, u"lost"); }) == 1004);
    CHECK(*sheet.get(names::Name).get_if<std::u16string>() == u"Sheet1");
    CHECK(plan->accesses == 4);
    CHECK(log.calls == 3);
}

TEST_CASE("objects that come from it are counted, too, and go back as they came") {
    qor::fakes::HostLog log;
    const auto plan = std::make_shared<AccessFailure>();
    const Object book = qor::support::failing_object(workbook(log), plan);
    const Object sheet = book.items().at(0);
    CHECK(sheet.is(book.get(names::ActiveSheet)));
    CHECK_FALSE(sheet.is(book));
    CHECK(sheet.target()->type_name() == u"Worksheet");
    CHECK(*book.call(names::Move, sheet).get_if<std::u16string>() == u"Sheet1");
    CHECK(*book.call(names::Move, qor::named(names::Before, sheet)).get_if<std::u16string>() == u"Sheet1");
    CHECK(plan->accesses == 4);
    CHECK(qor::support::object_behind(sheet).target() != sheet.target());
}
