#include "functions/registration.hpp"

#include <doctest/doctest.h>

#include "automation/member_names.hpp"
#include "functions/registry.hpp"
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

TEST_CASE("every function is registered in order with what the dialog shows") {
    auto* application = new Application(0);
    const Object object(application);
    setup_functions(object, help_file);
    const auto functions = worksheet_functions();
    REQUIRE(application->registered.size() == functions.size());
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

TEST_CASE("registration stops at the first function that the host refuses") {
    const std::size_t count = worksheet_functions().size();
    for (const std::size_t refused : {std::size_t{1}, std::size_t{2}, count / 2, count}) {
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

TEST_CASE("without a host nothing can be registered") {
    CHECK_THROWS_AS(setup_functions(Object(), help_file), Error);
}
