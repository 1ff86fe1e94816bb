#include "hosts/excel/com/served_object.hpp"

#include <array>
#include <memory>
#include <vector>

#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/com/ole_text.hpp"
#include "hosts/excel/com/ole_variant.hpp"
#include "hosts/excel/com/served_items.hpp"

namespace qor::excel {
namespace {

Access access_of(WORD flags) {
    if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) return Access::put;
    return (flags & DISPATCH_METHOD) != 0 ? Access::call : Access::get;
}

// The arguments of a call in the order of the parameters, the named ones by their names, a value to put last.
class GivenArguments {
  public:
    // `wrong` is the place of the argument that is being looked at.
    GivenArguments(const DISPPARAMS& given, Access access, std::int32_t member, const ServedNames& names, UINT& wrong) {
        const bool has_value =
            access == Access::put && given.cNamedArgs > 0 && given.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
        const UINT first_named = has_value ? 1 : 0;
        named_.reserve(given.cNamedArgs - first_named);
        for (UINT place = first_named; place < given.cNamedArgs; ++place) {
            wrong = place;
            const std::optional<MemberName> name = names.parameter(member, given.rgdispidNamedArgs[place]);
            if (!name) throw Error(ErrorNumber::named_argument_not_found);
            named_.push_back({*name, from_ole(given.rgvarg[place])});
        }
        first_named_ = first_named;
        count_ = given.cArgs - given.cNamedArgs + first_named;
        if (count_ > few_.size()) many_ = std::make_unique<Variant[]>(count_);
        for (UINT place = 0; place < given.cArgs - given.cNamedArgs; ++place) {
            wrong = given.cArgs - 1 - place;
            begin()[place] = from_ole(given.rgvarg[wrong]);
        }
        wrong = 0;
        if (has_value) begin()[count_ - 1] = from_ole(given.rgvarg[0]);
    }

    Arguments get() { return {{begin(), count_}, named_}; }

    // What the parameters by reference hold now goes back to the caller's variables.
    void write_back(const DISPPARAMS& given, std::int32_t member, const ServedNames& names,
                    std::uint32_t by_reference) {
        const UINT positional = given.cArgs - given.cNamedArgs;
        for (UINT place = 0; place < positional; ++place)
            if ((by_reference >> place & 1U) != 0)
                excel::write_back(given.rgvarg[given.cArgs - 1 - place], begin()[place]);
        for (std::size_t place = 0; place < named_.size(); ++place) {
            const std::optional<std::int32_t> parameter = names.parameter_id(member, named_[place].name.text());
            if (parameter && (by_reference >> *parameter & 1U) != 0)
                excel::write_back(given.rgvarg[place + first_named_], named_[place].value);
        }
    }

  private:
    Variant* begin() noexcept { return many_ ? many_.get() : few_.data(); }

    std::array<Variant, 8> few_;
    std::unique_ptr<Variant[]> many_;
    std::size_t count_ = 0;
    std::vector<NamedArgument> named_;
    UINT first_named_ = 0;
};

std::u16string_view view_of(const wchar_t* text, std::u16string& storage) {
    storage = from_ole_text(text, std::char_traits<wchar_t>::length(text));
    return storage;
}

}  // namespace

ServedObject::ServedObject(Object target, const ServedNames& names) : target_(std::move(target)), names_(names) {
    ++living;
}

ServedObject::~ServedObject() {
    --living;
}

HRESULT ServedObject::QueryInterface(REFIID interface_id, void** result) {
    if (!result) return E_POINTER;
    *result = nullptr;
    if (interface_id != IID_IUnknown && interface_id != IID_IDispatch) return E_NOINTERFACE;
    AddRef();
    *result = static_cast<IDispatch*>(this);
    return S_OK;
}

ULONG ServedObject::AddRef() {
    return ++references_;
}

ULONG ServedObject::Release() {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
}

HRESULT ServedObject::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT ServedObject::GetTypeInfo(UINT, LCID, ITypeInfo** result) {
    if (!result) return E_POINTER;
    *result = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT ServedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    std::fill_n(ids, count, DISPID_UNKNOWN);
    return at_border(nullptr, [&] {
        std::u16string text;
        const std::optional<std::int32_t> member = names_.member_id(view_of(names[0], text));
        if (!member) return DISP_E_UNKNOWNNAME;
        ids[0] = *member;
        HRESULT answer = S_OK;
        for (UINT place = 1; place < count; ++place) {
            const std::optional<std::int32_t> parameter = names_.parameter_id(*member, view_of(names[place], text));
            if (parameter)
                ids[place] = *parameter;
            else
                answer = DISP_E_UNKNOWNNAME;
        }
        return answer;
    });
}

HRESULT ServedObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                             EXCEPINFO* raised, UINT* wrong_argument) {
    if (result) VariantInit(result);
    if (!parameters || parameters->cNamedArgs > parameters->cArgs) return E_INVALIDARG;
    // The caller may let go of the object in a call that this one makes.
    const ComPointer<IDispatch> alive(this);
    UINT wrong = 0;
    const HRESULT answer = at_border(raised, [&]() -> HRESULT {
        if (id == DISPID_NEWENUM || id == DISPID_VALUE) {
            Variant value = id == DISPID_VALUE ? target_.target()->default_value() : Variant();
            OleVariant given = id == DISPID_VALUE ? to_ole(value) : enumeration_of(target_.items());
            if (result) *result = given.detach();
            return S_OK;
        }
        const std::optional<MemberName> member = names_.member(id);
        if (!member) return DISP_E_MEMBERNOTFOUND;
        const Access access = access_of(flags);
        GivenArguments given(*parameters, access, id, names_, wrong);
        const Variant value = target_.invoke(*member, access, given.get());
        if (const std::uint32_t by_reference = names_.by_reference(id))
            given.write_back(*parameters, id, names_, by_reference);
        if (result) *result = to_ole(value).detach();
        return S_OK;
    });
    if (FAILED(answer) && wrong_argument) *wrong_argument = wrong;
    return answer;
}

ComPointer<IDispatch> serve(const Object& object) {
    return ComPointer<IDispatch>(new ServedObject(object, any_names()));
}

}  // namespace qor::excel
