#include "hosts/calc/adapter/ground/interaction.hpp"

#include <com/sun/star/task/XInteractionAbort.hpp>
#include <com/sun/star/task/XInteractionHandler.hpp>
#include <cppuhelper/implbase1.hxx>

namespace qor::calc {
namespace {

class RefuseQuestions final : public cppu::WeakImplHelper1<css::task::XInteractionHandler> {
  public:
    void SAL_CALL handle(const css::uno::Reference<css::task::XInteractionRequest>& request) override {
        const Ref question{request};
        for (const auto& answer : question->getContinuations()) {
            if (const Ref<css::task::XInteractionAbort> abort{Ref{answer}}) return abort->select();
        }
    }
};

}  // namespace

css::beans::PropertyValue refuse_questions() {
    return named_value("InteractionHandler",
                       css::uno::Reference<css::task::XInteractionHandler>(new RefuseQuestions()));
}

}  // namespace qor::calc
