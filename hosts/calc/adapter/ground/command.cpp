#include "hosts/calc/adapter/ground/command.hpp"

#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>

namespace qor::calc {

void run_command(const Book& book, const char* command, const PropertyValues& arguments) {
    const Ref helper{css::frame::DispatchHelper::create(book.host->context())};
    const Ref controller{book.model()->getCurrentController()};
    const css::uno::Reference<css::frame::XDispatchProvider> frame(controller->getFrame(), css::uno::UNO_QUERY);
    helper->executeDispatch(frame, rtl::OUString::createFromAscii(command), {}, 0, arguments);
}

}  // namespace qor::calc
