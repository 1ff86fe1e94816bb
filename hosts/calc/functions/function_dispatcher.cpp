#include "hosts/calc/functions/function_dispatcher.hpp"

#include <typelib/typedescription.h>
#include <uno/any2.h>
#include <uno/dispatcher.h>

#include <array>
#include <atomic>
#include <cppu/unotype.hxx>
#include <memory>
#include <uno/environment.hxx>
#include <uno/mapping.hxx>

#include "functions/registry.hpp"
#include "hosts/calc/functions/cell_value.hpp"
#include "hosts/calc/functions/function_interface.hpp"

namespace qor::calc {
namespace {

namespace uno = com::sun::star::uno;

constexpr std::size_t most_parameters = 16;
// The methods that every interface starts with.
enum BasicMethod { method_query, method_acquire, method_release };

// Never throws. What cannot be computed leaves in the cell what the function's result starts with.
void compute(const Function& function, void** given, uno_Any& result) noexcept {
    try {
        std::array<Variant, most_parameters> arguments;
        const std::size_t count = function.parameters.size();
        for (std::size_t place = 0; place < count; ++place) {
            arguments[place] =
                argument_from_cell(*static_cast<const uno_Any*>(given[place]), function.parameters[place].kind);
        }
        result_to_cell(function.invoke(std::span(arguments).first(count)), result);
    } catch (...) {
        result_to_cell(function.starting_value(), result);
    }
}

class FunctionDispatcher final : public uno_Interface {
  public:
    explicit FunctionDispatcher(uno_Interface* add_in) : uno_Interface{retain, drop, dispatch}, add_in_(add_in) {}
    FunctionDispatcher(const FunctionDispatcher&) = delete;
    FunctionDispatcher& operator=(const FunctionDispatcher&) = delete;
    ~FunctionDispatcher() { add_in_->release(add_in_); }

  private:
    static FunctionDispatcher& self(uno_Interface* object) { return *static_cast<FunctionDispatcher*>(object); }
    static void retain(uno_Interface* object) { self(object).count_.fetch_add(1, std::memory_order_relaxed); }
    static void drop(uno_Interface* object) {
        if (self(object).count_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete &self(object);
    }

    static void dispatch(uno_Interface* object, const typelib_TypeDescription* member, void* result, void** arguments,
                         uno_Any** exception) {
        const int position = reinterpret_cast<const typelib_InterfaceMemberTypeDescription*>(member)->nPosition;
        if (position >= first_function_position) {
            *exception = nullptr;
            compute(worksheet_functions()[static_cast<std::size_t>(position - first_function_position)], arguments,
                    *static_cast<uno_Any*>(result));
            return;
        }
        switch (position) {
            case method_query:
                return self(object).query(member, result, arguments, exception);
            case method_acquire:
                retain(object);
                break;
            case method_release:
                drop(object);
                break;
            default:
                break;
        }
        *exception = nullptr;
    }

    // Every other interface is the add-in's.
    void query(const typelib_TypeDescription* member, void* result, void** arguments, uno_Any** exception) {
        auto* type = *static_cast<typelib_TypeDescriptionReference**>(arguments[0]);
        if (!typelib_typedescriptionreference_equals(type, function_interface().getTypeLibType())) {
            add_in_->pDispatcher(add_in_, member, result, arguments, exception);
            return;
        }
        uno_Interface* self = this;
        uno_type_any_construct(static_cast<uno_Any*>(result), &self, type, nullptr);
        *exception = nullptr;
    }

    std::atomic<int> count_{1};
    uno_Interface* add_in_;
};

}  // namespace

uno::Reference<uno::XInterface> make_function_dispatcher(uno::XInterface* add_in) {
    const uno::Environment binary("uno");
    const uno::Mapping to_binary(uno::Environment::getCurrent(), binary);
    const uno::Mapping from_binary(binary, uno::Environment::getCurrent());
    constexpr auto drop = [](uno_Interface* object) { object->release(object); };
    const std::unique_ptr<FunctionDispatcher, decltype(drop)> dispatcher(new FunctionDispatcher(
        static_cast<uno_Interface*>(to_binary.mapInterface(add_in, cppu::UnoType<uno::XInterface>::get()))));
    return {static_cast<uno::XInterface*>(from_binary.mapInterface(dispatcher.get(), function_interface())),
            SAL_NO_ACQUIRE};
}

}  // namespace qor::calc
