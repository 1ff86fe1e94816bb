#include <cstdio>
#include <memory>

#include "tests/calc/sheets/three_sheets.hpp"

namespace qor::calc::tests {

TEST_CASE("printing one sheet of a workbook") {
    const Calc calc;
    const Object book = three_sheets(calc);
    const Object first = book.get(names::Worksheets, 1);
    book.get(names::Worksheets).call(names::Add, named(names::Before, first)).put(names::Name, u"Empty");
    const std::filesystem::path file = calc.folder() / "printed.pdf";
    const auto printed = [&](const char16_t* sheet) {
        std::filesystem::remove(file);
        book.get(names::Worksheets, sheet)
            .call(names::PrintOut, named(MemberName(u"PrToFileName"), std::u16string(file.u16string())));
        if (!std::filesystem::exists(file)) return std::string("nothing");
        const std::unique_ptr<FILE, int (*)(FILE*)> text(
            ::popen(("pdftotext -layout '" + file.string() + "' -").c_str(), "r"), ::pclose);
        std::string numbers;
        for (int c = 0; (c = std::fgetc(text.get())) != EOF;) {
            if (c >= '0' && c <= '9') numbers += static_cast<char>(c);
        }
        return numbers;
    };
    // The sheet's name is in the header, the number of the page at the foot.
    CHECK(printed(u"Data") == "5101051");
    CHECK(printed(u"Sheet1") == "11001");
    CHECK(printed(u"Empty") == "nothing");
    CHECK(active_sheet(calc) == "Empty");
    // A printer that is not there, for paper and for a file.
    for (const bool into_file : {false, true}) {
        CAPTURE(into_file);
        std::filesystem::remove(file);
        const Variant path = into_file ? Variant(std::u16string(file.u16string())) : Variant(Missing{});
        CHECK(error_of([&] {
                  first.call(names::PrintOut, named(MemberName(u"ActivePrinter"), u"No such printer"),
                             named(MemberName(u"PrToFileName"), path));
              }) == 1004);
        CHECK_FALSE(std::filesystem::exists(file));
    }
    // This office has no print service.
    CHECK(error_of([&] { first.call(names::PrintOut); }) == 1004);
    CHECK(error_of([&] { book.get(names::Worksheets, u"Empty").call(names::PrintOut); }) == 0);
    CHECK(active_sheet(calc) == "Empty");
    first.put(names::Visible, 0);
    CHECK(error_of([&] { first.call(names::PrintOut); }) == 1004);
    const std::u16string nowhere((calc.folder() / "absent" / "x" / "y.pdf").u16string());
    CHECK(error_of([&] { first.call(names::PrintOut, named(MemberName(u"PrToFileName"), nowhere)); }) == 1004);
}

}  // namespace qor::calc::tests
