#include "tests/support/failing_object.hpp"

#include <algorithm>

namespace qor::support {
namespace {

class FailingObject final : public Dispatch {
  public:
    FailingObject(Object inner, std::shared_ptr<AccessFailure> plan)
        : inner_(std::move(inner)), plan_(std::move(plan)) {}

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        count();
        std::vector<Variant> positional(arguments.positional.begin(), arguments.positional.end());
        std::vector<NamedArgument> named(arguments.named.begin(), arguments.named.end());
        for (Variant& value : positional) value = without(value);
        for (NamedArgument& argument : named) argument.value = without(argument.value);
        Variant result = inner_.invoke(name, access, {positional, named});
        // What a member writes back through an argument goes on to the caller.
        for (std::size_t place = 0; place < positional.size(); ++place) {
            if (!positional[place].is(Variant::Kind::object)) arguments.positional[place] = positional[place];
        }
        return with(result);
    }
    std::vector<Variant> items() override {
        count();
        std::vector<Variant> elements = inner_.items();
        std::ranges::transform(elements, elements.begin(), [&](const Variant& element) { return with(element); });
        return elements;
    }
    bool is_same(const Dispatch& other) const noexcept override {
        const auto* failing = dynamic_cast<const FailingObject*>(&other);
        return failing && inner_.is(failing->inner_);
    }
    std::u16string_view type_name() const noexcept override { return inner_.target()->type_name(); }

    const Object& inner() const noexcept { return inner_; }

  private:
    void count() {
        if (++plan_->accesses == plan_->failing) throw Error(ErrorNumber::host_refused);
    }

    Variant with(const Variant& value) const {
        const auto* object = value.get_if<Object>();
        return object && *object ? Variant(failing_object(*object, plan_)) : value;
    }
    static Variant without(const Variant& value) {
        const auto* object = value.get_if<Object>();
        return object ? Variant(object_behind(*object)) : value;
    }

    Object inner_;
    std::shared_ptr<AccessFailure> plan_;
};

}  // namespace

Object failing_object(Object inner, std::shared_ptr<AccessFailure> plan) {
    return make_object<FailingObject>(std::move(inner), std::move(plan));
}

Object object_behind(const Object& object) {
    const auto* failing = dynamic_cast<const FailingObject*>(object.target());
    return failing ? failing->inner() : object;
}

}  // namespace qor::support
