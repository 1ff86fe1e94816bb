#include "bench/calc/tool_workload.hpp"

#include <nlohmann/json.hpp>

#include "ground/MMain.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/uno/ref.hpp"
#include "runtime/conversion.hpp"

namespace qor::bench {

ToolWorkload::ToolWorkload(const Context& context)
    : application(calc::make_application(context, nullptr)), book(application.get(names::Workbooks).call(names::Add)) {
    set_environment({screen_, settings_});
    com_ = make_object<CCom>();
}

ToolWorkload::~ToolWorkload() {
    attempt([&] {
        for (const Variant& one : application.get(names::Workbooks).object().items()) one.call(names::Close, false);
    });
}

std::uint64_t ToolWorkload::report(std::u16string_view command) {
    const nlohmann::json script = {
        {"forms", {{{{"check", "ctlTreeView"}, {"node", "ROOT"}}, {{"press", "cmdButton(0)"}}}}}};
    const std::uint64_t before = calc::host_calls;
    screen_.begin_call(script);
    {
        const calc::UndoStep step{std::u16string(command)};
        com_.call(MemberName(command), application);
    }
    screen_.end_call();
    return calc::host_calls - before;
}

std::u16string ToolWorkload::name() const {
    return to_text(book.get(names::Name));
}

void ToolWorkload::close_others() {
    for (const Variant& one : application.get(names::Workbooks).object().items()) {
        if (!one.object().is(book)) one.call(names::Close, false);
    }
}

}  // namespace qor::bench
