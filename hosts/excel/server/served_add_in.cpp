#include "hosts/excel/server/served_add_in.hpp"

#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "ground/product.hpp"
#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/screen/face_bitmaps.hpp"
#include "hosts/excel/screen/system_screen.hpp"
#include "hosts/excel/server/identity.hpp"
#include "hosts/excel/server/module.hpp"
#include "platform/registry_path.hpp"
#include "platform/windows/registry_settings_store.hpp"

namespace qor::excel {
namespace {

// What the core stands on, for as long as the library is loaded.
struct Foundation {
    SystemScreen screen;
    RegistrySettingsStore settings{registry_path(product::company, product::title, product::version, {})};
    FaceBitmaps faces;

    Foundation() { set_environment({screen, settings, faces}); }
};

const TableNames& names() {
    static const TableNames table(CCom::members());
    return table;
}

class ServedAddIn final : public ServedObject {
  public:
    ServedAddIn() : ServedObject(make_object<CCom>(), names()) {}

    // An error may leave the host's application in gExcel, which would then live on. A command that waits in a dialog
    // while another call fails keeps its own.
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID interface_id, LCID language, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* raised, UINT* wrong_argument) override {
        Object before = gExcel;
        const HRESULT answer =
            ServedObject::Invoke(id, interface_id, language, flags, parameters, result, raised, wrong_argument);
        if (FAILED(answer)) gExcel = std::move(before);
        return answer;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT place, LCID, ITypeInfo** result) override {
        if (!result) return E_POINTER;
        *result = nullptr;
        if (place != 0) return DISP_E_BADINDEX;
        ComPointer<ITypeLib> library;
        const HRESULT found = LoadTypeLibEx(module_path().c_str(), REGKIND_NONE, library.put());
        return FAILED(found) ? found : library->GetTypeInfoOfGuid(members_id, result);
    }
};

}  // namespace

ComPointer<IDispatch> make_add_in() {
    static const Foundation foundation;
    return ComPointer<IDispatch>(new ServedAddIn());
}

}  // namespace qor::excel
