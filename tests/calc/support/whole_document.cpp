#include "tests/calc/support/whole_document.hpp"

#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/frame/XStorable.hpp>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/file_address.hpp"
#include "platform/text.hpp"

namespace qor::calc::tests {
namespace {

Document newest() {
    return Host(office_context()).documents().back();
}

Ref<css::document::XUndoManager> undo_list() {
    return {Ref<css::document::XUndoManagerSupplier>(newest())->getUndoManager()};
}

// From one word of the text to another, both included.
std::string part(const std::string& text, std::string_view from, std::string_view to) {
    const std::size_t first = text.find(from);
    const std::size_t last = text.find(to);
    REQUIRE(first != std::string::npos);
    REQUIRE(last != std::string::npos);
    return text.substr(first, last + to.size() - first);
}

}  // namespace

std::string whole_document() {
    const test::TemporaryFolder folder;
    const std::filesystem::path file = folder.path / "whole-document.fods";
    const css::beans::PropertyValue filter =
        named_value("FilterName", rtl::OUString("OpenDocument Spreadsheet Flat XML"));
    const PropertyValues how(&filter, 1);
    Ref<css::frame::XStorable>(newest())->storeToURL(to_uno(address_of_path(file.u16string())), how);
    const std::string text = test::content_of(file);
    return part(text, "<office:automatic-styles", "</office:automatic-styles>") +
           part(text, "<office:body>", "</office:body>");
}

std::vector<std::string> undo_titles() {
    std::vector<std::string> titles;
    for (const rtl::OUString& title : undo_list()->getAllUndoActionTitles()) {
        titles.push_back(to_utf8(view_of(title)));
    }
    return titles;
}

void undo() {
    undo_list()->undo();
}
void redo() {
    undo_list()->redo();
}
void clear_undo() {
    undo_list()->clear();
}

UnchangedDocument::UnchangedDocument() : document_(newest()) {
    Ref<css::frame::XModel>(document_)->lockControllers();
}
UnchangedDocument::~UnchangedDocument() {
    Ref<css::frame::XModel>(document_)->unlockControllers();
}

void UnchangedDocument::check() {
    constexpr int every = 10;
    if (++asked_ % every == 0) check_now();
}

void UnchangedDocument::check_now() const {
    CHECK((whole_document() == before_));
}

}  // namespace qor::calc::tests
