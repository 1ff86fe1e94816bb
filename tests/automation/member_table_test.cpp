#include "automation/member_table.hpp"

#include <doctest/doctest.h>

#include "automation/member_names.hpp"
#include "runtime/bind.hpp"

using namespace qor;

namespace {

class Account final : public Dispatch {
  public:
    static const MemberTable<Account>& members();

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        return members().invoke(*this, name, access, arguments);
    }
    std::u16string_view type_name() const noexcept override { return u"Account"; }

    std::int32_t Balance = 0;
    std::u16string owner_;

    const std::u16string& owner() const { return owner_; }
    void set_owner(const std::u16string& owner) { owner_ = owner; }
    double Interest(double rate, std::optional<std::int32_t> years) { return Balance * rate * years.value_or(1); }
    void Withdraw(std::int32_t amount, std::int32_t& left) {
        if (amount > Balance) throw Error(ErrorNumber::invalid_call, u"vault");
        Balance -= amount;
        left = Balance;
    }
    std::u16string Refuse() { throw Error(ErrorNumber::host_refused); }
    void Attach(const Object&) {}
};

const MemberTable<Account>& Account::members() {
    static const MemberTable<Account> table({
        field_property<&Account::Balance>(u"Balance"),
        property<&Account::owner, &Account::set_owner>(u"Owner"),
        method<&Account::Interest>(u"Interest", {u"dRate", u"lYears"}),
        method<&Account::Withdraw>(u"Withdraw", {u"lAmount", u"lLeft"}, OnError::raise),
        method<&Account::Refuse>(u"Refuse", {}, OnError::pass),
        method<&Account::Attach>(u"Attach", {u"objOther"}),
    });
    return table;
}

const MemberName Balance(u"Balance"), Owner(u"OWNER"), Interest(u"Interest"), Withdraw(u"withdraw"), Refuse(u"Refuse"),
    Attach(u"Attach"), rate(u"DRATE"), years(u"lyears");

std::int32_t number_of(auto&& statement) {
    return attempt(statement);
}

}  // namespace

TEST_CASE("members answer by name, in any case of letters") {
    const Object account = make_object<Account>();
    account.put(Balance, 100);
    account.put(MemberName(u"owner"), u"Ann");
    CHECK(*account.get(MemberName(u"BALANCE")).get_if<std::int32_t>() == 100);
    CHECK(*account.get(Owner).get_if<std::u16string>() == u"Ann");
}

TEST_CASE("arguments come by place, by name or not at all") {
    const Object account = make_object<Account>();
    account.put(Balance, 200);
    CHECK(*account.call(Interest, 0.5).get_if<double>() == 100.0);
    CHECK(*account.call(Interest, 0.5, 3).get_if<double>() == 300.0);
    CHECK(*account.call(Interest, named(years, 2), named(rate, 0.25)).get_if<double>() == 100.0);
    CHECK(*account.call(Interest, 0.5, Missing{}).get_if<double>() == 100.0);
}

TEST_CASE("what cannot be called says why") {
    const Object account = make_object<Account>();
    CHECK(number_of([&] { account.get(MemberName(u"Nothing")); }) == 438);
    CHECK(number_of([&] { account.put(Interest, 1.0); }) == 438);
    CHECK(number_of([&] { account.call(Interest, 1.0, 2, 3); }) == 450);
    CHECK(number_of([&] { account.call(Interest); }) == 449);
    CHECK(number_of([&] { account.call(Attach); }) == 449);
    CHECK(number_of([&] { account.call(Attach, 5); }) == 424);
    CHECK(number_of([&] { account.call(Interest, 1.0, named(Owner, 2)); }) == 448);
    CHECK(number_of([&] { account.call(Interest, u"much"); }) == 13);
    CHECK(number_of([&] { Object().get(Balance); }) == 91);
    CHECK(number_of([&] { Variant(1).get(Balance); }) == 424);
    CHECK(number_of([&] { static_cast<void>(account.items()); }) == 438);
}

TEST_CASE("a by-reference argument comes back to the caller") {
    const Object account = make_object<Account>();
    account.put(Balance, 100);
    std::array<Variant, 2> arguments{Variant(30), Variant(0)};
    account.invoke(Withdraw, Access::call, {arguments, {}});
    CHECK(*arguments[1].get_if<std::int32_t>() == 70);
}

TEST_CASE("the row says how a member fails") {
    const Object account = make_object<Account>();
    try {
        account.call(Withdraw, 1, 0);
        FAIL("nothing was raised");
    } catch (const Error& error) {
        CHECK(error.number() == 5);
        CHECK(error.source() == u"Withdraw\rvault");
    }
    const Variant result = account.call(Refuse);
    REQUIRE(result.get_if<std::u16string>());
    CHECK(result.get_if<std::u16string>()->empty());
}

TEST_CASE("objects are counted and let go") {
    static int alive = 0;
    struct Counted final : Dispatch {
        Counted() { ++alive; }
        ~Counted() override { --alive; }
        Variant invoke(const MemberName&, Access, Arguments) override { return {}; }
        std::u16string_view type_name() const noexcept override { return u"Counted"; }
    };
    {
        Object first = make_object<Counted>();
        const Object second = first;
        CHECK(first.is(second));
        const Variant held(first);
        first = Object();
        CHECK(alive == 1);
        CHECK_FALSE(first.is(second));
    }
    CHECK(alive == 0);
}
