#include "hosts/excel/com/ole_variant.hpp"

#include <cstdint>
#include <limits>

#include "hosts/excel/com/host_object.hpp"
#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/com/ole_text.hpp"
#include "hosts/excel/com/served_object.hpp"

namespace qor::excel {
namespace {

constexpr std::int32_t cell_error_base = static_cast<std::int32_t>(0x800A0000);

[[noreturn]] void refuse() {
    throw Error(ErrorNumber::type_mismatch);
}

template <class Wide>
Variant whole_number(Wide value) {
    if (std::in_range<std::int32_t>(value)) return static_cast<std::int32_t>(value);
    return static_cast<double>(value);
}

Variant error_value(SCODE code) {
    if (code == DISP_E_PARAMNOTFOUND) return Missing{};
    return ErrorValue{code - cell_error_base};
}

Variant object_of(IUnknown* unknown) {
    if (!unknown) return Object();
    ComPointer<IDispatch> dispatch;
    if (FAILED(unknown->QueryInterface(IID_IDispatch, dispatch.put_void()))) refuse();
    return from_host(std::move(dispatch));
}

Variant decimal(DECIMAL value) {
    double result = 0;
    require(VarR8FromDec(&value, &result));
    return result;
}

// `T` is how the value lies in the union, or what is pointed to from there.
template <class T>
const T& held(const VARIANT& value, T VARIANT::*by_value, T* VARIANT::*by_reference) {
    return (value.vt & VT_BYREF) != 0 ? *(value.*by_reference) : value.*by_value;
}

}  // namespace

Variant from_ole(const VARIANT& value) {
    if ((value.vt & VT_ARRAY) != 0) {
        SAFEARRAY* const array = held(value, &VARIANT::parray, &VARIANT::pparray);
        if (!array) return Array::list({});
        return from_safe_array(*array);
    }
    switch (value.vt & VT_TYPEMASK) {
        case VT_EMPTY:
            return Empty{};
        case VT_NULL:
            return Null{};
        case VT_I2:
            return held(value, &VARIANT::iVal, &VARIANT::piVal);
        case VT_I4:
            return static_cast<std::int32_t>(held(value, &VARIANT::lVal, &VARIANT::plVal));
        case VT_INT:
            return static_cast<std::int32_t>(held(value, &VARIANT::intVal, &VARIANT::pintVal));
        case VT_R4:
            return held(value, &VARIANT::fltVal, &VARIANT::pfltVal);
        case VT_R8:
            return held(value, &VARIANT::dblVal, &VARIANT::pdblVal);
        case VT_CY:
            return Currency{held(value, &VARIANT::cyVal, &VARIANT::pcyVal).int64};
        case VT_DATE:
            return Date{held(value, &VARIANT::date, &VARIANT::pdate)};
        case VT_BSTR:
            return from_ole_text(held(value, &VARIANT::bstrVal, &VARIANT::pbstrVal));
        case VT_DISPATCH:
            return object_of(held(value, &VARIANT::pdispVal, &VARIANT::ppdispVal));
        case VT_UNKNOWN:
            return object_of(held(value, &VARIANT::punkVal, &VARIANT::ppunkVal));
        case VT_ERROR:
            return error_value(held(value, &VARIANT::scode, &VARIANT::pscode));
        case VT_BOOL:
            return held(value, &VARIANT::boolVal, &VARIANT::pboolVal) != VARIANT_FALSE;
        case VT_VARIANT:
            if ((value.vt & VT_BYREF) == 0) refuse();
            return from_ole(*value.pvarVal);
        case VT_DECIMAL:
            return decimal((value.vt & VT_BYREF) != 0 ? *value.pdecVal : value.decVal);
        case VT_I1:
            return static_cast<std::int16_t>(static_cast<signed char>(held(value, &VARIANT::cVal, &VARIANT::pcVal)));
        case VT_UI1:
            return static_cast<std::int16_t>(held(value, &VARIANT::bVal, &VARIANT::pbVal));
        case VT_UI2:
            return static_cast<std::int32_t>(held(value, &VARIANT::uiVal, &VARIANT::puiVal));
        case VT_UI4:
            return whole_number(held(value, &VARIANT::ulVal, &VARIANT::pulVal));
        case VT_UINT:
            return whole_number(held(value, &VARIANT::uintVal, &VARIANT::puintVal));
        case VT_I8:
            return whole_number(held(value, &VARIANT::llVal, &VARIANT::pllVal));
        case VT_UI8:
            return whole_number(held(value, &VARIANT::ullVal, &VARIANT::pullVal));
        default:
            refuse();
    }
}

namespace {

// Puts a value of each kind into an empty variant.
struct Put {
    VARIANT& target;

    void operator()(Empty) const {}
    void operator()(Null) const { target.vt = VT_NULL; }
    void operator()(Missing) const { put_code(DISP_E_PARAMNOTFOUND); }
    void operator()(bool value) const {
        target.vt = VT_BOOL;
        target.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(std::int16_t value) const {
        target.vt = VT_I2;
        target.iVal = value;
    }
    void operator()(std::int32_t value) const {
        target.vt = VT_I4;
        target.lVal = value;
    }
    void operator()(float value) const {
        target.vt = VT_R4;
        target.fltVal = value;
    }
    void operator()(double value) const {
        target.vt = VT_R8;
        target.dblVal = value;
    }
    void operator()(Currency value) const {
        target.vt = VT_CY;
        target.cyVal.int64 = value.ten_thousandths;
    }
    void operator()(Date value) const {
        target.vt = VT_DATE;
        target.date = value.serial;
    }
    void operator()(const std::u16string& value) const {
        target.bstrVal = to_ole_text(value);
        target.vt = VT_BSTR;
    }
    void operator()(ErrorValue value) const { put_code(cell_error_base + value.code); }
    void operator()(const Object& value) const {
        target.pdispVal = to_host(value).detach();
        target.vt = VT_DISPATCH;
    }
    void operator()(const std::shared_ptr<const Array>& value) const {
        target.parray = to_safe_array(*value);
        target.vt = VT_ARRAY | VT_VARIANT;
    }

  private:
    void put_code(SCODE code) const {
        target.vt = VT_ERROR;
        target.scode = code;
    }
};

}  // namespace

OleVariant to_ole(const Variant& value) {
    OleVariant result;
    value.visit(Put{result.get()});
    return result;
}

void write_back(const VARIANT& variable, const Variant& value) {
    if ((variable.vt & VT_BYREF) == 0) return;
    OleVariant given = to_ole(value);
    if (variable.vt == (VT_BYREF | VT_VARIANT)) {
        OleVariant before;
        std::swap(*variable.pvarVal, before.get());
        *variable.pvarVal = given.detach();
        return;
    }
    const auto type = static_cast<VARTYPE>(variable.vt & ~VT_BYREF);
    if ((type & VT_ARRAY) != 0) refuse();
    require(VariantChangeTypeEx(&given.get(), &given.get(), LOCALE_INVARIANT, 0, type));
    switch (type) {
        case VT_I2:
        case VT_BOOL:
            *variable.piVal = given.get().iVal;
            break;
        case VT_I4:
        case VT_R4:
        case VT_ERROR:
        case VT_INT:
        case VT_UI4:
        case VT_UINT:
            *variable.plVal = given.get().lVal;
            break;
        case VT_R8:
        case VT_CY:
        case VT_DATE:
        case VT_I8:
        case VT_UI8:
            *variable.pllVal = given.get().llVal;
            break;
        case VT_BSTR:
            std::swap(*variable.pbstrVal, given.get().bstrVal);  // the old text goes with `given`
            break;
        case VT_DISPATCH:
        case VT_UNKNOWN:
            std::swap(*variable.ppdispVal, given.get().pdispVal);
            break;
        case VT_UI1:
        case VT_I1:
            *variable.pbVal = given.get().bVal;
            break;
        case VT_UI2:
            *variable.puiVal = given.get().uiVal;
            break;
        default:
            refuse();
    }
}

}  // namespace qor::excel
