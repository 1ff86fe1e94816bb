#pragma once

#include <atomic>
#include <optional>

#include "automation/variant.hpp"
#include "hosts/excel/com/com_pointer.hpp"
#include "hosts/excel/com/ole.hpp"
#include "hosts/excel/com/served_names.hpp"

namespace qor::excel {

// An object of the add-in as the host sees it.
class ServedObject : public IDispatch {
  public:
    // The names live as long as the process.
    ServedObject(Object target, const ServedNames& names);
    ServedObject(const ServedObject&) = delete;
    ServedObject& operator=(const ServedObject&) = delete;

    // How many there are in this module.
    static long count() noexcept { return living; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interface_id, void** result) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT place, LCID language, ITypeInfo** result) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* raised, UINT* wrong_argument) override;

  protected:
    virtual ~ServedObject();

  private:
    static inline std::atomic<long> living{0};

    Object target_;
    const ServedNames& names_;
    std::atomic<ULONG> references_{0};
};

// Serves an object under any name that it answers to.
ComPointer<IDispatch> serve(const Object& object);

}  // namespace qor::excel
