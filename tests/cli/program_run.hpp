#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace qor::cli {

struct Outcome {
    int exit_code;  // 128 and the signal's number for a program that a signal ended
    std::string output;
    std::string errors;
};

// A program while it runs. All that it starts carries a mark of this run in its environment.
class ProgramRun {
  public:
    // `command` is a path and arguments; `environment` holds NAME=value entries over those of this process.
    explicit ProgramRun(std::vector<std::string> command, const std::filesystem::path& current_folder = "/",
                        std::vector<std::string> environment = {});
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;
    ~ProgramRun();

    pid_t id() const { return id_; }
    Outcome wait();

    // The processes of this run that are there now, of that name or of any.
    std::vector<pid_t> processes(const std::string& name = {}) const;
    // Whether none of them is left, waited for a few seconds at most.
    bool leaves_nothing() const;

  private:
    std::string mark_;
    pid_t id_ = -1;
    int output_ = -1;
    int errors_ = -1;
};

// Puts the built program in front of its arguments.
std::vector<std::string> qorplus(std::vector<std::string> arguments);

Outcome run_program(std::vector<std::string> arguments, const std::filesystem::path& current_folder = "/",
                    std::vector<std::string> environment = {});

// What is true of every refusal: nothing on standard output, and one line on standard error that begins with the
// program's name and holds the text.
void check_refusal(const Outcome& outcome, int exit_code, const std::string& text);

}  // namespace qor::cli
