#pragma once

#include <string>
#include <string_view>

namespace qor {

// Between the path of a file, with slashes, and its address (URL): file:// and the path, in which the bytes that may
// not stand in an address are %XX. The two are each other's reverse, but for slashes that are repeated in a path. They
// write what the office writes, so that addresses can be compared; nothing is asked of the file system.

// The address of a relative path is relative. What is an address already, and the empty text, stay as they are.
std::u16string address_of_path(std::u16string_view path);

// What is no address of a file on this computer stays as it is: one of another kind or another computer, one with a
// part of the file or a query behind it, one in which a name holds a slash; a path from the root, too.
std::u16string path_of_address(std::u16string_view address);

}  // namespace qor
