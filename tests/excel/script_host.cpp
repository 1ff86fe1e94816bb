#include "tests/excel/script_host.hpp"

#include "hosts/excel/com/ole.hpp"
// After it, on which it stands.
#include <activscp.h>

#include <doctest/doctest.h>

#include <algorithm>

#include "hosts/excel/com/host_object.hpp"
#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/com/ole_text.hpp"
#include "platform/text.hpp"
#include "platform/windows/system_text.hpp"

namespace qor::test {
namespace {

// What the engine asks of its host. Lives on the stack of the run.
class Site final : public IActiveScriptSite, public IActiveScriptSiteWindow {
  public:
    explicit Site(const std::vector<NamedItem>& items) : items_(items) {}
    virtual ~Site() = default;

    const std::string& report() const noexcept { return report_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interface_id, void** result) override {
        *result = nullptr;
        if (interface_id == IID_IUnknown || interface_id == IID_IActiveScriptSite)
            *result = static_cast<IActiveScriptSite*>(this);
        else if (interface_id == IID_IActiveScriptSiteWindow)
            *result = static_cast<IActiveScriptSiteWindow*>(this);
        return *result ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE GetLCID(LCID* language) override {
        *language = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** unknown, ITypeInfo** info) override {
        if (info) *info = nullptr;
        const std::u16string wanted = from_system_text(name);
        const auto item =
            std::ranges::find_if(items_, [&](const NamedItem& one) { return equal_ignoring_case(one.name, wanted); });
        if (item == items_.end()) return TYPE_E_ELEMENTNOTFOUND;
        if ((mask & SCRIPTINFO_IUNKNOWN) != 0) *unknown = excel::to_host(item->object).detach();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override {
        EXCEPINFO raised{};
        DWORD context = 0;
        ULONG line = 0;
        LONG column = 0;
        error->GetExceptionInfo(&raised);
        error->GetSourcePosition(&context, &line, &column);
        report_ += "line " + std::to_string(line + 1) + ": " + to_utf8(excel::from_ole_text(raised.bstrDescription)) +
                   " (" + std::to_string(excel::number_of(raised.scode)) + ")\n";
        SysFreeString(raised.bstrSource);
        SysFreeString(raised.bstrDescription);
        SysFreeString(raised.bstrHelpFile);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
        *window = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

  private:
    const std::vector<NamedItem>& items_;
    std::string report_;
};

}  // namespace

std::string run_script(Language language, std::u16string_view text, const std::vector<NamedItem>& items) {
    CLSID engine_id{};
    REQUIRE(SUCCEEDED(CLSIDFromProgID(language == Language::java ? L"JScript" : L"VBScript", &engine_id)));
    excel::ComPointer<IActiveScript> engine;
    REQUIRE(SUCCEEDED(
        CoCreateInstance(engine_id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript), engine.put_void())));
    excel::ComPointer<IActiveScriptParse> parser;
    REQUIRE(SUCCEEDED(engine->QueryInterface(__uuidof(IActiveScriptParse), parser.put_void())));
    Site site(items);
    REQUIRE(SUCCEEDED(engine->SetScriptSite(&site)));
    REQUIRE(SUCCEEDED(parser->InitNew()));
    for (const NamedItem& item : items)
        REQUIRE(SUCCEEDED(engine->AddNamedItem(system_text(item.name).c_str(), SCRIPTITEM_ISVISIBLE)));
    REQUIRE(SUCCEEDED(engine->SetScriptState(SCRIPTSTATE_STARTED)));
    EXCEPINFO raised{};
    const HRESULT answer = parser->ParseScriptText(system_text(text).c_str(), nullptr, nullptr, nullptr, 0, 1,
                                                   SCRIPTTEXT_ISVISIBLE, nullptr, &raised);
    engine->SetScriptState(SCRIPTSTATE_DISCONNECTED);
    engine->Close();
    if (FAILED(answer) && site.report().empty()) return "the script could not be read or run";
    return site.report();
}

}  // namespace qor::test
