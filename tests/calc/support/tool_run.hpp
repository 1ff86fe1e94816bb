#pragma once

#include <nlohmann/json.hpp>

#include "core/CCom.hpp"
#include "platform/ini_settings_store.hpp"
#include "screens/script/script_screen.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/fakes/in_place.hpp"

namespace qor::calc::tests {

// A Calc in which tools of the add-in are run with a scripted screen, with options of its own.
class ToolRun : public Calc {
  public:
    void set_option(std::u16string_view name, std::u16string_view value);

    // Calls the command as the session does, one undo step around it; answers what was shown. What is given besides
    // comes behind the application.
    nlohmann::json call(std::u16string_view command, const nlohmann::json& script = nlohmann::json::object(),
                        std::vector<Variant> more = {});
    // The same with the command seeing `host` for the application. What it raises comes out.
    nlohmann::json call(std::u16string_view command, const nlohmann::json& script, const Object& host,
                        std::vector<Variant> more = {});
    // The automation object.
    const Object& com() const { return com_; }

    Object active_sheet() const { return application.get(names::ActiveSheet); }
    Variant cell(std::int32_t row, std::int32_t column) const {
        return active_sheet().get(names::Cells, row, column).get(names::Value);
    }
    // The values of a row from column 1.
    std::vector<Variant> row(std::int32_t row, std::size_t columns) const;

  private:
    IniSettingsStore settings_{folder() / "settings.ini"};
    ScriptScreen screen_;
    fakes::InPlace in_place_{{screen_, settings_}};
    Object com_ = make_object<CCom>();
};

}  // namespace qor::calc::tests
