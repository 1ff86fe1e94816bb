#include "functions/registration.hpp"

#include <doctest/doctest.h>

#include "automation/member_names.hpp"
#include "functions/registration_order.hpp"
#include "functions/registry.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

using namespace qor;

namespace {

// Records what is registered and refuses the call of a given number.
class Application final : public Dispatch {
  public:
    explicit Application(std::size_t refused) : refused_(refused) {}

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        REQUIRE((name == names::MacroOptions));
        REQUIRE(access == Access::call);
        REQUIRE(arguments.positional.empty());
        ++calls;
        if (calls == refused_) throw Error(ErrorNumber::host_refused, u"Microsoft Excel", u"No such macro");
        registered.emplace_back(arguments.named.begin(), arguments.named.end());
        return {};
    }
    std::u16string_view type_name() const noexcept override { return u"Application"; }

    std::size_t calls = 0;
    std::vector<std::vector<NamedArgument>> registered;

  private:
    std::size_t refused_;
};

const std::u16string help_file = u"C:\\Add-ins\\help.chm";

}  // namespace

TEST_CASE("every name of the order has a declaration") {
    const auto functions = registered_functions();
    REQUIRE(functions.size() == 207);
    auto function = functions.begin();
    std::size_t answered = 0;
    for (const RegistrationRun& run : registration_runs()) {
        for (const std::u16string_view name : run.names) {
            CAPTURE(to_utf8(name));
            CHECK((function->name == name));
            CHECK(function->category == run.category);
            CHECK_FALSE(function->description.empty());
            CHECK(function->help_id >= 100010);
            if (find_function(name) != nullptr) ++answered;
            ++function;
        }
    }
    CHECK(answered == 203);
    CHECK(worksheet_functions().size() == 203);
}

TEST_CASE("every function is registered in order with what the dialog shows") {
    auto* application = new Application(0);
    const Object object(application);
    setup_functions(object, help_file);
    const auto functions = registered_functions();
    REQUIRE(application->registered.size() == 207);
    for (std::size_t place = 0; place < functions.size(); ++place) {
        const auto& arguments = application->registered[place];
        REQUIRE(arguments.size() == 5);
        CHECK((arguments[0].name == names::Macro));
        CHECK((to_text(arguments[0].value) == functions[place].name));
        CHECK((arguments[1].name == names::Description));
        CHECK((to_text(arguments[1].value) == functions[place].description));
        CHECK((arguments[2].name == names::Category));
        CHECK(to_long(arguments[2].value) == static_cast<std::int32_t>(functions[place].category));
        CHECK((arguments[3].name == names::HelpContextID));
        CHECK(to_long(arguments[3].value) == functions[place].help_id);
        CHECK((arguments[4].name == names::HelpFile));
        CHECK((to_text(arguments[4].value) == help_file));
    }
}

TEST_CASE("every run begins where the dialog expects it") {
    auto* application = new Application(0);
    const Object object(application);
    setup_functions(object, help_file);
    struct Row {
        std::size_t call;
        std::u16string_view name;
        std::int32_t category;
        std::int32_t help_id;
        std::u16string_view description;
    };
    for (const Row& row : {
             Row{1, u"APT", 1, 100010, u"Returns the Accounts Payable Turnover Ratio."},
             Row{26, u"CFPS", 1, 100135, u"Returns the Cash Flow Per Share."},
             Row{27, u"CAGR", 1, 100145, u"Returns the Compounded Annaul Growth Rate."},
             Row{37, u"DAR", 1, 100195, u"Returns the Days in Accounts Receivable."},
             Row{173, u"WCapital", 1, 100865, u"Returns the Working Capital."},
             Row{174, u"HRA", 1, 120000, u"Returns the employee candidate job acceptance rate."},
             Row{178, u"EDATEADD", 2, 110005, u"Returns an adjusted date."},
             Row{192, u"EYEAR", 2, 110075, u"Returns the year corresponding to a date."},
             Row{193, u"FORMATNAME", 7, 160000, u"Returns formatted name."},
             Row{196, u"BETWEEN", 8, 140000, u"Returns whether a value lies between values of two other values."},
             Row{201, u"ISTIME", 8, 140025, u"Returns whether the time is valid."},
             Row{202, u"CELLINFO", 9, 130000, u"Returns cell information."},
             Row{203, u"DRIVEINFO", 9, 130005, u"Returns drive information."},
             Row{204, u"EXCELUSERNAME", 9, 130010, u"Returns Excel user name."},
             Row{205, u"SYSINFO", 9, 130015, u"Returns system information."},
             Row{206, u"WRKBKINFO", 9, 130025, u"Returns workbook information."},
             Row{207, u"WRKSHTINFO", 9, 130020, u"Returns worksheet information."},
         }) {
        CAPTURE(to_utf8(row.name));
        const auto& arguments = application->registered[row.call - 1];
        CHECK((to_text(arguments[0].value) == row.name));
        CHECK((to_text(arguments[1].value) == row.description));
        CHECK(to_long(arguments[2].value) == row.category);
        CHECK(to_long(arguments[3].value) == row.help_id);
    }
}

TEST_CASE("registration stops at the first function that the host refuses") {
    for (const std::size_t refused : {1U, 100U, 207U}) {
        CAPTURE(refused);
        auto* application = new Application(refused);
        const Object object(application);
        bool is_raised = false;
        try {
            setup_functions(object, help_file);
        } catch (const Error& error) {
            is_raised = true;
            CHECK(error.number() == 1004);
            CHECK((error.source() == u"No such macro\rSetupFunc"));
            CHECK((error.description() == u"No such macro"));
        }
        CHECK(is_raised);
        CHECK(application->calls == refused);
        CHECK(application->registered.size() == refused - 1);
    }
}

TEST_CASE("what the companion answers by itself is no function of this system") {
    for (const auto* name : {u"CELLINFO", u"EXCELUSERNAME", u"WRKBKINFO", u"WRKSHTINFO"}) {
        CHECK(find_function(name) == nullptr);
    }
}

TEST_CASE("without a host nothing can be registered") {
    CHECK_THROWS_AS(setup_functions(Object(), help_file), Error);
}
