#include "hosts/excel/com/served_items.hpp"

#include <algorithm>
#include <atomic>
#include <memory>

#include "hosts/excel/com/com_pointer.hpp"
#include "hosts/excel/com/ole_error.hpp"

namespace qor::excel {
namespace {

class ServedItems final : public IEnumVARIANT {
  public:
    using Values = std::shared_ptr<const std::vector<Variant>>;

    ServedItems(Values values, std::size_t next) : values_(std::move(values)), next_(next) {}
    ServedItems(const ServedItems&) = delete;
    ServedItems& operator=(const ServedItems&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interface_id, void** result) override {
        if (!result) return E_POINTER;
        *result = nullptr;
        if (interface_id != IID_IUnknown && interface_id != IID_IEnumVARIANT) return E_NOINTERFACE;
        AddRef();
        *result = static_cast<IEnumVARIANT*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* values, ULONG* given) override {
        return at_border(nullptr, [&] {
            ULONG place = 0;
            for (; place < count && next_ < values_->size(); ++place)
                values[place] = to_ole((*values_)[next_++]).detach();
            if (given) *given = place;
            return place == count ? S_OK : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        const std::size_t left = values_->size() - next_;
        next_ += std::min<std::size_t>(count, left);
        return count <= left ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        next_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** result) override {
        if (!result) return E_POINTER;
        *result = nullptr;
        return at_border(nullptr, [&] {
            *result = ComPointer<IEnumVARIANT>(new ServedItems(values_, next_)).detach();
            return S_OK;
        });
    }

  private:
    ~ServedItems() = default;

    Values values_;
    std::size_t next_;
    std::atomic<ULONG> references_{0};
};

}  // namespace

OleVariant enumeration_of(std::vector<Variant> values) {
    OleVariant result;
    auto shared = std::make_shared<const std::vector<Variant>>(std::move(values));
    result.get().punkVal = ComPointer<IUnknown>(new ServedItems(std::move(shared), 0)).detach();
    result.get().vt = VT_UNKNOWN;
    return result;
}

}  // namespace qor::excel
