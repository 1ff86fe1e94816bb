#include "hosts/calc/adapter/files/file_formats.hpp"

#include <algorithm>
#include <array>

#include "platform/text.hpp"

namespace qor::calc {
namespace {

// Separator, quote, UTF-8, first line, columns, language, quote all text, detect special numbers, save as shown. What
// may follow is left out or written out with the value that it has anyway, so that two numbers of one kind of file can
// be told apart.
constexpr const char* comma_separated = "44,34,76,1,,0,false,true,true";
constexpr const char* comma_separated_unicode = "44,34,76,1,,0,false,true,true,false";
constexpr const char* tab_separated = "9,34,76,1,,0,false,true,true";
constexpr const char* tab_separated_windows = "9,34,76,1,,0,false,true,true,false";
constexpr const char* fixed_width = "FIX,34,76,1,,0,false,true,true";

constexpr const char* text_filter = "Text - txt - csv (StarCalc)";

// Of the numbers for one kind of file the first is the one that a workbook answers.
constexpr std::array formats{
    FileFormat{u"xls", -4143, "MS Excel 97", ""},
    FileFormat{u"xls", 56, "MS Excel 97", ""},
    FileFormat{u"xls", 43, "MS Excel 97", ""},
    FileFormat{u"xls", 39, "MS Excel 5.0/95", ""},
    FileFormat{u"xls", 39, "MS Excel 95", ""},
    FileFormat{u"xls", 33, "MS Excel 4.0", ""},
    FileFormat{u"xlsx", 51, "Calc MS Excel 2007 XML", ""},
    FileFormat{u"xlsx", 51, "Calc Office Open XML", ""},
    FileFormat{u"xlsm", 52, "Calc MS Excel 2007 VBA XML", ""},
    FileFormat{u"xlsb", 50, "Calc MS Excel 2007 Binary", ""},
    FileFormat{u"xltx", 54, "Calc MS Excel 2007 XML Template", ""},
    FileFormat{u"xlt", 17, "MS Excel 97 Vorlage/Template", ""},
    FileFormat{u"ods", 60, "calc8", ""},
    FileFormat{u"ots", 60, "calc8_template", ""},
    FileFormat{u"csv", 6, text_filter, comma_separated},
    FileFormat{u"csv", 62, text_filter, comma_separated_unicode},
    FileFormat{u"txt", -4158, text_filter, tab_separated},
    FileFormat{u"txt", 20, text_filter, tab_separated_windows},
    FileFormat{u"prn", 36, text_filter, fixed_width},
    FileFormat{u"slk", 2, "SYLK", "", true},
    FileFormat{u"dif", 9, "DIF", "76", true},
    FileFormat{u"dbf", 8, "dBase", "76"},
    FileFormat{u"dbf", 7, "dBase", "76"},
    FileFormat{u"dbf", 11, "dBase", "76"},
    FileFormat{u"html", 44, "HTML (StarCalc)", ""},
    FileFormat{u"wk1", 5, "Lotus", ""},
};

template <class Fits>
const FileFormat* first_format(Fits fits) {
    const auto* found = std::ranges::find_if(formats, fits);
    return found == formats.end() ? nullptr : found;
}

// What lies between the values of a text file.
std::string_view separator_in(std::string_view options) {
    return options.substr(0, options.find(','));
}

}  // namespace

const FileFormat* format_of_number(std::int32_t number) {
    return first_format([&](const FileFormat& format) { return format.number == number; });
}

const FileFormat* format_of_path(std::u16string_view path) {
    const std::u16string_view name = path.substr(path.rfind(u'/') + 1);
    const std::size_t dot = name.rfind(u'.');
    if (dot == std::u16string_view::npos) return nullptr;
    const std::u16string extension = to_lower(name.substr(dot + 1));
    return first_format([&](const FileFormat& format) { return format.extension == extension; });
}

const FileFormat* format_of_filter(std::u16string_view filter, std::u16string_view options) {
    const std::string name = to_utf8(filter);
    const std::string said = to_utf8(options);
    const auto same_filter = [&](const FileFormat& format) { return format.filter == name; };
    const FileFormat* exact =
        first_format([&](const FileFormat& format) { return same_filter(format) && format.options == said; });
    if (exact) return exact;
    const FileFormat* near = first_format([&](const FileFormat& format) {
        return same_filter(format) && separator_in(format.options) == separator_in(said);
    });
    return near ? near : first_format(same_filter);
}

}  // namespace qor::calc
