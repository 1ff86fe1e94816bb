#include "hosts/calc/adapter/files/recent_file_list.hpp"

#include <algorithm>
#include <com/sun/star/container/XNameContainer.hpp>

#include "hosts/calc/adapter/ground/configuration.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

using Access = Ref<css::container::XNameAccess>;

constexpr const char* address_property = "HistoryItemRef";

rtl::OUString number(std::size_t place) {
    return rtl::OUString::number(static_cast<sal_Int64>(place));
}

// The configuration holds the entries by their addresses, and beside them the addresses by their places "0", "1".
class PickList {
  public:
    explicit PickList(const Host& host) : histories_(host.context(), u"/org.openoffice.Office.Histories/Histories") {
        if (!histories_.node()->hasByName("PickList")) return;
        const Access list(histories_.value("PickList"));
        items_ = Access(list->getByName("ItemList"));
        order_ = Access(list->getByName("OrderList"));
    }

    std::vector<rtl::OUString> addresses() const {
        std::vector<rtl::OUString> result;
        for (std::size_t i = 0; order_ && order_->hasByName(number(i)); ++i) {
            result.push_back(value_of<rtl::OUString>(place(i)->getByName(address_name())));
        }
        return result;
    }

    void remove(const rtl::OUString& address) const {
        std::vector<rtl::OUString> left = addresses();
        const std::size_t count = left.size();
        if (std::erase(left, address) == 0) throw Error(ErrorNumber::host_refused);
        for (std::size_t i = 0; i < left.size(); ++i) {
            Ref<css::container::XNameReplace>(place(i))->replaceByName(address_name(), css::uno::Any(left[i]));
        }
        for (std::size_t i = left.size(); i < count; ++i) {
            Ref<css::container::XNameContainer>(order_)->removeByName(number(i));
        }
        if (items_->hasByName(address)) Ref<css::container::XNameContainer>(items_)->removeByName(address);
        histories_.commit();
    }

  private:
    static rtl::OUString address_name() { return rtl::OUString::createFromAscii(address_property); }
    Access place(std::size_t i) const { return Access(order_->getByName(number(i))); }

    Configuration histories_;
    Access items_;
    Access order_;
};

Configuration settings(const Host& host) {
    return {host.context(), u"/org.openoffice.Office.Common/History"};
}

}  // namespace

std::vector<std::u16string> recent_files(const Host& host) {
    std::vector<std::u16string> result;
    for (const rtl::OUString& address : PickList(host).addresses()) result.push_back(from_uno(address));
    return result;
}

void forget_recent_file(const Host& host, std::u16string_view address) {
    PickList(host).remove(to_uno(address));
}

std::int32_t recent_file_limit(const Host& host) {
    return value_of<sal_Int32>(settings(host).value("PickListSize"));
}

void set_recent_file_limit(const Host& host, std::int32_t limit) {
    constexpr std::int32_t highest = 50;
    if (limit < 0 || limit > highest) throw Error(ErrorNumber::host_refused);
    settings(host).set_value("PickListSize", css::uno::Any(sal_Int32{limit}));
}

}  // namespace qor::calc
