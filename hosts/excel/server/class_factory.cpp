#include "hosts/excel/server/class_factory.hpp"

#include <atomic>

#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/server/served_add_in.hpp"

namespace qor::excel {
namespace {

std::atomic<long> locks{0};

// Lives as long as the library; references to it and locks are one count.
class ClassFactory final : public IClassFactory {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interface_id, void** result) override {
        if (!result) return E_POINTER;
        *result = nullptr;
        if (interface_id != IID_IUnknown && interface_id != IID_IClassFactory) return E_NOINTERFACE;
        AddRef();
        *result = static_cast<IClassFactory*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++locks) + 1; }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--locks) + 1; }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID interface_id, void** result) override {
        if (!result) return E_POINTER;
        *result = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        return at_border(nullptr, [&] { return make_add_in()->QueryInterface(interface_id, result); });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        lock ? ++locks : --locks;
        return S_OK;
    }
};

}  // namespace

HRESULT class_factory(REFIID interface_id, void** result) {
    static ClassFactory factory;
    return factory.QueryInterface(interface_id, result);
}

bool is_in_use() noexcept {
    return locks != 0 || ServedObject::count() != 0;
}

}  // namespace qor::excel
