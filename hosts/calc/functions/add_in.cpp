#include "hosts/calc/functions/add_in.hpp"

#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/lang/XServiceName.hpp>
#include <com/sun/star/sheet/XAddIn.hpp>
#include <com/sun/star/sheet/XCompatibilityNames.hpp>
#include <cppuhelper/implbase4.hxx>
#include <cppuhelper/supportsservice.hxx>
#include <rtl/ref.hxx>

#include "functions/registry.hpp"
#include "hosts/calc/functions/function_dispatcher.hpp"
#include "hosts/calc/functions/function_interface.hpp"
#include "hosts/calc/functions/load_watch.hpp"
#include "hosts/calc/functions/wizard_text.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

namespace lang = com::sun::star::lang;
namespace sheet = com::sun::star::sheet;
namespace uno = com::sun::star::uno;
using rtl::OUString;

// Calc's view of the worksheet functions: their names, their texts in the function wizard, and, by the function
// interface, the functions themselves. A function's programmatic name is the one in the table.
class AddIn final
    : public cppu::WeakImplHelper4<sheet::XAddIn, sheet::XCompatibilityNames, lang::XServiceName, lang::XServiceInfo> {
  public:
    uno::Any SAL_CALL queryInterface(const uno::Type& type) override {
        if (type != function_interface()) return WeakImplHelper4::queryInterface(type);
        if (!functions_.is()) functions_ = make_function_dispatcher(static_cast<cppu::OWeakObject*>(this));
        uno::XInterface* functions = functions_.get();
        return {&functions, type};
    }

    uno::Sequence<uno::Type> SAL_CALL getTypes() override {
        uno::Sequence<uno::Type> types = WeakImplHelper4::getTypes();
        const sal_Int32 count = types.getLength();
        types.realloc(count + 1);
        types.getArray()[count] = function_interface();
        return types;
    }

    OUString SAL_CALL getProgrammaticFuntionName(const OUString& shown) override {
        for (const Function& function : worksheet_functions()) {
            if (equal_ignoring_case(display_name(function), view_of(shown))) return to_uno(function.name);
        }
        return {};
    }
    OUString SAL_CALL getDisplayFunctionName(const OUString& name) override {
        const Function* function = find_function(view_of(name));
        return function ? to_uno(display_name(*function)) : OUString();
    }
    OUString SAL_CALL getFunctionDescription(const OUString& name) override {
        const Function* function = find_function(view_of(name));
        return function ? to_uno(function->description) : OUString();
    }
    OUString SAL_CALL getDisplayArgumentName(const OUString& name, sal_Int32 place) override {
        const Parameter* parameter = parameter_at(name, place);
        return parameter ? to_uno(parameter->name) : OUString();
    }
    OUString SAL_CALL getArgumentDescription(const OUString& name, sal_Int32 place) override {
        const Parameter* parameter = parameter_at(name, place);
        return parameter ? to_uno(parameter_description(*parameter)) : OUString();
    }
    OUString SAL_CALL getProgrammaticCategoryName(const OUString& name) override {
        const Function* function = find_function(view_of(name));
        return function ? to_uno(calc_category(function->category)) : OUString();
    }
    OUString SAL_CALL getDisplayCategoryName(const OUString& name) override {
        return getProgrammaticCategoryName(name);
    }

    // The name in files of other programs; one that Calc has already would be taken for Calc's when the file is loaded.
    uno::Sequence<sheet::LocalizedName> SAL_CALL getCompatibilityNames(const OUString& name) override {
        const sheet::LocalizedName english(lang::Locale("en", "US", ""), getDisplayFunctionName(name));
        return {&english, 1};
    }

    // Calc puts this in front of the name in a stored formula. As a prefix that spreadsheets reserve for functions of
    // an add-in it lets workbooks go back and forth with the functions alive.
    OUString SAL_CALL getServiceName() override { return "_xll"; }

    OUString SAL_CALL getImplementationName() override { return "com.ombrel.qorplus.Functions"; }
    sal_Bool SAL_CALL supportsService(const OUString& name) override { return cppu::supportsService(this, name); }
    uno::Sequence<OUString> SAL_CALL getSupportedServiceNames() override {
        const OUString service("com.sun.star.sheet.AddIn");
        return {&service, 1};
    }

    void SAL_CALL setLocale(const lang::Locale& locale) override { locale_ = locale; }
    lang::Locale SAL_CALL getLocale() override { return locale_; }

  private:
    static const Parameter* parameter_at(const OUString& name, sal_Int32 place) {
        const Function* function = find_function(view_of(name));
        if (!function || place < 0 || static_cast<std::size_t>(place) >= function->parameters.size()) return nullptr;
        return &function->parameters[static_cast<std::size_t>(place)];
    }

    lang::Locale locale_{"en", "US", ""};
    uno::Reference<uno::XInterface> functions_;
};

}  // namespace

uno::Reference<uno::XInterface> function_add_in(const Context& context) {
    // Never destroyed: Calc keeps it until the process ends, when LibreOffice's libraries may be gone before ours.
    static const auto* const add_in = [&] {
        watch_loads(context);
        return new rtl::Reference<AddIn>(new AddIn);
    }();
    return static_cast<cppu::OWeakObject*>(add_in->get());
}

}  // namespace qor::calc
