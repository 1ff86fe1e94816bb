#include "hosts/calc/adapter/sheets/sheet_print.hpp"

#include <algorithm>
#include <com/sun/star/awt/PrinterServer.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/view/PrintableState.hpp>
#include <com/sun/star/view/XPrintJobBroadcaster.hpp>
#include <com/sun/star/view/XPrintJobListener.hpp>
#include <com/sun/star/view/XPrintable.hpp>
#include <cppuhelper/implbase1.hxx>
#include <filesystem>
#include <rtl/ref.hxx>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/sheets/drawn_objects.hpp"
#include "hosts/calc/adapter/sheets/kept_view.hpp"
#include "hosts/calc/adapter/sheets/used_area.hpp"
#include "hosts/calc/uno/listening.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/file_address.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

PropertyValues sequence(const std::vector<css::beans::PropertyValue>& values) {
    return {values.data(), static_cast<sal_Int32>(values.size())};
}

bool is_empty(const Sheet& sheet) {
    const Rectangle used = used_area(sheet);
    if (used.cells() > 1 || count_drawn_objects(sheet) > 0) return false;
    return Ref(Ref<css::sheet::XCellRangesQuery>(cells_at(sheet, used))->queryEmptyCells())
               ->getRangeAddresses()
               .getLength() > 0;
}

std::u16string number(std::int32_t value) {
    return from_utf8(std::to_string(value));
}

// Hears how a print job ends. Where nothing takes the pages, as without a print service, the office says so to
// listeners only.
class PrintResult final : public cppu::WeakImplHelper1<css::view::XPrintJobListener> {
  public:
    void SAL_CALL printJobEvent(const css::view::PrintJobEvent& event) override {
        using namespace css::view;
        failed_ = failed_ || event.State == PrintableState_JOB_FAILED || event.State == PrintableState_JOB_ABORTED ||
                  event.State == PrintableState_JOB_SPOOLING_FAILED;
    }
    void SAL_CALL disposing(const css::lang::EventObject&) override {}
    bool failed() const { return failed_; }

  private:
    bool failed_ = false;
};

// Raises 1004 where the job fails.
void print(const Document& document, const PropertyValues& options) {
    const Ref<css::view::XPrintJobBroadcaster> jobs(document);
    const rtl::Reference<PrintResult> result(new PrintResult);
    const Listening listening(jobs, &css::view::XPrintJobBroadcaster::addPrintJobListener,
                              &css::view::XPrintJobBroadcaster::removePrintJobListener, result.get());
    Ref<css::view::XPrintable>(document)->print(options);
    if (result->failed()) throw Error(ErrorNumber::host_refused, {}, u"The pages cannot be printed.");
}

// The office prints with another one where it does not know the printer, or with none at all.
void require_printer(const HostPointer& host, const std::optional<std::u16string>& name) {
    const Ref server{css::awt::PrinterServer::create(host->context().reference())};
    const auto printers = server->getPrinterNames();
    if (printers.getLength() == 0) throw Error(ErrorNumber::host_refused, {}, u"No printers are installed.");
    if (!name || std::ranges::find(printers, to_uno(*name)) != printers.end()) return;
    throw Error(ErrorNumber::host_refused, {}, u"There is no printer '" + *name + u"'.");
}

}  // namespace

// The office prints the sheets that are selected.
void print_sheet(const Sheet& sheet, const PrintOptions& options) {
    const KeptView view(sheet.book);
    select_sheets(sheet.book, {sheet.index()}, true);
    if (is_empty(sheet)) return;
    std::vector<css::beans::PropertyValue> values{named_value("CopyCount", static_cast<sal_Int16>(options.copies)),
                                                  named_value("Collate", options.collate), named_value("Wait", true)};
    if (options.first_page || options.last_page) {
        const std::u16string last = options.last_page ? number(*options.last_page) : std::u16string();
        values.push_back(named_value("Pages", to_uno(number(options.first_page.value_or(1)) + u"-" + last)));
    }
    if (options.file) {
        values.push_back(named_value("FileName", to_uno(address_of_path(*options.file))));
    }
    if (!options.file || options.printer) require_printer(sheet.book.host, options.printer);
    if (options.printer) {
        const css::beans::PropertyValue name = named_value("Name", to_uno(*options.printer));
        Ref<css::view::XPrintable>(sheet.book.document)->setPrinter(sequence({name}));
    }
    print(sheet.book.document, sequence(values));
    std::error_code ignored;
    if (options.file && !std::filesystem::is_regular_file(to_utf8(*options.file), ignored)) {
        throw Error(ErrorNumber::host_refused, {}, u"'" + *options.file + u"' cannot be written.");
    }
}

}  // namespace qor::calc
