#include "tests/calc_document/calc_document.hpp"

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCalculatable.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/util/XCloseable.hpp>

#include "hosts/calc/uno/text.hpp"
#include "platform/file_address.hpp"
#include "platform/files.hpp"
#include "platform/text.hpp"

namespace qor::calc::tests {
namespace {

namespace frame = com::sun::star::frame;
namespace uno = com::sun::star::uno;
namespace sheet = com::sun::star::sheet;
namespace table = com::sun::star::table;
using rtl::OUString;

OUString file_url(const std::filesystem::path& path) {
    return to_uno(address_of_path(path_text(path)));
}

uno::Reference<sheet::XSpreadsheetDocument> load(const OUString& url, const Context& context) {
    const com::sun::star::beans::PropertyValue hidden("Hidden", 0, uno::Any(true),
                                                      com::sun::star::beans::PropertyState_DIRECT_VALUE);
    return {frame::Desktop::create(context)->loadComponentFromURL(url, "_blank", 0, {&hidden, 1}),
            uno::UNO_QUERY_THROW};
}

std::string utf8(const OUString& text) {
    return to_utf8(view_of(text));
}

}  // namespace

CalcDocument::CalcDocument(const Context& context) : document_(load("private:factory/scalc", context)) {}
CalcDocument::CalcDocument(const Context& context, const std::filesystem::path& file)
    : document_(load(file_url(file), context)) {}
CalcDocument::~CalcDocument() {
    uno::Reference<com::sun::star::util::XCloseable>(document_, uno::UNO_QUERY_THROW)->close(true);
}

uno::Reference<table::XCell> CalcDocument::cell(const char* address) const {
    const uno::Reference<com::sun::star::container::XIndexAccess> sheets(document_->getSheets(), uno::UNO_QUERY_THROW);
    const uno::Reference<table::XCellRange> first(sheets->getByIndex(0), uno::UNO_QUERY_THROW);
    return first->getCellRangeByName(OUString::createFromAscii(address))->getCellByPosition(0, 0);
}
void CalcDocument::enter(const char* address, const char* formula) const {
    cell(address)->setFormula(OUString::fromUtf8(formula));
}
std::string CalcDocument::shown(const char* address) const {
    return utf8(uno::Reference<com::sun::star::text::XText>(cell(address), uno::UNO_QUERY_THROW)->getString());
}
double CalcDocument::value(const char* address) const {
    return cell(address)->getValue();
}
std::string CalcDocument::formula(const char* address) const {
    return utf8(cell(address)->getFormula());
}
void CalcDocument::calculate() const {
    uno::Reference<sheet::XCalculatable>(document_, uno::UNO_QUERY_THROW)->calculate();
}
void CalcDocument::calculate_all() const {
    uno::Reference<sheet::XCalculatable>(document_, uno::UNO_QUERY_THROW)->calculateAll();
}

void CalcDocument::store(const std::filesystem::path& file) const {
    const std::string extension = file.extension();
    const char* filter = extension == ".ods" ? "calc8" : extension == ".xls" ? "MS Excel 97" : "Calc MS Excel 2007 XML";
    const com::sun::star::beans::PropertyValue value("FilterName", 0, uno::Any(OUString::createFromAscii(filter)),
                                                     com::sun::star::beans::PropertyState_DIRECT_VALUE);
    uno::Reference<frame::XStorable>(document_, uno::UNO_QUERY_THROW)->storeToURL(file_url(file), {&value, 1});
}

}  // namespace qor::calc::tests
