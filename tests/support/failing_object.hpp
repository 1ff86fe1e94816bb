#pragma once

#include <memory>

#include "automation/variant.hpp"

// A host whose n-th access by name fails, to try what a tool leaves behind then.
namespace qor::support {

struct AccessFailure {
    std::uint64_t accesses = 0;
    std::uint64_t failing = 0;  // raises 1004 instead of this one, counted from 1; 0: none
};

// The same object, whose accesses and those to all objects that come from it are counted and fail as the plan says.
Object failing_object(Object inner, std::shared_ptr<AccessFailure> plan);

// The object behind; the argument itself if it is none of these.
Object object_behind(const Object& object);

}  // namespace qor::support
