#pragma once

#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>
#include <string_view>

#include "automation/object.hpp"
#include "screens/script/script_screen.hpp"

namespace qor {

// What a session asks of its host beside the object model.
struct SessionHost {
    // The host's application, with a user who does what the screen's script says; the data files lie in the folder.
    std::function<Object(ScriptScreen& screen, const std::filesystem::path& data_folder)> make_application;
    // Runs a command so that the user can undo it as one step with that title.
    std::function<void(std::u16string_view title, const std::function<void()>& command)> undo_step;
    // Called when the file of an open workbook has got another place.
    std::function<void(const std::filesystem::path& from, const std::filesystem::path& to)> moved;
};

struct SessionFolders {
    std::filesystem::path current;    // what relative paths of the script start from
    std::filesystem::path temporary;  // for the settings and data of the run
    std::string hidden_name;          // of the folder beside a file in which it is written
};

// Plays a script: opens its workbooks, does its steps, closes what has been opened since, unsaved, and gives the
// transcript. Raises ScriptError for a script that has another shape or does not fit what it meets; an Error that a
// command raises stands in the transcript.
nlohmann::json play(const nlohmann::json& script, const SessionHost& host, const SessionFolders& folders);

}  // namespace qor
