#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "hosts/calc/bars/module_ui.hpp"
#include "tests/calc_window/toolbar_window.hpp"
#include "tests/cli/program_run.hpp"
#include "tests/support/temporary_folder.hpp"

namespace qor::calc::tests {

// Whether it came to be within some seconds.
bool comes_to(const std::function<bool()>& condition, std::chrono::seconds patience = std::chrono::seconds(20));

// A home folder, which stays while Calc is started and ended in it. It also tells the test's Calc by which pipe the
// test sees into it.
class UsersHome {
  public:
    UsersHome();

    const std::filesystem::path& path() const { return folder_.path; }
    // The workbook that Calc is started with, a copy of the example.
    std::filesystem::path model() const { return path() / "model.xlsx"; }
    std::string pipe() const { return folder_.path.filename(); }
    std::filesystem::path settings_file() const;
    // The text of the settings; empty before there are any.
    std::string settings() const;
    std::string setting(const std::string& key) const;  // its text; "none" where there is none
    // Pages and mails go to a program that only notes them, and ends so, instead of to one that shows them.
    void note_opened_addresses(int exit_code) const;
    std::string opened_address() const;  // the last one
    // The folder in which programs are looked for first.
    std::filesystem::path programs() const { return path() / "bin"; }
    // What Calc itself keeps, and the file of its changed settings there.
    std::filesystem::path profile() const;
    std::filesystem::path registry() const { return profile() / "registrymodifications.xcu"; }
    // The folder of the data files.
    std::filesystem::path data() const;

  private:
    test::TemporaryFolder folder_;
};

// Calc as `qorplus calc` shows it with the model, in front of its user, when its menu and its toolbars have come.
class UsersCalc {
  public:
    explicit UsersCalc(const UsersHome& home);
    UsersCalc(const UsersCalc&) = delete;
    UsersCalc& operator=(const UsersCalc&) = delete;
    ~UsersCalc();

    // The user's hand. Each gives Calc a moment to follow.
    void key(const std::string& name) const;
    void keys(const std::vector<std::string>& names) const;
    void type(const std::string& text) const;
    void click(css::awt::Point place) const;
    void drag(css::awt::Point from, css::awt::Point to) const;

    // The menu of the add-in, by its access key.
    void open_options() const;
    // Whether a window whose title begins so comes to be seen, or goes.
    bool shows(const std::string& title) const;
    bool loses(const std::string& title) const;
    bool sees_window(const std::string& title) const;

    // What is seen from the inside. Calc does not end while somebody holds any of it.
    css::uno::Reference<css::uno::XComponentContext> context() const;
    ModuleUi ui() const { return ModuleUi(context()); }
    // The toolbar with that button.
    std::optional<ToolbarWindow> toolbar_with(std::u16string_view button) const;
    // The captions of the menu bar, in their order.
    std::vector<std::u16string> menu_bar() const;

    // By the window manager.
    void close_window() const;
    // Whether it ends by itself.
    bool ends() const;

    void take_picture(const char* name) const;

  private:
    cli::ProgramRun run_;
    std::string pipe_;
};

}  // namespace qor::calc::tests
