#include "hosts/calc/adapter/user/office_user.hpp"

#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("in an office without a screen nobody answers") {
    const Calc calc;
    calc.add_book().call(names::Activate);
    const auto nobody = office_user(office_context());
    MessageBox message{
        .title = u"Title", .text = u"Text", .icon = MessageIcon::question, .buttons = MessageButtons::yes_no_cancel};
    CHECK(nobody->message_box(message) == MessageAnswer::cancel);
    message.buttons = MessageButtons::yes_no;
    message.default_button = 1;
    CHECK(nobody->message_box(message) == MessageAnswer::no);
    FileDialog dialog{.purpose = FileDialog::Purpose::save,
                      .title = u"Save As",
                      .kinds = {{u"Workbook", u"*.xls"}},
                      .folder = u"/tmp",
                      .file_name = u"book.xls"};
    CHECK_FALSE(nobody->file_to_save(dialog));
    CHECK_FALSE(nobody->range({.prompt = u"Select", .title = u"Title", .proposed = u""}));
    CHECK_FALSE(nobody->show_page(u"no address at all"));
}

}  // namespace qor::calc::tests
