#pragma once

#include "hosts/excel/com/ole.hpp"

namespace qor::excel {

// Gives the interface of the one class factory.
HRESULT class_factory(REFIID interface_id, void** result);

// Whether anybody outside needs the library: an object lives or the server is locked.
bool is_in_use() noexcept;

}  // namespace qor::excel
