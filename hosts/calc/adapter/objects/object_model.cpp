#include "hosts/calc/adapter/objects/object_model.hpp"

namespace qor::calc {

std::vector<ObjectDescription>& object_model() {
    static std::vector<ObjectDescription> objects;
    return objects;
}

}  // namespace qor::calc
