#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace qor {

// The run time's error numbers, as every automation host knows them.
enum class ErrorNumber : std::int32_t {
    invalid_call = 5,
    overflow = 6,
    subscript_out_of_range = 9,
    division_by_zero = 11,
    type_mismatch = 13,
    object_not_set = 91,
    invalid_pattern = 93,
    invalid_use_of_null = 94,
    object_required = 424,
    no_such_member = 438,
    named_argument_not_found = 448,
    argument_not_optional = 449,
    wrong_argument_count = 450,
    host_refused = 1004,
};

// The description that the run time itself gives to a number.
std::u16string_view standard_description(ErrorNumber number) noexcept;

// What the host or the run time raises: a number, a source text that grows into a trace, and a description.
class Error final : public std::exception {
  public:
    explicit Error(ErrorNumber number, std::u16string source = {})
        : Error(static_cast<std::int32_t>(number), std::move(source), std::u16string(standard_description(number))) {}
    Error(ErrorNumber number, std::u16string source, std::u16string description)
        : Error(static_cast<std::int32_t>(number), std::move(source), std::move(description)) {}
    Error(std::int32_t number, std::u16string source, std::u16string description);

    std::int32_t number() const noexcept { return number_; }
    const std::u16string& source() const noexcept { return source_; }
    const std::u16string& description() const noexcept { return description_; }

    // Puts a procedure's name and a carriage return in front of the source.
    void add_to_trace(std::u16string_view procedure);

    const char* what() const noexcept override { return what_.c_str(); }

  private:
    std::int32_t number_;
    std::u16string source_;
    std::u16string description_;
    std::string what_;
};

// Runs one statement whose failure is passed over: what it would have stored stays as it was.
// Returns the error's number, 0 if there was none. Only Error is caught: anything else is a defect.
template <class Statement>
std::int32_t attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return 0;
    } catch (const Error& error) {
        return error.number();
    }
}

// Runs a procedure whose failure is raised on, with the procedure's name added to the trace.
template <class Procedure>
decltype(auto) with_trace(std::u16string_view name, Procedure&& procedure) {
    try {
        return std::forward<Procedure>(procedure)();
    } catch (Error& error) {
        error.add_to_trace(name);
        throw;
    }
}

}  // namespace qor
