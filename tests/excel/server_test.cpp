#include <doctest/doctest.h>

#include <thread>

#include "automation/member_names.hpp"
#include "hosts/excel/com/ole_text.hpp"
#include "hosts/excel/com/ole_variant.hpp"
#include "runtime/conversion.hpp"
#include "tests/excel/server.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using excel::ComPointer;
using test::raised;
using test::Server;

namespace {

const MemberName ARNS{u"ARNS"};
const MemberName QTitle{u"QTitle"};

DISPID id_of(IDispatch& object, const wchar_t* name) {
    std::wstring text(name);
    LPOLESTR names = text.data();
    DISPID id = DISPID_UNKNOWN;
    CHECK(SUCCEEDED(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id)));
    return id;
}

bool key_is_there(const wchar_t* path) {
    HKEY key = nullptr;
    const bool is_there = RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) == ERROR_SUCCESS;
    if (is_there) RegCloseKey(key);
    return is_there;
}

}  // namespace

TEST_CASE_FIXTURE(Server, "the server is made, used and unloaded again and again") {
    for (int round = 0; round < 20; ++round) {
        {
            const Object add_in = create();
            CHECK(is_loaded());
            CHECK(to_double(add_in.call(ARNS, 100, 300, 1000)) == 0.2);
            unload();
            CHECK(is_loaded());
        }
        unload();
        CHECK_FALSE(is_loaded());
    }
}

TEST_CASE_FIXTURE(Server, "registration is the user's own and goes without a trace") {
    constexpr const wchar_t* keys[] = {
        L"Software\\Classes\\QORPlus.CCom", L"Software\\Classes\\QORPlus.CCom.2",
        L"Software\\Classes\\CLSID\\{C0BF0D5E-7B1A-4B7C-9E35-4E0C2D7F61A8}\\Programmable",
        L"Software\\Classes\\TypeLib\\{6A2F5C41-9D3E-4E08-8B17-D25A903C7E14}\\2.6\\0\\win64"};
    for (const wchar_t* key : keys) CHECK(key_is_there(key));
    CHECK(unregister_it() == S_OK);
    for (const wchar_t* key : keys) CHECK_FALSE(key_is_there(key));
    CHECK_FALSE(key_is_there(L"Software\\Classes\\CLSID\\{C0BF0D5E-7B1A-4B7C-9E35-4E0C2D7F61A8}"));
    CHECK(unregister_it() == S_OK);
    CHECK(register_it() == S_OK);
    for (const wchar_t* key : keys) CHECK(key_is_there(key));
}

TEST_CASE_FIXTURE(Server, "named arguments find their parameters, in any case") {
    const Object add_in = create();
    const MemberName end{u"DEDAR"};
    const MemberName begin{u"dBgAR"};
    const MemberName sales{u"dNetSales"};
    CHECK(to_double(add_in.call(ARNS, named(sales, 1000), named(end, 300), named(begin, 100))) == 0.2);
    CHECK(to_double(add_in.call(ARNS, 100, named(sales, 1000), named(end, 300))) == 0.2);
    CHECK(raised([&] { add_in.call(ARNS, 100, 300, named(names::After, 1)); }) == 448);
    CHECK(raised([&] { add_in.call(ARNS, 100, named(sales, 1000)); }) == 449);
}

TEST_CASE_FIXTURE(Server, "the type library tells the same members by the same numbers") {
    const ComPointer<IDispatch> add_in = create_raw();
    UINT count = 0;
    CHECK(add_in->GetTypeInfoCount(&count) == S_OK);
    CHECK(count == 1);
    ComPointer<ITypeInfo> info;
    REQUIRE(add_in->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put()) == S_OK);
    for (const wchar_t* name : {L"ARNS", L"QCurrentTab", L"WCapital", L"UTWorSum", L"MACRS", L"dAR"}) {
        std::wstring text(name);
        LPOLESTR names = text.data();
        MEMBERID id = MEMBERID_NIL;
        CHECK(info->GetIDsOfNames(&names, 1, &id) == S_OK);
        CHECK(id == id_of(*add_in.get(), name));
    }
    CHECK(add_in->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.put()) == DISP_E_BADINDEX);
}

TEST_CASE_FIXTURE(Server, "calls that no client should make are answered and harm nothing") {
    const ComPointer<IDispatch> add_in = create_raw();
    DISPPARAMS none{};
    VARIANT result;
    EXCEPINFO raised{};
    CHECK(add_in->Invoke(99'999, IID_NULL, 0, DISPATCH_METHOD, &none, &result, &raised, nullptr) ==
          DISP_E_MEMBERNOTFOUND);
    CHECK(add_in->Invoke(0, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &result, nullptr, nullptr) ==
          static_cast<HRESULT>(0x800A01B6));
    CHECK(add_in->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, nullptr, &result, &raised, nullptr) == E_INVALIDARG);
    CHECK(add_in->GetIDsOfNames(IID_NULL, nullptr, 0, 0, nullptr) == E_INVALIDARG);
    CHECK(add_in->QueryInterface(IID_IDispatch, nullptr) == E_POINTER);

    // An argument that is wrong is told by its place, counted from the last.
    excel::OleVariant wrong;
    wrong.get().vt = VT_RECORD;
    VARIANT arguments[3] = {};
    arguments[0].vt = arguments[2].vt = VT_I4;
    arguments[1] = wrong.get();
    wrong.get().vt = VT_EMPTY;
    DISPPARAMS given{arguments, nullptr, 3, 0};
    UINT place = 99;
    CHECK(add_in->Invoke(id_of(*add_in.get(), L"ARNS"), IID_NULL, 0, DISPATCH_METHOD, &given, &result, &raised,
                         &place) == DISP_E_EXCEPTION);
    CHECK(place == 1);
    CHECK(raised.scode == static_cast<HRESULT>(0x800A000D));
    SysFreeString(raised.bstrSource);
    SysFreeString(raised.bstrDescription);
}

TEST_CASE_FIXTURE(Server, "large texts, embedded zeros and arrays are values or errors like any other") {
    const Object add_in = create();
    const MemberName NUMBERTOWORDS{u"NUMBERTOWORDS"};
    const MemberName ISLIKE{u"ISLIKE"};
    const MemberName QHelpFile{u"QHelpFile"};
    const std::u16string large(5'000'000, u'7');
    add_in.put(QHelpFile, large);
    CHECK((to_text(add_in.get(QHelpFile)) == large));
    const std::u16string zeros(u"a\0b\0", 4);
    add_in.put(QHelpFile, zeros);
    CHECK((to_text(add_in.get(QHelpFile)) == zeros));
    CHECK(raised([&] { add_in.call(ARNS, large, 1, 1); }) != 0);
    CHECK(raised([&] { add_in.call(ARNS, Array::list({1, 2}), 1, 1); }) == 13);
    CHECK(raised([&] { add_in.call(ARNS, Array::list({Array::list({1})}), 1, 1); }) == 13);
    CHECK(raised([&] { add_in.call(ARNS, Object(), 1, 1); }) == 91);
    CHECK(raised([&] { add_in.call(ARNS, add_in, 1, 1); }) == 438);
    CHECK(raised([&] { add_in.call(ARNS, ErrorValue{2007}, 1, 1); }) == 13);
    CHECK(raised([&] { add_in.call(MemberName(u"UTWorSum"), u"no object"); }) == 424);
    CHECK(raised([&] { add_in.call(MemberName(u"UTSavAll"), add_in); }) == 438);
}

TEST_CASE_FIXTURE(Server, "a parameter by reference takes a variable of any type, and a constant") {
    const ComPointer<IDispatch> add_in = create_raw();
    const DISPID id = id_of(*add_in.get(), L"EPS");
    const auto call = [&](VARIANT dividend) {
        VARIANT arguments[3] = {};
        arguments[2].vt = arguments[1].vt = VT_R8;
        arguments[2].dblVal = 105;
        arguments[1].dblVal = 10;
        arguments[0] = dividend;
        DISPPARAMS given{arguments, nullptr, 3, 0};
        excel::OleVariant result;
        CHECK(add_in->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &given, &result.get(), nullptr, nullptr) == S_OK);
        return to_double(excel::from_ole(result.get()));
    };
    double number = 5;
    VARIANT reference;
    reference.vt = VT_BYREF | VT_R8;
    reference.pdblVal = &number;
    VARIANT constant;
    constant.vt = VT_R8;
    constant.dblVal = 5;
    CHECK(call(reference) == call(constant));
    short small = 5;
    reference.vt = VT_BYREF | VT_I2;
    reference.piVal = &small;
    CHECK(call(reference) == call(constant));
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &constant;
    CHECK(call(reference) == 10);
    CHECK(constant.vt == VT_R8);
}

TEST_CASE_FIXTURE(Server, "each apartment has objects of its own") {
    std::vector<std::thread> threads;
    std::atomic<int> right = 0;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&] {
            if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return;
            {
                const Object add_in = create();
                for (int call = 1; call <= 500; ++call)
                    if (to_double(add_in.call(ARNS, 0, 2 * call, 1)) == call) ++right;
            }
            CoUninitialize();
        });
    }
    for (std::thread& thread : threads) thread.join();
    CHECK(right == 2000);
}
