#include "hosts/calc/adapter/user/office_user.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/awt/MessageBoxButtons.hpp>
#include <com/sun/star/awt/MessageBoxResults.hpp>
#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/XMessageBoxFactory.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/system/SystemShellExecute.hpp>
#include <com/sun/star/system/SystemShellExecuteFlags.hpp>
#include <com/sun/star/ui/dialogs/ExecutableDialogResults.hpp>
#include <com/sun/star/ui/dialogs/FilePicker.hpp>
#include <com/sun/star/ui/dialogs/TemplateDescription.hpp>

#include "hosts/calc/adapter/ground/file_paths.hpp"
#include "hosts/calc/adapter/user/range_picker.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "platform/file_address.hpp"

namespace qor::calc {
namespace {

namespace buttons = css::awt::MessageBoxButtons;
namespace dialogs = css::ui::dialogs;

// In the order of MessageButtons.
constexpr std::array office_buttons{
    buttons::BUTTONS_OK,
    buttons::BUTTONS_OK_CANCEL,
    buttons::BUTTONS_ABORT_IGNORE_RETRY,
    buttons::BUTTONS_YES_NO_CANCEL,
    buttons::BUTTONS_YES_NO,
    buttons::BUTTONS_RETRY_CANCEL,
};

// In the order of MessageIcon.
constexpr std::array office_boxes{
    css::awt::MessageBoxType_MESSAGEBOX, css::awt::MessageBoxType_ERRORBOX, css::awt::MessageBoxType_QUERYBOX,
    css::awt::MessageBoxType_WARNINGBOX, css::awt::MessageBoxType_INFOBOX,
};

struct Button {
    MessageAnswer answer;
    std::int32_t as_default;
    std::int32_t result;
};

constexpr std::array answers{
    Button{MessageAnswer::ok, buttons::DEFAULT_BUTTON_OK, css::awt::MessageBoxResults::OK},
    Button{MessageAnswer::cancel, buttons::DEFAULT_BUTTON_CANCEL, css::awt::MessageBoxResults::CANCEL},
    Button{MessageAnswer::abort, buttons::DEFAULT_BUTTON_CANCEL, css::awt::MessageBoxResults::CANCEL},
    Button{MessageAnswer::retry, buttons::DEFAULT_BUTTON_RETRY, css::awt::MessageBoxResults::RETRY},
    Button{MessageAnswer::ignore, buttons::DEFAULT_BUTTON_IGNORE, css::awt::MessageBoxResults::IGNORE},
    Button{MessageAnswer::yes, buttons::DEFAULT_BUTTON_YES, css::awt::MessageBoxResults::YES},
    Button{MessageAnswer::no, buttons::DEFAULT_BUTTON_NO, css::awt::MessageBoxResults::NO},
};

class OfficeUser final : public HostUser {
  public:
    explicit OfficeUser(Context context) : context_(std::move(context)) {}

    MessageAnswer message_box(const MessageBox& message) override {
        const auto* preset = std::ranges::find(answers, default_answer(message), &Button::answer);
        const Ref<css::awt::XMessageBoxFactory> factory(Ref{css::awt::Toolkit::create(context_.reference())});
        const Ref box{
            factory->createMessageBox(window().reference(), office_boxes.at(static_cast<std::size_t>(message.icon)),
                                      office_buttons.at(static_cast<std::size_t>(message.buttons)) | preset->as_default,
                                      to_uno(message.title), to_uno(message.text))};
        const std::int32_t result = box->execute();
        for (const MessageAnswer offered : answers_of(message.buttons)) {
            if (std::ranges::find(answers, offered, &Button::answer)->result == result) return offered;
        }
        return preset->answer;
    }

    std::optional<std::u16string> file_to_save(FileDialog& dialog) override {
        const Ref picker{dialogs::FilePicker::createWithMode(context_.reference(),
                                                             dialogs::TemplateDescription::FILESAVE_AUTOEXTENSION)};
        picker->setTitle(to_uno(dialog.title));
        for (const auto& kind : dialog.kinds) picker->appendFilter(to_uno(kind.description), to_uno(kind.pattern));
        if (!dialog.kinds.empty()) {
            picker->setCurrentFilter(to_uno(dialog.kinds.at(dialog.chosen_kind).description));
        }
        const std::u16string name = file_name_of(dialog.file_name);
        const std::u16string folder = dialog.file_name.substr(0, dialog.file_name.size() - name.size());
        if (!folder.empty() || !dialog.folder.empty()) {
            picker->setDisplayDirectory(to_uno(address_of_path(folder.empty() ? dialog.folder : folder)));
        }
        picker->setDefaultName(to_uno(name));
        if (picker->execute() != dialogs::ExecutableDialogResults::OK) return {};
        const auto chosen = picker->getSelectedFiles();
        if (!chosen.hasElements()) return {};
        const rtl::OUString kind = picker->getCurrentFilter();
        const auto place = std::ranges::find(dialog.kinds, view_of(kind), &FileDialog::Kind::description);
        if (place != dialog.kinds.end()) dialog.chosen_kind = static_cast<std::size_t>(place - dialog.kinds.begin());
        return path_of_address(view_of(chosen[0]));
    }

    std::optional<std::u16string> range(const RangeQuestion& question) override {
        return pick_range(context_, question);
    }

    bool show_page(const std::u16string& address) override {
        const auto show = [&] {
            const Ref system{css::system::SystemShellExecute::create(context_.reference())};
            system->execute(to_uno(address), {}, css::system::SystemShellExecuteFlags::URIS_ONLY);
        };
        return attempt([&] { guarded(show); }) == 0;
    }

  private:
    // Whatever is in front, so that the box stands before it.
    Ref<css::awt::XWindowPeer> window() const {
        const Ref desktop{css::frame::Desktop::create(context_.reference())};
        const Ref frame{desktop->getCurrentFrame()};
        if (!frame) return {};
        return Ref<css::awt::XWindowPeer>(Ref{frame->getContainerWindow()});
    }

    Context context_;
};

}  // namespace

std::shared_ptr<HostUser> office_user(const Context& context) {
    return std::make_shared<OfficeUser>(context);
}

}  // namespace qor::calc
