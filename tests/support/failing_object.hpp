#pragma once

#include <memory>

#include "automation/variant.hpp"
#include "tests/support/fail_each.hpp"

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

// While it lives, the access of this number fails, counted from 1.
class FailingAccess {
  public:
    FailingAccess(AccessFailure& plan, std::uint64_t number) : plan_(plan) { plan_ = {0, number}; }
    FailingAccess(const FailingAccess&) = delete;
    FailingAccess& operator=(const FailingAccess&) = delete;
    ~FailingAccess() { plan_.failing = 0; }

    // Whether so many accesses were made.
    bool happened() const { return plan_.accesses >= plan_.failing; }

  private:
    AccessFailure& plan_;
};

// As fail_each, over the accesses to a host. `prepare` answers the host, and `work` gets it with one access that fails.
template <class Prepare, class Work, class Check>
std::uint64_t fail_each_access(Prepare prepare, Work work, Check check) {
    const auto plan = std::make_shared<AccessFailure>();
    Object host;
    return fail_each([&](std::uint64_t number) { return FailingAccess(*plan, number); },
                     [&] { host = failing_object(prepare(), plan); }, [&] { work(host); }, check);
}

}  // namespace qor::support
