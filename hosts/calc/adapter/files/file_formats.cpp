#include "hosts/calc/adapter/files/file_formats.hpp"

#include <algorithm>
#include <array>

#include "automation/host_numbers.hpp"
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

namespace number = numbers::file_format;

// Of the numbers for one kind of file the first is the one that a workbook answers.
constexpr std::array formats{
    FileFormat{u"xls", number::normal_workbook, "MS Excel 97", ""},
    FileFormat{u"xls", number::workbook_97, "MS Excel 97", ""},
    FileFormat{u"xls", number::workbook_95_and_97, "MS Excel 97", ""},
    FileFormat{u"xls", number::workbook_95, "MS Excel 5.0/95", ""},
    FileFormat{u"xls", number::workbook_95, "MS Excel 95", ""},
    FileFormat{u"xls", number::workbook_4, "MS Excel 4.0", ""},
    FileFormat{u"xlsx", number::workbook, "Calc MS Excel 2007 XML", ""},
    FileFormat{u"xlsx", number::workbook, "Calc Office Open XML", ""},
    FileFormat{u"xlsm", number::workbook_with_macros, "Calc MS Excel 2007 VBA XML", ""},
    FileFormat{u"xlsb", number::binary_workbook, "Calc MS Excel 2007 Binary", ""},
    FileFormat{u"xltx", number::workbook_template, "Calc MS Excel 2007 XML Template", ""},
    FileFormat{u"xlt", number::template_97, "MS Excel 97 Vorlage/Template", ""},
    FileFormat{u"ods", number::open_document, "calc8", ""},
    FileFormat{u"ots", number::open_document, "calc8_template", ""},
    FileFormat{u"csv", number::comma_separated, text_filter, comma_separated},
    FileFormat{u"csv", number::comma_separated_unicode, text_filter, comma_separated_unicode},
    FileFormat{u"txt", number::text, text_filter, tab_separated},
    FileFormat{u"txt", number::text_windows, text_filter, tab_separated_windows},
    FileFormat{u"prn", number::text_printer, text_filter, fixed_width},
    FileFormat{u"slk", number::symbolic_link, "SYLK", "", true},
    FileFormat{u"dif", number::data_interchange, "DIF", "76", true},
    FileFormat{u"dbf", number::dbase_3, "dBase", "76"},
    FileFormat{u"dbf", number::dbase_2, "dBase", "76"},
    FileFormat{u"dbf", number::dbase_4, "dBase", "76"},
    FileFormat{u"html", number::web_page, "HTML (StarCalc)", ""},
    FileFormat{u"wk1", number::lotus_1, "Lotus", ""},
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
