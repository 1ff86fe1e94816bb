#include "hosts/excel/com/ole_error.hpp"

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <string>

#include "hosts/excel/com/ole_text.hpp"
#include "platform/text.hpp"

namespace qor::excel {
namespace {

struct CodeRow {
    HRESULT code;
    ErrorNumber number;
};

constexpr std::array code_rows{
    CodeRow{DISP_E_UNKNOWNNAME, ErrorNumber::no_such_member},
    CodeRow{DISP_E_MEMBERNOTFOUND, ErrorNumber::no_such_member},
    CodeRow{DISP_E_TYPEMISMATCH, ErrorNumber::type_mismatch},
    CodeRow{DISP_E_BADVARTYPE, ErrorNumber::type_mismatch},
    CodeRow{DISP_E_OVERFLOW, ErrorNumber::overflow},
    CodeRow{DISP_E_BADINDEX, ErrorNumber::subscript_out_of_range},
    CodeRow{DISP_E_DIVBYZERO, ErrorNumber::division_by_zero},
    CodeRow{DISP_E_PARAMNOTFOUND, ErrorNumber::named_argument_not_found},
    CodeRow{DISP_E_NONAMEDARGS, ErrorNumber::named_argument_not_found},
    CodeRow{DISP_E_PARAMNOTOPTIONAL, ErrorNumber::argument_not_optional},
    CodeRow{DISP_E_BADPARAMCOUNT, ErrorNumber::wrong_argument_count},
    CodeRow{E_INVALIDARG, ErrorNumber::invalid_call},
};

constexpr std::int32_t out_of_memory = 7;
constexpr std::int32_t internal_error = 51;
constexpr std::u16string_view our_source = u"QORPlus.CCom";

std::u16string taken(BSTR& text) {
    std::u16string result = from_ole_text(text);
    SysFreeString(text);
    text = nullptr;
    return result;
}

HRESULT tell(EXCEPINFO* raised, std::int32_t number, std::u16string_view source, std::u16string_view description) {
    const HRESULT code = code_of(number);
    if (!raised) return code;
    *raised = {};
    raised->scode = code;
    raised->bstrSource = to_ole_text(source.empty() ? our_source : source);
    raised->bstrDescription = to_ole_text(description);
    return DISP_E_EXCEPTION;
}

}  // namespace

std::int32_t number_of(HRESULT code) noexcept {
    if (code == E_OUTOFMEMORY) return out_of_memory;
    const auto* const row = std::ranges::find(code_rows, code, &CodeRow::code);
    if (row != code_rows.end()) return static_cast<std::int32_t>(row->number);
    return HRESULT_FACILITY(code) == FACILITY_CONTROL ? HRESULT_CODE(code) : code;
}

HRESULT code_of(std::int32_t number) noexcept {
    constexpr std::int32_t largest = 0xFFFF;
    return number >= 0 && number <= largest ? MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number) : number;
}

void require(HRESULT code) {
    if (FAILED(code)) {
        const std::int32_t number = number_of(code);
        throw Error(number, {}, std::u16string(standard_description(static_cast<ErrorNumber>(number))));
    }
}

void raise(HRESULT code, EXCEPINFO& raised) {
    if (code != DISP_E_EXCEPTION) require(code);
    if (raised.pfnDeferredFillIn) raised.pfnDeferredFillIn(&raised);
    const std::int32_t number = raised.wCode != 0 ? raised.wCode : number_of(raised.scode);
    std::u16string source = taken(raised.bstrSource);
    std::u16string description = taken(raised.bstrDescription);
    taken(raised.bstrHelpFile);
    if (description.empty()) description = standard_description(static_cast<ErrorNumber>(number));
    throw Error(number, std::move(source), std::move(description));
}

HRESULT tell_host(EXCEPINFO* raised) noexcept {
    try {
        try {
            throw;
        } catch (const Error& error) {
            return tell(raised, error.number(), error.source(), error.description());
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY;
        } catch (const std::exception& defect) {
            return tell(raised, internal_error, {}, u"Internal error: " + from_utf8(defect.what()));
        }
    } catch (...) {
        return E_FAIL;
    }
}

}  // namespace qor::excel
