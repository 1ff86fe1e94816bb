#include "session/session.hpp"

#include <fmt/format.h>

#include <array>

#include "automation/member_names.hpp"
#include "core/CCom.hpp"
#include "core/tool_table.hpp"
#include "ground/MMain.hpp"
#include "ground/product.hpp"
#include "platform/ini_settings_store.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "screens/script/script_error.hpp"
#include "session/json_value.hpp"
#include "session/range_text.hpp"
#include "session/replaced_file.hpp"
#include "session/script_shape.hpp"
#include "session/workbook_lookup.hpp"
#include "stores/data_folder.hpp"

namespace qor {
namespace {

using nlohmann::json;

json error_to_json(const Error& error) {
    return {
        {"number", error.number()}, {"source", to_utf8(error.source())}, {"description", to_utf8(error.description())}};
}

// One playing of one script.
class Session {
  public:
    Session(const json& script, const SessionHost& host, const SessionFolders& folders)
        : script_(script),
          host_(host),
          folders_(folders),
          user_(script.value("user", false)),
          settings_(settings_path()),
          data_(data_path()),
          application_(host.make_application(screen_, data_)),
          open_before_(workbooks()) {
        set_environment({screen_, settings_});
        com_ = make_object<CCom>();
        com_.put(MemberName(u"QThisWrkBkPath"), from_utf8(data_.native()));
        write_settings();
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // What the script has opened does not stay open, whatever became of it.
    ~Session() {
        attempt([&] {
            for (const Variant& workbook : workbooks()) {
                if (!was_open_before(workbook)) attempt([&] { workbook.call(names::Close, false); });
            }
        });
    }

    json play() {
        for (const json& file : list_at(script_, "open", "the script")) open(file);
        json entries = json::array();
        for (const json& step : list_at(script_, "steps", "the script")) {
            const std::string where = fmt::format("step {}", entries.size() + 1);
            entries.push_back((this->*step_of(step, where))(step, where));
        }
        return {{"steps", std::move(entries)}};
    }

  private:
    using Step = json (Session::*)(const json& step, const std::string& where);

    static Step step_of(const json& step, const std::string& where) {
        static constexpr std::array<std::pair<const char*, Step>, 4> kinds{{
            {"select", &Session::select},
            {"call", &Session::call},
            {"read", &Session::read},
            {"save", &Session::save},
        }};
        require_object(step, where);
        for (const auto& [key, kind] : kinds) {
            if (step.contains(key)) return kind;
        }
        throw ScriptError(where + " is none of select, call, read and save");
    }

    std::filesystem::path settings_path() const {
        return (user_ ? settings_folder(product::name) : folders_.temporary) / product::settings_file;
    }

    // One that the script names is taken as it is; others get the files that they lack.
    std::filesystem::path data_path() const {
        if (script_.contains("data")) {
            auto folder = path_of(required_text(script_, "data", "the script"), folders_.current);
            if (!std::filesystem::is_directory(folder)) throw ScriptError("there is no folder " + folder.string());
            return folder;
        }
        auto folder = user_ ? data_folder(product::name) : folders_.temporary;
        create_data_files(folder);
        return folder;
    }

    void write_settings() {
        if (!script_.contains("settings")) return;
        require_object(script_["settings"], "\"settings\"");
        for (const auto& [section, values] : script_["settings"].items()) {
            const std::string where = fmt::format("\"settings\" of \"{}\"", section);
            require_object(values, where);
            for (const auto& [name, value] : values.items()) {
                if (!settings_.write(from_utf8(section), from_utf8(name),
                                     from_utf8(required_text(values, name.c_str(), where))))
                    throw ScriptError(fmt::format("the setting {} of {} cannot be written", name, section));
            }
        }
    }

    std::vector<Variant> workbooks() const { return application_.get(names::Workbooks).object().items(); }
    bool was_open_before(const Variant& workbook) const {
        return std::ranges::any_of(open_before_,
                                   [&](const Variant& before) { return before.object().is(workbook.object()); });
    }

    void open(const json& file) {
        if (!file.is_string()) throw ScriptError("\"open\" must be a list of files, but holds " + file.dump());
        const auto path = path_of(file.get<std::string>(), folders_.current);
        if (!std::filesystem::exists(path)) throw ScriptError("there is no file " + path.string());
        try {
            application_.get(names::Workbooks).call(names::Open, from_utf8(path.native()));
        } catch (const Error& error) {
            throw ScriptError(fmt::format("{} cannot be opened: {}", path.string(), to_utf8(error.description())));
        }
    }

    json select(const json& step, const std::string& where) {
        require_keys(step, {"select"}, where);
        const json& what = step["select"];
        require_keys(what, {"workbook", "sheets", "range"}, where + "'s \"select\"");
        const Object workbook = find_workbook(application_, what.value("workbook", "active"));
        workbook.call(names::Activate);
        std::string done = name_of(workbook);
        bool replace = true;
        for (const json& name : list_at(what, "sheets", where)) {
            const Object sheet = find_sheet(workbook, name);
            sheet.call(names::Select, replace);
            replace = false;
            done += ", " + name_of(sheet);
        }
        if (what.contains("range")) {
            const std::string& address = required_text(what, "range", where);
            find_range(workbook.get(names::ActiveSheet).object(), address).call(names::Select);
            done += ", " + address;
        }
        return {{"select", done}};
    }

    json call(const json& step, const std::string& where) {
        require_keys(step, {"call", "args", "forms", "answers", "ranges", "files", "folders", "colors"}, where);
        const Member<CCom>& member = find_member(required_text(step, "call", where));
        std::vector<Variant> arguments = arguments_of(member, list_at(step, "args", where));
        json entry{{"call", to_utf8(member.name)}, {"result", nullptr}, {"error", nullptr}};
        screen_.begin_call(step);
        const MemberName name(member.name);
        const Tool* tool = find_tool(name);
        host_.undo_step(tool ? tool->title : member.name, [&] {
            try {
                entry["result"] = to_json(com_.invoke(name, Access::call, {arguments, {}}));
            } catch (const Error& error) {
                entry["error"] = error_to_json(error);
            }
        });
        entry.update(screen_.end_call(!entry["error"].is_null()));
        return entry;
    }

    static const Member<CCom>& find_member(const std::string& name) {
        const Member<CCom>* member = CCom::members().find(MemberName(from_utf8(name)));
        if (member) return *member;
        std::vector<std::string> there;
        for (const auto& row : CCom::members().rows()) there.push_back(to_utf8(row.name));
        throw ScriptError(fmt::format("there is no member \"{}\"; there are: {}", name, enumeration(there)));
    }

    std::vector<Variant> arguments_of(const Member<CCom>& member, const json& given) const {
        std::vector<Variant> arguments;
        if (!member.parameters.empty() && member.parameters.front() == CCom::application_parameter)
            arguments.emplace_back(application_);
        const std::size_t most = member.parameters.size() - arguments.size();
        if (given.size() > most) {
            throw ScriptError(fmt::format("{} takes at most {} arguments, but {} are given", to_utf8(member.name), most,
                                          given.size()));
        }
        for (const json& value : given) arguments.push_back(from_json(value));
        return arguments;
    }

    json read(const json& step, const std::string& where) {
        require_keys(step, {"read"}, where);
        const json& what = step["read"];
        require_keys(what, {"workbook", "sheet", "range"}, where + "'s \"read\"");
        const Object workbook = find_workbook(application_, what.value("workbook", "active"));
        const Object sheet =
            what.contains("sheet") ? find_sheet(workbook, what["sheet"]) : workbook.get(names::ActiveSheet).object();
        const Object range = what.contains("range") ? find_range(sheet, required_text(what, "range", where))
                                                    : sheet.get(names::UsedRange).object();
        return {{"read", read_range(range)}};
    }

    json save(const json& step, const std::string& where) {
        require_keys(step, {"save", "as"}, where);
        const Object workbook = find_workbook(application_, required_text(step, "save", where));
        if (!step.contains("as")) {
            if (to_text(workbook.get(names::Path)).empty())
                throw ScriptError(name_of(workbook) + " has no file yet; say \"as\" where it shall be saved");
            workbook.call(names::Save);
            return {{"save", to_utf8(to_text(workbook.get(names::FullName)))}};
        }
        const auto target = path_of(required_text(step, "as", where), folders_.current);
        const ReplacedFile file(target, folders_.hidden_name);
        try {
            workbook.call(names::SaveAs, from_utf8(file.path().native()));
        } catch (const Error& error) {
            throw ScriptError(fmt::format("{} cannot be saved as {}: {}", name_of(workbook), target.string(),
                                          to_utf8(error.description())));
        }
        const std::filesystem::path written = to_utf8(to_text(workbook.get(names::FullName)));
        const std::filesystem::path place = file.replace(written);
        host_.moved(written, place);
        return {{"save", place.string()}};
    }

    const json& script_;
    const SessionHost& host_;
    const SessionFolders& folders_;
    bool user_;
    IniSettingsStore settings_;
    ScriptScreen screen_;
    std::filesystem::path data_;
    Object application_;
    std::vector<Variant> open_before_;
    Object com_;
};

}  // namespace

json play(const json& script, const SessionHost& host, const SessionFolders& folders) {
    require_keys(script, {"open", "settings", "data", "user", "steps"}, "the script");
    return Session(script, host, folders).play();
}

}  // namespace qor
