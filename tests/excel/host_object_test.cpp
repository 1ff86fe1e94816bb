#include <doctest/doctest.h>

#include "automation/member_names.hpp"
#include "hosts/excel/com/host_object.hpp"
#include "hosts/excel/com/ole.hpp"
#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/com/served_object.hpp"
#include "runtime/conversion.hpp"
#include "tests/fakes/fake_object.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using excel::ComPointer;
using test::raised;

namespace {

const MemberName Exists{u"Exists"};
const MemberName Keys{u"Keys"};
const MemberName Key{u"Key"};
const MemberName GetSpecialFolder{u"GetSpecialFolder"};
const MemberName Drives{u"Drives"};
const MemberName DriveLetter{u"DriveLetter"};
const MemberName NoSuchMember{u"NoSuchMember"};
const MemberName Greeting{u"Greeting"};
const MemberName Item{u"Item"};

struct Apartment {
    Apartment() { CHECK(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))); }
    ~Apartment() {
        CHECK(excel::ServedObject::count() == 0);
        CoUninitialize();
    }
};

Object created(const wchar_t* name) {
    CLSID id{};
    REQUIRE(SUCCEEDED(CLSIDFromProgID(name, &id)));
    ComPointer<IDispatch> made;
    REQUIRE(SUCCEEDED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, made.put_void())));
    return excel::from_host(std::move(made));
}

// An object that another module would see: nothing of this process's own is known of it.
Object seen_from_outside(const Object& object) {
    return excel::from_host(excel::serve(object));
}

// Refuses as a busy host does until it has been asked so often.
class Busy final : public IDispatch {
  public:
    Busy(HRESULT refusal, int refusals) : refusal_(refusal), refusals_(refusals) {}
    virtual ~Busy() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interface_id, void** result) override {
        *result = nullptr;
        if (interface_id != IID_IUnknown && interface_id != IID_IDispatch) return E_NOINTERFACE;
        *result = this;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* ids) override {
        ++lookups;
        ids[0] = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                     UINT*) override {
        ++calls;
        if (refusals_-- > 0) return refusal_;
        result->vt = VT_I4;
        result->lVal = 7;
        return S_OK;
    }

    ULONG references = 0;
    int lookups = 0;
    int calls = 0;

  private:
    HRESULT refusal_;
    int refusals_;
};

struct Hurried {
    excel::Patience before = excel::patience();
    Hurried() { excel::patience() = {std::chrono::milliseconds(0), 5}; }
    ~Hurried() { excel::patience() = before; }
};

}  // namespace

TEST_CASE_FIXTURE(Apartment, "a dictionary is driven by its members' names") {
    const Object dictionary = created(L"Scripting.Dictionary");
    dictionary.call(names::Add, u"one", 1);
    dictionary.call(names::Add, u"two", u"zwei");
    CHECK(to_long(dictionary.get(names::Count)) == 2);
    CHECK((to_text(dictionary.get(Item, u"two")) == u"zwei"));
    dictionary.put(Item, u"two", 2.5);
    CHECK(to_double(dictionary.get(Item, u"two")) == 2.5);
    CHECK(to_boolean(dictionary.call(Exists, u"one")));
    CHECK_FALSE(to_boolean(dictionary.call(Exists, u"three")));
    const Variant keys = dictionary.call(Keys);
    REQUIRE(keys.array());
    CHECK(keys.array()->size() == 2);
    const std::vector<Variant> items = dictionary.items();
    REQUIRE(items.size() == 2);
    CHECK((to_text(items[0]) == u"one"));
    CHECK(raised([&] { dictionary.get(NoSuchMember); }) == 438);
    CHECK(raised([&] { dictionary.call(names::Add, u"one", 1); }) == 457);
}

TEST_CASE_FIXTURE(Apartment, "files and drives are driven through chained objects") {
    const Object files = created(L"Scripting.FileSystemObject");
    const Variant folder = files.call(GetSpecialFolder, 0);
    CHECK((to_text(folder.get(names::Path)) == u"C:\\windows"));
    CHECK((to_text(folder) == u"C:\\windows"));  // its default member
    CHECK(folder.object().is(folder.object()));
    CHECK_FALSE(folder.object().is(files));
    bool has_c = false;
    for (const Variant& drive : files.get(Drives).object().items())
        has_c = to_text(drive.get(DriveLetter)) == u"C" || has_c;
    CHECK(has_c);
    CHECK(raised([&] { files.call(MemberName(u"GetFile"), u"C:\\no such file"); }) == 53);
}

TEST_CASE_FIXTURE(Apartment, "named arguments, puts, objects and errors cross as they are") {
    fakes::HostLog log;
    std::vector<Variant> seen;
    const Object inner =
        fakes::make_fake(log, u"Inner", [](fakes::FakeObject& fake) { fake.holds(names::Name, u"x"); });
    const Object outer = seen_from_outside(fakes::make_fake(log, u"Outer", [&](fakes::FakeObject& fake) {
        fake.answers(Greeting,
                     [&](Access, std::span<Variant> arguments) -> Variant {
                         seen.assign(arguments.begin(), arguments.end());
                         return u"hello";
                     })
            .answers(NoSuchMember,
                     [](Access, std::span<Variant>) -> Variant { throw Error(1004, u"inner\router", u"No."); })
            .holds(names::Value, Empty{})
            .contains({inner, inner});
    }));
    CHECK(
        (to_text(outer.call(Greeting, 1, Missing{}, named(names::After, u"a"), named(names::Before, 2))) == u"hello"));
    REQUIRE(seen.size() == 4);
    CHECK(to_long(seen[0]) == 1);
    CHECK(seen[1].is_missing());
    CHECK((to_text(seen[2]) == u"a"));
    CHECK(to_long(seen[3]) == 2);
    outer.put(names::Value, inner);
    CHECK((to_text(outer.get(names::Value).get(names::Name)) == u"x"));
    CHECK(outer.items().size() == 2);
    try {
        outer.call(NoSuchMember);
        FAIL("nothing was raised");
    } catch (const Error& error) {
        CHECK(error.number() == 1004);
        CHECK((error.source() == u"inner\router"));
        CHECK((error.description() == u"No."));
    }
    CHECK(raised([&] { outer.call(names::Activate); }) == 438);
}

TEST_CASE_FIXTURE(Apartment, "a busy host is asked again, and its refusal is raised in the end") {
    const Hurried hurried;
    for (const HRESULT refusal : {RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER, static_cast<HRESULT>(0x800AC472)}) {
        Busy soon(refusal, 5);
        {
            const Object object = excel::from_host(ComPointer<IDispatch>(&soon));
            CHECK(to_long(object.get(names::Value)) == 7);
            CHECK(soon.calls == 6);
            CHECK(to_long(object.get(names::Value)) == 7);
            CHECK(soon.lookups == 1);
        }
        CHECK(soon.references == 0);
        Busy never(refusal, 1000);
        const Object object = excel::from_host(ComPointer<IDispatch>(&never));
        CHECK(raised([&] { object.get(names::Value); }) == excel::number_of(refusal));
        CHECK(never.calls == 6);
    }
    Busy dead(RPC_E_DISCONNECTED, 1000);
    const Object object = excel::from_host(ComPointer<IDispatch>(&dead));
    CHECK(raised([&] { object.get(names::Value); }) == RPC_E_DISCONNECTED);
    CHECK(dead.calls == 1);
}
