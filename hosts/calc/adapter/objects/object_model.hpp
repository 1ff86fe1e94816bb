#pragma once

#include <string_view>
#include <vector>

namespace qor::calc {

// A member as its object's table has it.
struct MemberDescription {
    std::u16string_view name;
    bool writable;
};

// An object of the model that the adapter answers.
struct ObjectDescription {
    std::u16string_view name;
    std::vector<MemberDescription> (*members)();
};

// Every class of objects that was compiled in, in no particular order.
std::vector<ObjectDescription>& object_model();

}  // namespace qor::calc
