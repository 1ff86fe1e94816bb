#include "hosts/calc/companion/office_companion.hpp"

#include <com/sun/star/frame/Desktop.hpp>

#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "ground/product.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/adapter/user/office_user.hpp"
#include "hosts/calc/bars/bars.hpp"
#include "hosts/calc/companion/own_folder.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/main_thread.hpp"
#include "hosts/calc/uno/ref.hpp"
#include "hosts/calc/uno/running_command.hpp"
#include "platform/text.hpp"
#include "stores/data_folder.hpp"

namespace qor::calc {
namespace {

std::u16string data_path() {
    return from_utf8(data_folder(product::name).native());
}

void in_undo_step(std::u16string_view title, const std::function<void()>& command) {
    const UndoStep step{std::u16string(title)};
    command();
}

}  // namespace

OfficeCompanion::OfficeCompanion(const Context& context)
    : context_(context),
      settings_(settings_folder(product::name) / product::settings_file),
      screen_(context),
      faces_(context),
      bars_(Bars::of(context)),
      application_(make_application(context, office_user(context), data_path())) {
    set_environment({screen_, settings_, faces_});
    const auto report = [this](const Error& error) {
        screen_.message_box(
            {.title = std::u16string(product::title), .text = error.description(), .icon = MessageIcon::critical});
    };
    companion_.emplace(make_object<CCom>(),
                       Companion::Host{.application = application_, .undo_step = in_undo_step, .report = report});
    bars_->set_macro_runner([this](const std::u16string& macro) {
        run([&] { companion_->run_macro(macro); });
        set_timers();
    });
    events_ = std::make_unique<EventSource>(context, handlers());
    save_timer_ = events_->make_timer([this] { run([&] { companion_->save_by_time(); }); });
    review_timer_ = events_->make_timer([this] { run([&] { companion_->review_by_time(); }); });
}

void OfficeCompanion::start() {
    create_data_files(data_folder(product::name));
    const std::u16string help_file = from_utf8((own_folder() / "help.html").native());
    run([&] { companion_->start({.data_folder = data_path(), .help_file = help_file}); });
    set_timers();
}

bool OfficeCompanion::may_end() {
    if (screen_.close_dialogs()) {
        end_wanted_ = true;
        return false;
    }
    run([&] { companion_->save_menu_places(); });
    return true;
}

void OfficeCompanion::stop() {
    save_timer_.reset();
    review_timer_.reset();
    events_.reset();
    run([&] { companion_->stop(); });
    gExcel = Object();  // a command that ended early has left it, and it must not outlive the office
    bars_->set_macro_runner({});
}

void OfficeCompanion::run(const std::function<void()>& work) {
    {
        const RunningCommand running;
        attempt([&] { guarded(work); });
    }
    if (!std::exchange(end_wanted_, false)) return;
    post_to_main_thread(context_, [context = context_] {
        const Ref desktop{css::frame::Desktop::create(context.reference())};
        desktop->terminate();
    });
}

HostEvents OfficeCompanion::handlers() {
    HostEvents events;
    events.workbook_opened = [this](const std::u16string& name) { run([&] { companion_->workbook_opened(name); }); };
    events.workbook_created = [this](const std::u16string&) { run([&] { companion_->workbook_created(); }); };
    events.workbook_to_be_saved = [this](const std::u16string& name) {
        run([&] { companion_->workbook_to_be_saved(name); });
    };
    events.workbook_saved_as = [this](const std::u16string&) { run([&] { companion_->workbook_saved_as(); }); };
    events.selection_changed = [this](const SelectionPlace& place) {
        run([&] { companion_->selection_changed(place.worksheet, place.address); });
    };
    return events;
}

void OfficeCompanion::set_timers() {
    save_timer_->set(companion_->save_interval());
    review_timer_->set(companion_->review_interval());
}

}  // namespace qor::calc
