#include <com/sun/star/document/XDocumentPropertiesSupplier.hpp>
#include <com/sun/star/frame/Desktop.hpp>

#include "hosts/calc/uno/ref.hpp"
#include "tests/calc/support/report_run.hpp"

namespace qor::calc::tests {
namespace {

using nlohmann::json;

const Variant none = Empty{};
constexpr std::int32_t text_property = 4;
constexpr std::int32_t date_property = 3;

// In the workbook in front; the object model only reads it.
void set_creation_date(const css::util::DateTime& date) {
    const auto desktop = css::frame::Desktop::create(office_context());
    const Ref<css::document::XDocumentPropertiesSupplier> document(Ref{desktop->getCurrentComponent()});
    document->getDocumentProperties()->setCreationDate(date);
}

}  // namespace

TEST_CASE("the Workbook Summary has a row for each checked workbook with its document properties") {
    ToolRun run;
    const Object book = run.add_book();
    const auto built_in = [&](const char16_t* name) { return book.get(names::BuiltinDocumentProperties, name); };
    built_in(u"Author").put(names::Value, u"Mary Smith");
    built_in(u"Category").put(names::Value, u"Forecasts");
    built_in(u"Keywords").put(names::Value, u"budget, cash");
    built_in(u"Subject").put(names::Value, u"Cash flow");
    built_in(u"Title").put(names::Value, u"Model 7");
    const Object custom = book.get(names::CustomDocumentProperties);
    custom.call(names::Add, u"Client", false, text_property, u"Miller & Sons");
    custom.call(names::Add, u"Forward to", false, text_property, u"R. Jones");
    custom.call(names::Add, u"Recorded date", false, date_property, Date{38061});
    set_creation_date({0, 0, 0, 6, 15, 3, 2004, false});
    const Object saved = run.reopened(book, "summary.ods");
    const Variant path = saved.get(names::FullName);
    const Variant never_saved = run.add_book().get(names::Name);

    const json shown = run.call(u"UTWokSum", report_on_all());

    CHECK(shown["forms"][0]["name"] == "frmWBSum");
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Workbook Summary");
    CHECK(shown["forms"][0]["helpId"] == 170180);
    CHECK(run.cell(1, 1) == u"Report - Workbook Summary");
    const Report report = read_report(run.active_sheet());
    CHECK(report.headings.size() == 39);
    CHECK(report.headings.front() == u"Workbook Name");
    CHECK(report.headings.back() == u"Custom - Typist");
    CHECK(report.column(u"Workbook Name") == std::vector<Variant>{u"summary.ods", never_saved});
    CHECK(report.at(0, u"Author") == u"Mary Smith");
    CHECK(report.at(0, u"Category") == u"Forecasts");
    CHECK(report.at(0, u"Keywords") == u"budget, cash");
    CHECK(report.at(0, u"Subject") == u"Cash flow");
    CHECK(report.at(0, u"Title") == u"Model 7");
    CHECK(report.column(u"File Location") == std::vector<Variant>{path, never_saved});
    CHECK(report.at(0, u"File Date Created") == Date{38061.25});
    CHECK(report.at(0, u"Custom - Client") == u"Miller & Sons");
    CHECK(report.at(0, u"Custom - Forward To") == u"R. Jones");
    CHECK(report.at(0, u"Custom - Recorded Date") == Date{38061});
    CHECK(report.column(u"Custom - Editor") == std::vector<Variant>{none, none});
    // The column has its heading, and nothing is read for it.
    CHECK(report.column(u"Last Author") == std::vector<Variant>{none, none});
    CHECK(run.active_sheet().get(names::Range, u"G6").get(names::HorizontalAlignment) == -4131);
}

}  // namespace qor::calc::tests
