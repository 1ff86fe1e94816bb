#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "hosts/calc/office/process/office_process.hpp"
#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// Whose settings and extensions LibreOffice runs with.
enum class Profile {
    fresh,    // a new profile, removed at the end: nothing that the user has changed matters
    of_user,  // the user's own, which only one LibreOffice at a time can hold
};

// Where LibreOffice shows its windows.
enum class OfficeScreen {
    none,
    display,  // the one of this process, drawn by GTK
};

// The files that LibreOffice is to work on. It may be killed at any moment; nothing of its own stays beside them.
struct OfficeFiles {
    std::vector<std::filesystem::path> opened;
    std::vector<std::filesystem::path> written;  // through a folder of the name hidden_folder_name(), beside the file
};

// A LibreOffice started for this object and ended with it. Only one thread may use it.
class PrivateOffice {
  public:
    // `component_lists` are .components files whose services LibreOffice offers beside its own.
    // Raises OfficeError when LibreOffice does not start and answer, or when the user's profile is in use.
    PrivateOffice(const std::filesystem::path& program, std::span<const std::filesystem::path> component_lists,
                  Profile profile = Profile::fresh, const OfficeFiles& files = {},
                  OfficeScreen screen = OfficeScreen::none);
    PrivateOffice(const PrivateOffice&) = delete;
    PrivateOffice& operator=(const PrivateOffice&) = delete;
    ~PrivateOffice();

    const Context& context() const noexcept { return context_; }

    // Removed when LibreOffice ends.
    const std::filesystem::path& temporary_folder() const noexcept { return folder_; }
    std::string hidden_folder_name() const { return "." + folder_.filename().string(); }

    // Does work that calls into LibreOffice. Raises OfficeError for a refusal, and for a LibreOffice that is gone.
    void work(const std::function<void()>& task);

    // Whether LibreOffice has done as asked and ended, waited for at most that long.
    bool end_within(std::chrono::milliseconds limit);

  private:
    void connect(const std::filesystem::path& program, const std::string& pipe_name);

    std::filesystem::path folder_;
    std::optional<OfficeProcess> process_;
    Context context_;
};

// The user's own profile as LibreOffice has it, as a file address.
rtl::OUString user_profile_url(const std::filesystem::path& program);

}  // namespace qor::calc
