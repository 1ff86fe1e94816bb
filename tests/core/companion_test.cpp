#include "core/companion.hpp"

#include <doctest/doctest.h>

#include <map>
#include <vector>

#include "automation/member_names.hpp"
#include "core/macros.hpp"
#include "ground/product.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/fakes/fake_object.hpp"

using namespace qor;

namespace {

using Lines = std::vector<std::string>;

// An automation object that writes down what is called, such as "QScrollableArea app Book1 OPEN".
class RecordingCom final : public Dispatch {
  public:
    Lines calls;
    std::map<std::u16string, std::u16string> options;
    std::u16string_view failing;

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        std::string line = to_utf8(name.text()) + (access == Access::put ? " =" : "");
        for (const Variant& argument : arguments.positional) {
            const bool object = argument.is(Variant::Kind::object);
            line += ' ' + (object ? std::string("app") : to_utf8(to_text(argument)));
        }
        if (name == MemberName(u"QGetSetting")) {
            const auto option = options.find(to_text(arguments.positional[1]));
            return option == options.end() ? arguments.positional[2] : Variant(option->second);
        }
        calls.push_back(line);
        if (name.text() == failing) throw Error(ErrorNumber::host_refused, u"Inner", u"The host refused.");
        return {};
    }
    std::u16string_view type_name() const noexcept override { return u"CCom"; }
};

struct Fixture {
    fakes::HostLog host_log;
    RecordingCom* com = new RecordingCom;
    Object com_object{com};
    Lines steps;
    std::vector<Error> reported;
    Companion companion{com_object,
                        {.application = fakes::make_fake(host_log, u"Application",
                                                         [](auto& fake) { fake.holds(names::Version, u"7.4"); }),
                         .undo_step =
                             [this](std::u16string_view title, const std::function<void()>& command) {
                                 steps.push_back(to_utf8(title));
                                 command();
                             },
                         .report = [this](const Error& error) { reported.push_back(error); }}};

    Lines take() { return std::exchange(com->calls, {}); }
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "at start the object learns its places, then registers its functions and makes its menu") {
    companion.start({u"/home/me/data", u"/opt/help"});
    CHECK(take() == Lines{"QThisWrkBkPath = /home/me/data", "QHelpFile = /opt/help", "QExcelVer = 7.4",
                          "QSetupFunc app", "QMenuCreate app", "QUpdateWindowCaption app", "QSetSaveFolder"});
}

TEST_CASE_FIXTURE(Fixture, "at the end the menu goes and the recent files with it, once") {
    companion.stop();  // was never started
    CHECK(take().empty());
    companion.start({});
    take();
    companion.save_menu_places();
    CHECK(take() == Lines{"QMenuDelete app True"});
    companion.stop();
    companion.stop();
    CHECK(take() == Lines{"QMenuDelete app False", "UTCleRecFil app False"});
}

TEST_CASE_FIXTURE(Fixture, "a start that fails in one place goes on with the next") {
    com->failing = u"QSetupFunc";
    companion.start({});
    CHECK(take().size() == 7);
}

TEST_CASE_FIXTURE(Fixture, "a macro calls the command of its name as one step of undo") {
    companion.run_macro(u"UTWorSum");
    CHECK(take() == Lines{"UTWorSum app"});
    CHECK(steps == Lines{"Worksheet Summary"});
    companion.run_macro(u"UTCELWORPRO");
    CHECK(take() == Lines{"UTCELWORPRO app"});  // members are called without regard to case
    companion.run_macro(u"UTraColRow");
    CHECK(take() == Lines{"UTTraColRow app"});
    companion.run_macro(u"QOpenHelp");
    CHECK(take() == Lines{"QOpenHelp app"});
}

TEST_CASE_FIXTURE(Fixture, "the companion's own macros give their addresses") {
    companion.run_macro(u"QAbout");
    companion.run_macro(u"UTHomePage");
    companion.run_macro(u"UTOnlineSupport");
    companion.run_macro(u"UTSendEmail");
    CHECK(take() == Lines{"QAbout", "UTOpenWWW " + to_utf8(product::home_page),
                          "UTOpenWWW " + to_utf8(product::support_page),
                          "UTSendMail " + to_utf8(product::author_mail)});
}

TEST_CASE_FIXTURE(Fixture, "a command that fails tells the user, a reaction does not") {
    com->failing = u"UTWorSum";
    companion.run_macro(u"UTWorSum");
    REQUIRE(reported.size() == 1);
    CHECK(reported[0].number() == 1004);
    com->failing = u"QUpdateWindowCaption";
    companion.workbook_created();
    CHECK(reported.size() == 1);
}

TEST_CASE_FIXTURE(Fixture, "a workbook that opens gets its scroll areas, loses empty sheets and is arranged") {
    companion.workbook_opened(u"Budget.xls");
    CHECK(take() == Lines{"QScrollableArea app Budget.xls OPEN", "QOptionDeleteEmptyWorksheets app Budget.xls",
                          "QAutoUpdateWindowPositions app", "QUpdateWindowCaption app"});
}

TEST_CASE_FIXTURE(Fixture, "a workbook that is saved is backed up first") {
    companion.workbook_to_be_saved(u"Budget.xls");
    CHECK(take() ==
          Lines{"QAlwCreBacBefSav app Budget.xls", "QScrollableArea app Budget.xls SAVE", "QResLasCelEacWor app"});
    companion.workbook_saved_as();
    CHECK(take() == Lines{"QUpdateWindowCaption app"});
}

TEST_CASE_FIXTURE(Fixture, "the object is told of the selection before only after the call") {
    companion.selection_changed(u"Costs", u"$B$2");
    CHECK(take() == Lines{"QSheetSelectionChange app Costs $B$2", "QWorksheetName = Costs", "QTargetAddress = $B$2"});
}

TEST_CASE_FIXTURE(Fixture, "timed jobs run as often as the options say") {
    CHECK_FALSE(companion.save_interval().has_value());
    CHECK_FALSE(companion.review_interval().has_value());
    com->options = {{u"chkT3SaveWorkbooksEvery", u"-1"}, {u"chkT4UseCellEvents", u"-1"}};
    CHECK((companion.save_interval() == std::chrono::minutes(10)));
    CHECK((companion.review_interval() == std::chrono::minutes(1)));
    com->options[u"txtT3SaveWorkbooksEvery"] = u"25";
    CHECK((companion.save_interval() == std::chrono::minutes(25)));
    for (const auto* minutes : {u"", u"often", u"0", u"-5", u"99999999999"}) {
        com->options[u"txtT3SaveWorkbooksEvery"] = minutes;
        CHECK_FALSE(companion.save_interval().has_value());
    }
    com->options[u"chkT3SaveWorkbooksEvery"] = u"maybe";
    CHECK_FALSE(companion.save_interval().has_value());
    companion.save_by_time();
    companion.review_by_time();
    CHECK(take() == Lines{"UTSavWorEve app", "UTCelEveRev app"});
}

TEST_CASE_FIXTURE(Fixture, "closing the options takes the default folder for saving over") {
    companion.run_macro(u"UTOpt");
    CHECK(take() == Lines{"UTOpt app", "QSetSaveFolder"});
}
