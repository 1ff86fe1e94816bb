// Writes the calls of all worksheet functions to calls.vbs and calls.js in the folder named, one a line, and what each
// gives to results.txt: the error's number, the kind of the value and the value, floating-point numbers bit by bit.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "platform/text.hpp"
#include "tests/excel/native/calls.hpp"

using namespace qor;
using test::FunctionCall;

namespace {

std::string hexadecimal(double value) {
    char text[40];
    std::snprintf(text, sizeof(text), "%a", value);
    return text;
}

std::string digits(double value) {
    char text[40];
    std::snprintf(text, sizeof(text), "%.17g", value);
    return text;
}

std::string units(std::u16string_view text) {
    std::string result;
    for (const char16_t unit : text) {
        if (!result.empty()) result += ' ';
        result += std::to_string(static_cast<unsigned>(unit));
    }
    return result;
}

// A text that a script's own rules for texts would touch is asked of the test by its units.
std::string literal(std::u16string_view text) {
    const bool is_plain = std::ranges::all_of(
        text, [](char16_t unit) { return unit >= u' ' && unit <= u'~' && unit != u'"' && unit != u'\\'; });
    return is_plain ? '"' + to_utf8(text) + '"' : "T.Text(\"" + units(text) + "\")";
}

struct VisualBasic {
    std::string operator()(Empty) const { return "Empty"; }
    std::string operator()(Null) const { return "Null"; }
    std::string operator()(Missing) const { return ""; }
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    std::string operator()(std::int16_t value) const { return "CInt(" + std::to_string(value) + ")"; }
    std::string operator()(std::int32_t value) const { return "CLng(" + std::to_string(value) + ")"; }
    std::string operator()(double value) const { return "CDbl(" + digits(value) + ")"; }
    std::string operator()(Date value) const { return "CDate(" + digits(value.serial) + ")"; }
    std::string operator()(const std::u16string& value) const { return literal(value); }
    template <class Other>
    std::string operator()(const Other&) const {
        throw std::logic_error("no example has such an argument");
    }
};

// What JScript has no word for is asked of the test.
struct JavaScript {
    std::string operator()(Empty) const { return "undefined"; }
    std::string operator()(Null) const { return "null"; }
    std::string operator()(Missing) const { return "T.Omitted"; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int16_t value) const { return std::to_string(value); }
    std::string operator()(std::int32_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return digits(value); }
    std::string operator()(Date value) const { return "T.Day(" + digits(value.serial) + ")"; }
    std::string operator()(const std::u16string& value) const { return literal(value); }
    template <class Other>
    std::string operator()(const Other&) const {
        throw std::logic_error("no example has such an argument");
    }
};

struct Result {
    std::string operator()(Empty) const { return "empty"; }
    std::string operator()(bool value) const { return value ? "boolean 1" : "boolean 0"; }
    std::string operator()(std::int16_t value) const { return "number " + hexadecimal(value); }
    std::string operator()(std::int32_t value) const { return "number " + hexadecimal(value); }
    std::string operator()(double value) const { return "number " + hexadecimal(value); }
    std::string operator()(Date value) const { return "date " + hexadecimal(value.serial); }
    std::string operator()(const std::u16string& value) const { return "text " + units(value); }
    template <class Other>
    std::string operator()(const Other&) const {
        throw std::logic_error("no function gives such a result");
    }
};

template <class Language>
std::string joined(const FunctionCall& call, const Language& language) {
    std::string text;
    for (const Variant& argument : call.arguments) {
        if (!text.empty() || &argument != call.arguments.data()) text += ", ";
        text += argument.visit(language);
    }
    return text;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: write_function_calls FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder(arguments[1]);
    std::filesystem::create_directories(folder);
    std::ofstream basic(folder / "calls.vbs");
    std::ofstream script(folder / "calls.js");
    std::ofstream results(folder / "results.txt");
    basic << "On Error Resume Next\n";
    for (const FunctionCall& call : test::function_calls()) {
        const std::string name = to_utf8(call.function);
        basic << "v = Empty: Err.Clear: v = C." << name << "(" << joined(call, VisualBasic{})
              << "): T.Result v, Err.Number\n";
        script << "var v = undefined, n = 0; try { v = C." << name << "(" << joined(call, JavaScript{})
               << "); } catch (e) { n = e.number & 0xFFFF; } T.Result(v, n);\n";
        results << name << ' ' << call.error << ' ' << (call.error == 0 ? call.result.visit(Result{}) : "empty")
                << '\n';
    }
    basic.close();
    script.close();
    results.close();
    return basic && script && results ? 0 : 1;
}
