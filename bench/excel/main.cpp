// Prints how many Invoke calls a second a ratio function answers in its own process, and how much of the time goes into
// turning the values of automation into those of the core and back.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <string>

#include "hosts/excel/com/com_pointer.hpp"
#include "hosts/excel/com/ole_variant.hpp"
#include "hosts/excel/server/identity.hpp"

using namespace qor::excel;

namespace {

constexpr int calls = 200'000;
constexpr int rounds = 9;

// The median of the rounds, in nanoseconds a call.
template <class Call>
double nanoseconds(Call&& call) {
    std::array<double, rounds> times{};
    for (double& time : times) {
        const auto start = std::chrono::steady_clock::now();
        for (int count = 0; count < calls; ++count) call();
        time = std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() / calls;
    }
    std::ranges::nth_element(times, times.begin() + rounds / 2);
    return times[rounds / 2];
}

// Straight from the library, so that nothing has to be registered.
ComPointer<IDispatch> made_by(HMODULE library) {
    using Entry = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
    const auto entry = reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject")));
    ComPointer<IClassFactory> factory;
    ComPointer<IDispatch> made;
    if (!entry || FAILED(entry(class_id, IID_IClassFactory, factory.put_void()))) return made;
    factory->CreateInstance(nullptr, IID_IDispatch, made.put_void());
    return made;
}

void print(const char* name, double time) {
    std::printf("%-58s %8.0f ns %12.0f a second\n", name, time, 1e9 / time);
}

}  // namespace

int main() {
    const std::string path(QOR_SERVER);
    const HMODULE library = LoadLibraryW(std::wstring(path.begin(), path.end()).c_str());
    const ComPointer<IDispatch> add_in = library ? made_by(library) : ComPointer<IDispatch>();
    if (!add_in) {
        std::fputs("The server could not be loaded.\n", stderr);
        return 1;
    }
    wchar_t name[] = L"ARNS";
    LPOLESTR names = name;
    DISPID id = DISPID_UNKNOWN;
    std::array<VARIANT, 3> arguments{};
    for (VARIANT& argument : arguments) argument.vt = VT_R8;
    arguments[2].dblVal = 100;
    arguments[1].dblVal = 300;
    arguments[0].dblVal = 1000;
    DISPPARAMS given{arguments.data(), nullptr, 3, 0};
    const double by_id = nanoseconds([&] {
        if (id == DISPID_UNKNOWN) add_in->GetIDsOfNames(IID_NULL, &names, 1, 0, &id);
        VARIANT result;
        add_in->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &given, &result, nullptr, nullptr);
    });
    const double by_name = nanoseconds([&] {
        add_in->GetIDsOfNames(IID_NULL, &names, 1, 0, &id);
        VARIANT result;
        add_in->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &given, &result, nullptr, nullptr);
    });
    const double conversion = nanoseconds([&] {
        for (const VARIANT& argument : arguments) {
            const qor::Variant value = from_ole(argument);
            asm volatile("" : : "r"(&value) : "memory");
        }
        const OleVariant result = to_ole(0.2);
        asm volatile("" : : "r"(&result) : "memory");
    });
    print("Invoke of ARNS with three numbers", by_id);
    print("the same with its name looked up each time", by_name);
    print("of the first, the conversion of the values there and back", conversion);
    std::printf("share of the conversion: %.0f %%\n", 100 * conversion / by_id);
    return 0;
}
