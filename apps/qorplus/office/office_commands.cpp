#include "apps/qorplus/office/office_commands.hpp"

#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/task/XJob.hpp>

#include <array>
#include <nlohmann/json.hpp>

#include "apps/qorplus/office/extension_installer.hpp"
#include "apps/qorplus/usage_error.hpp"
#include "hosts/calc/office/private_office.hpp"
#include "hosts/calc/office/process/office_error.hpp"
#include "hosts/calc/uno/service.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"

namespace qor::cli {
namespace {

namespace beans = css::beans;
using calc::OfficeError;
using calc::OfficeFiles;
using calc::PrivateOffice;
using calc::Profile;
using nlohmann::json;

beans::NamedValue named_text(const char* name, const std::string& text) {
    return {rtl::OUString::createFromAscii(name), css::uno::Any(calc::to_uno(from_utf8(text)))};
}

// The session in the office plays the script: from here, a call would cost a hundred times as much.
json answer_of_session(PrivateOffice& office, const std::string& script, const std::filesystem::path& folder) {
    json answer;
    office.work([&] {
        const auto session = calc::create_service<css::task::XJob>(office.context(), "com.ombrel.qorplus.Session");
        if (!session) throw OfficeError("LibreOffice cannot load the add-in; this program is not whole");
        const std::array arguments{named_text("Script", script), named_text("Folder", folder.native()),
                                   named_text("TemporaryFolder", office.temporary_folder().native()),
                                   named_text("HiddenName", office.hidden_folder_name())};
        rtl::OUString text;
        session->execute({arguments.data(), static_cast<sal_Int32>(arguments.size())}) >>= text;
        answer = json::parse(to_utf8(calc::view_of(text)));
    });
    return answer;
}

// The session finds out whether the script has the right shape; here only what has it counts.
OfficeFiles files_of(const json& script, const std::filesystem::path& folder) {
    OfficeFiles files;
    const auto list = [&](const char* key) { return script.contains(key) ? script[key] : json::array(); };
    for (const json& file : list("open")) {
        if (file.is_string()) files.opened.push_back(folder / file.get<std::string>());
    }
    for (const json& step : list("steps")) {
        if (step.is_object() && step.contains("as") && step["as"].is_string())
            files.written.push_back(folder / step["as"].get<std::string>());
    }
    return files;
}

class OfficeCommandsHere final : public OfficeCommands {
  public:
    explicit OfficeCommandsHere(const OfficePlaces& places) : places_(places) {}

    std::string run(const std::string& script, const std::filesystem::path& current_folder) override {
        PrivateOffice office(places_.program, {&places_.component_list, 1}, Profile::fresh,
                             files_of(json::parse(script), current_folder));
        const json answer = answer_of_session(office, script, current_folder);
        if (!answer.contains("error")) return answer.at("transcript").dump(2);
        const std::string message = answer["error"]["message"];
        if (answer["error"]["kind"] == "script") throw UsageError(message);
        throw OfficeError(message);
    }

    void install(const std::filesystem::path& package) override {
        PrivateOffice office(places_.program, {}, Profile::of_user);
        office.work([&] { add_extension(office.context(), package); });
        require_end(office);
    }

    bool uninstall() override {
        bool was_there = false;
        PrivateOffice office(places_.program, {}, Profile::of_user);
        office.work([&] { was_there = remove_extension(office.context()); });
        require_end(office);
        return was_there;
    }

  private:
    // A profile is written when LibreOffice ends.
    static void require_end(PrivateOffice& office) {
        using namespace std::chrono_literals;
        if (!office.end_within(20s)) throw OfficeError("LibreOffice does not end; look whether the change is there");
    }

    OfficePlaces places_;
};

}  // namespace
}  // namespace qor::cli

extern "C" __attribute__((visibility("default"))) qor::cli::OfficeCommands* qorplus_make_office_commands(
    const qor::cli::OfficePlaces& places) {
    return new qor::cli::OfficeCommandsHere(places);
}
