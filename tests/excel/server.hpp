#pragma once

#include <string>

#include "automation/variant.hpp"
#include "hosts/excel/com/host_object.hpp"
#include "platform/windows/system.hpp"

namespace qor::test {

// The server registered for this user, in a thread of its own apartment. When it goes, nothing of the server may live
// any more, and no object of the test that it was given.
class Server {
  public:
    Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server();

    // A new CCom, as a client gets it that knows no more than its name.
    Object create() const;
    excel::ComPointer<IDispatch> create_raw() const;

    // Whether the library lies in the process; what nobody uses is unloaded by `unload`.
    static bool is_loaded();
    static void unload();

    static std::wstring path();
    // Both call the library's own entry, as regsvr32 does.
    static HRESULT register_it();
    static HRESULT unregister_it();
};

}  // namespace qor::test
