#include "hosts/excel/com/host_object.hpp"

#include <algorithm>
#include <array>

#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/com/ole_variant.hpp"
#include "hosts/excel/com/served_object.hpp"

namespace qor::excel {
namespace {

// Late-bound callers do not know which of the two a member is.
constexpr WORD method_or_property = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

// What a host answers that has no time now: its message filter's refusals, and Excel's while a cell is edited.
constexpr std::array busy_answers{RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER, static_cast<HRESULT>(0x800AC472)};

bool is_busy(HRESULT answer) {
    return std::ranges::find(busy_answers, answer) != busy_answers.end();
}

template <class Call>
HRESULT with_patience(Call&& call) {
    HRESULT answer = call();
    for (int tries = patience().tries; is_busy(answer) && tries > 0; --tries) {
        Sleep(static_cast<DWORD>(patience().pause.count()));
        answer = call();
    }
    return answer;
}

// Automation has arguments in reverse, the named ones first.
class ReversedArguments {
  public:
    ReversedArguments(Access access, Arguments arguments, std::vector<DISPID> named_ids)
        : named_ids_(std::move(named_ids)) {
        std::span<Variant> positional = arguments.positional;
        if (access == Access::put && !positional.empty()) {
            named_ids_.insert(named_ids_.begin(), DISPID_PROPERTYPUT);
            add(positional.back());
            positional = positional.first(positional.size() - 1);
        }
        for (const NamedArgument& argument : arguments.named) add(argument.value);
        for (auto argument = positional.rbegin(); argument != positional.rend(); ++argument) add(*argument);
    }
    ReversedArguments(const ReversedArguments&) = delete;
    ReversedArguments& operator=(const ReversedArguments&) = delete;
    ~ReversedArguments() {
        for (VARIANT& value : values_) VariantClear(&value);
    }

    DISPPARAMS parameters() {
        return {values_.data(), named_ids_.data(), static_cast<UINT>(values_.size()),
                static_cast<UINT>(named_ids_.size())};
    }

  private:
    void add(const Variant& value) { values_.push_back(to_ole(value).detach()); }

    std::vector<VARIANT> values_;
    std::vector<DISPID> named_ids_;
};

Variant invoke_id(IDispatch& target, DISPID id, WORD flags, DISPPARAMS parameters) {
    OleVariant result;
    EXCEPINFO raised{};
    const bool has_result = (flags & DISPATCH_PROPERTYGET) != 0;
    const HRESULT answer = with_patience([&] {
        return target.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                             has_result ? &result.get() : nullptr, &raised, nullptr);
    });
    if (FAILED(answer)) raise(answer, raised);
    return from_ole(result.get());
}

std::wstring wide(const MemberName& name) {
    return {name.text().begin(), name.text().end()};
}

}  // namespace

Patience& patience() {
    static Patience value;
    return value;
}

DISPID HostObject::id_of(const MemberName& name) {
    const auto known = std::ranges::find(known_ids_, name.id(), &KnownId::name);
    if (known != known_ids_.end()) return known->id;
    const DISPID id = ids_of(name, {}).front();
    known_ids_.push_back({name.id(), id});
    return id;
}

std::vector<DISPID> HostObject::ids_of(const MemberName& name, std::span<const NamedArgument> named) {
    std::vector<std::wstring> texts{wide(name)};
    for (const NamedArgument& argument : named) texts.push_back(wide(argument.name));
    std::vector<LPOLESTR> names;
    for (std::wstring& text : texts) names.push_back(text.data());
    std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
    const HRESULT answer = with_patience([&] {
        return target_->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()), LOCALE_USER_DEFAULT,
                                      ids.data());
    });
    // The member's name is there and one of the parameters is not.
    if (answer == DISP_E_UNKNOWNNAME && ids.front() != DISPID_UNKNOWN)
        throw Error(ErrorNumber::named_argument_not_found);
    require(answer);
    return ids;
}

Variant HostObject::invoke(const MemberName& name, Access access, Arguments arguments) {
    std::vector<DISPID> named_ids;
    DISPID id = DISPID_UNKNOWN;
    if (arguments.named.empty()) {
        id = id_of(name);
    } else {
        named_ids = ids_of(name, arguments.named);
        id = named_ids.front();
        named_ids.erase(named_ids.begin());
    }
    const bool sets_object = access == Access::put && arguments.positional.back().is(Variant::Kind::object);
    ReversedArguments reversed(access, arguments, std::move(named_ids));
    if (access != Access::put) return invoke_id(*target_.get(), id, method_or_property, reversed.parameters());
    if (sets_object) {
        // A server that knows no difference between setting an object and putting a value knows the latter.
        try {
            return invoke_id(*target_.get(), id, DISPATCH_PROPERTYPUTREF, reversed.parameters());
        } catch (const Error& refusal) {
            if (refusal.number() != static_cast<std::int32_t>(ErrorNumber::no_such_member)) throw;
        }
    }
    return invoke_id(*target_.get(), id, DISPATCH_PROPERTYPUT, reversed.parameters());
}

Variant HostObject::default_value() {
    return invoke_id(*target_.get(), DISPID_VALUE, method_or_property, {});
}

std::vector<Variant> HostObject::items() {
    OleVariant collection;
    EXCEPINFO raised{};
    DISPPARAMS none{};
    const HRESULT answer = with_patience([&] {
        return target_->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT, method_or_property, &none,
                               &collection.get(), &raised, nullptr);
    });
    if (FAILED(answer)) raise(answer, raised);
    const VARIANT& held = collection.get();
    ComPointer<IEnumVARIANT> elements;
    const bool is_object = (held.vt == VT_UNKNOWN || held.vt == VT_DISPATCH) && held.punkVal;
    if (!is_object || FAILED(held.punkVal->QueryInterface(IID_IEnumVARIANT, elements.put_void())))
        throw Error(ErrorNumber::no_such_member);
    std::vector<Variant> result;
    for (;;) {
        std::array<OleVariant, 32> batch;
        std::array<VARIANT, batch.size()> filled;
        filled.fill(VARIANT{});
        ULONG count = 0;
        const HRESULT status =
            with_patience([&] { return elements->Next(static_cast<ULONG>(filled.size()), filled.data(), &count); });
        require(status);
        for (std::size_t place = 0; place < count; ++place) batch[place].get() = filled[place];
        for (std::size_t place = 0; place < count; ++place) result.push_back(from_ole(batch[place].get()));
        if (status != S_OK || count == 0) return result;
    }
}

bool HostObject::is_same(const Dispatch& other) const noexcept {
    const auto* const object = dynamic_cast<const HostObject*>(&other);
    if (!object) return false;
    ComPointer<IUnknown> one;
    ComPointer<IUnknown> another;
    return SUCCEEDED(target_->QueryInterface(IID_IUnknown, one.put_void())) &&
           SUCCEEDED(object->target_->QueryInterface(IID_IUnknown, another.put_void())) && one.get() == another.get();
}

Object from_host(ComPointer<IDispatch> target) {
    if (!target) return {};
    return make_object<HostObject>(std::move(target));
}

ComPointer<IDispatch> to_host(const Object& object) {
    if (!object) return {};
    if (const auto* const host_object = dynamic_cast<const HostObject*>(object.target()))
        return ComPointer<IDispatch>(&host_object->target());
    return serve(object);
}

}  // namespace qor::excel
