#include "hosts/calc/adapter/ground/command.hpp"

#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>

namespace qor::calc {

void run_command(const Book& book, const char* command, const PropertyValues& arguments) {
    const Ref helper{css::frame::DispatchHelper::create(book.host->context().reference())};
    const Ref controller{book.model()->getCurrentController()};
    const Ref<css::frame::XDispatchProvider> frame(Ref{controller->getFrame()});
    helper->executeDispatch(frame.reference(), rtl::OUString::createFromAscii(command), {}, 0, arguments);
}

}  // namespace qor::calc
