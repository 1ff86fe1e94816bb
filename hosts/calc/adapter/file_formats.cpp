#include "hosts/calc/adapter/file_formats.hpp"

#include <algorithm>
#include <array>

#include "platform/text.hpp"

namespace qor::calc {
namespace {

// Separator, quote, UTF-8, first line, columns, language, quote all text, detect special numbers or save as shown.
constexpr const char* comma_separated = "44,34,76,1,,0,false,true,true";
constexpr const char* tab_separated = "9,34,76,1,,0,false,true,true";

constexpr const char* text_filter = "Text - txt - csv (StarCalc)";

// Of the numbers for one kind of file the first is the one that a workbook answers.
constexpr std::array formats{
    FileFormat{u"xls", -4143, "MS Excel 97", ""},
    FileFormat{u"xls", 56, "MS Excel 97", ""},
    FileFormat{u"xls", 43, "MS Excel 97", ""},
    FileFormat{u"xlsx", 51, "Calc MS Excel 2007 XML", ""},
    FileFormat{u"xlsm", 52, "Calc MS Excel 2007 VBA XML", ""},
    FileFormat{u"xltx", 54, "Calc MS Excel 2007 XML Template", ""},
    FileFormat{u"xlt", 17, "MS Excel 97 Vorlage/Template", ""},
    FileFormat{u"ods", 60, "calc8", ""},
    FileFormat{u"csv", 6, text_filter, comma_separated},
    FileFormat{u"csv", 62, text_filter, comma_separated},
    FileFormat{u"txt", -4158, text_filter, tab_separated},
    FileFormat{u"slk", 2, "SYLK", ""},
    FileFormat{u"dif", 9, "DIF", "76"},
    FileFormat{u"dbf", 8, "dBase", "76"},
    FileFormat{u"html", 44, "HTML (StarCalc)", ""},
};

template <class Fits>
const FileFormat* first_format(Fits fits) {
    const auto* found = std::ranges::find_if(formats, fits);
    return found == formats.end() ? nullptr : found;
}

}  // namespace

const FileFormat* format_of_number(std::int32_t number) {
    return first_format([&](const FileFormat& format) { return format.number == number; });
}

const FileFormat* format_of_path(std::u16string_view path) {
    const std::size_t dot = path.rfind(u'.');
    if (dot == std::u16string_view::npos) return nullptr;
    const std::u16string extension = to_lower(path.substr(dot + 1));
    return first_format([&](const FileFormat& format) { return format.extension == extension; });
}

const FileFormat* format_of_filter(std::u16string_view filter) {
    const std::string name = to_utf8(filter);
    return first_format([&](const FileFormat& format) { return format.filter == name; });
}

}  // namespace qor::calc
