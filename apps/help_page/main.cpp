#include <fmt/format.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "apps/qorplus/value_text.hpp"
#include "functions/registry.hpp"
#include "platform/text.hpp"

namespace {

using namespace qor;

constexpr std::string_view place_of_functions = "<!-- functions -->";

std::string escaped(std::string_view text) {
    std::string result;
    for (const char character : text) {
        switch (character) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            default:
                result += character;
        }
    }
    return result;
}

std::string parameter_text(const Parameter& parameter) {
    std::string text = to_utf8(parameter.name);
    if (!parameter.is_optional()) return text;
    if (parameter.default_value->is_missing()) return "[" + text + "]";
    return fmt::format("[{} = {}]", text, cli::show_value(*parameter.default_value));
}

// As it is typed in a cell.
std::string value_text(const Variant& value) {
    if (const auto* text = value.get_if<std::u16string>()) return '"' + to_utf8(*text) + '"';
    return value.is_missing() ? "" : cli::show_value(value);
}

template <class Items, class Text>
std::string joined(const Items& items, const Text& text_of) {
    std::string text;
    for (const auto& item : items) text += (text.empty() ? "" : "; ") + text_of(item);
    return text;
}

std::string section(const Function& function) {
    const std::string name = to_utf8(function.name);
    std::string text =
        fmt::format("<section id=\"{}\"><h3>{}</h3>\n<p class=\"call\">{}({})</p>\n<p>{}</p>\n", function.help_id, name,
                    name, escaped(joined(function.parameters, parameter_text)), escaped(to_utf8(function.description)));
    if (!function.examples.empty()) {
        const Example& example = function.examples.front();
        text += fmt::format("<p class=\"example\">={}({}) gives {}</p>\n", name,
                            escaped(joined(example.arguments, value_text)), escaped(cli::show_value(example.result)));
    }
    return text + "</section>\n";
}

std::string content_of(const char* path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

}  // namespace

// help_page WRITTEN PAGE: the written page with the functions in their place.
int main(int argc, char** argv) {
    if (argc != 3) return EXIT_FAILURE;
    std::string page = content_of(argv[1]);
    const std::size_t place = page.find(place_of_functions);
    if (place == std::string::npos) {
        std::cerr << argv[1] << " has no place for the functions\n";
        return EXIT_FAILURE;
    }
    std::string functions;
    for (const Function& function : worksheet_functions()) functions += section(function);
    page.replace(place, place_of_functions.size(), functions);
    return std::ofstream(argv[2]) << page << std::flush ? EXIT_SUCCESS : EXIT_FAILURE;
}
