#include "hosts/calc/adapter/ground/status_bar.hpp"

#include <com/sun/star/task/XStatusIndicatorFactory.hpp>

#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {

void StatusBar::show(const std::u16string& text, const Controller& window) {
    give_back();
    text_ = text;
    if (!window) return;
    const Ref<css::task::XStatusIndicatorFactory> factory(Ref{window->getFrame()});
    indicator_ = Ref{factory->createStatusIndicator()};
    indicator_->start(to_uno(text), 0);
}

void StatusBar::give_back() {
    text_ = false;
    if (!indicator_) return;
    // Where it fails, the window was closed in between.
    attempt([&] { guarded([&] { std::exchange(indicator_, {})->end(); }); });
}

}  // namespace qor::calc
