#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qor::excel {

// One value below HKEY_CURRENT_USER\Software\Classes; without a name the key's unnamed one.
struct ClassValue {
    std::u16string key;
    std::u16string name;
    std::u16string value;
};

// What makes a server of the library at that path, for this user alone: a class that scripts and macros create by its
// name, that cells may call (Programmable), and a type library.
std::vector<ClassValue> class_values(std::u16string_view library_path);

// Both answer whether all of it succeeded. Removing takes away the keys of the classes with all that lies below.
bool register_classes(std::u16string_view library_path);
bool unregister_classes();

}  // namespace qor::excel
