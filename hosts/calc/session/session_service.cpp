#include "hosts/calc/session/session_service.hpp"

#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>
#include <nlohmann/json.hpp>

#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/session/open_documents.hpp"
#include "hosts/calc/session/scripted_user.hpp"
#include "hosts/calc/uno/main_thread.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "screens/script/script_error.hpp"
#include "session/session.hpp"

namespace qor::calc {
namespace {

namespace beans = com::sun::star::beans;
namespace lang = com::sun::star::lang;
namespace task = com::sun::star::task;
namespace uno = com::sun::star::uno;
using nlohmann::json;
using rtl::OUString;
using Arguments = uno::Sequence<beans::NamedValue>;

json problem(const char* kind, const std::string& message) {
    return {{"error", {{"kind", kind}, {"message", message}}}};
}

std::string told(const Error& error) {
    std::string text = to_utf8(error.description()) + " (error " + std::to_string(error.number());
    if (!error.source().empty()) text += ", " + to_utf8(error.source());
    return text + ")";
}

SessionHost session_host(const Context& context, const SessionFolders& folders) {
    return {
        .make_application =
            [context, &folders](ScriptScreen& screen, const std::filesystem::path& data_folder) {
                return make_application(context, std::make_shared<ScriptedUser>(screen, folders.current),
                                        from_utf8(data_folder.native()));
            },
        .undo_step =
            [](std::u16string_view title, const std::function<void()>& command) {
                const UndoStep step{std::u16string(title)};
                command();
            },
        .moved = [context](const std::filesystem::path& from,
                           const std::filesystem::path& to) { move_document(document_of(context, from), to); },
    };
}

class SessionService final : public cppu::WeakImplHelper2<task::XJob, lang::XServiceInfo> {
  public:
    explicit SessionService(const Context& context) : context_(context) {}

    uno::Any SAL_CALL execute(const Arguments& arguments) override {
        const json answer = play(arguments);
        // A transcript may hold text that is no valid Unicode: the cells of a workbook can.
        return uno::Any(to_uno(from_utf8(answer.dump(-1, ' ', false, json::error_handler_t::replace))));
    }

    OUString SAL_CALL getImplementationName() override { return "com.ombrel.qorplus.Session"; }
    sal_Bool SAL_CALL supportsService(const OUString& name) override { return cppu::supportsService(this, name); }
    uno::Sequence<OUString> SAL_CALL getSupportedServiceNames() override {
        const OUString service = getImplementationName();
        return {&service, 1};
    }

  private:
    static std::string text_in(const Arguments& arguments, const char* name) {
        OUString text;
        for (const beans::NamedValue& argument : arguments) {
            if (argument.Name.equalsAscii(name)) argument.Value >>= text;
        }
        return to_utf8(view_of(text));
    }

    // Whatever is thrown becomes an answer: nothing but that crosses into the other process.
    json play(const Arguments& arguments) const {
        json answer;
        try {
            run_on_main_thread(context_, [&] { answer = {{"transcript", play_on_main_thread(arguments)}}; });
        } catch (const ScriptError& error) {
            answer = problem("script", error.what());
        } catch (const json::exception& error) {
            answer = problem("script", error.what());
        } catch (const uno::Exception& error) {
            answer = problem("host", to_utf8(view_of(error.Message)));
        } catch (const Error& error) {
            answer = problem("host", told(error));
        } catch (const std::exception& error) {
            answer = problem("host", error.what());
        }
        return answer;
    }

    json play_on_main_thread(const Arguments& arguments) const {
        const SessionFolders folders{.current = text_in(arguments, "Folder"),
                                     .temporary = text_in(arguments, "TemporaryFolder"),
                                     .hidden_name = text_in(arguments, "HiddenName")};
        return qor::play(json::parse(text_in(arguments, "Script")), session_host(context_, folders), folders);
    }

    Context context_;
};

}  // namespace

uno::Reference<uno::XInterface> make_session_service(const Context& context) {
    return static_cast<cppu::OWeakObject*>(new SessionService(context));
}

}  // namespace qor::calc
