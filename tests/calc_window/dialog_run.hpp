#pragma once

#include "platform/ini_settings_store.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/fakes/in_place.hpp"
#include "tests/wx/user.hpp"

namespace qor::calc::tests {

// A Calc with one workbook, and the add-in's dialogs over its window.
struct DialogRun {
    Calc calc;
    IniSettingsStore settings{calc.folder() / "settings.ini"};
    fakes::InPlace in_place;
    Object com;
    Object book = calc.add_book();

    DialogRun();

    // Opens the tool's dialog as a macro does, while the user plays.
    void open(std::u16string_view tool, const std::string& title,
              const std::function<void(qor::tests::User&)>& script) const;

    // All dialogs are told to close; answers whether there were any.
    static bool close_dialogs();
    static MessageAnswer message_box(const MessageBox& message);

    // In the tree of workbooks: the box and the text of the row, from 0, at that level.
    static wxPoint box(qor::tests::User& user, int row, int level);
    static wxPoint text(qor::tests::User& user, int row, int level);
    static void check(qor::tests::User& user, int row, int level) {
        user.click_in("ctlTreeView", box(user, row, level));
    }

    // As take_picture does, but while a dialog has the main thread.
    static void keep_picture(const std::string& name);
};

}  // namespace qor::calc::tests
