#pragma once

#include <com/sun/star/util/XModifiable.hpp>

#include "hosts/calc/uno/document.hpp"
#include "hosts/calc/uno/surely.hpp"

namespace qor::calc {

// At its end the document counts as changed, or as unchanged, as it did at its making.
class KeptModifiedState {
  public:
    explicit KeptModifiedState(const Document& document) : state_(document), modified_(state_->isModified()) {}
    KeptModifiedState(const KeptModifiedState&) = delete;
    KeptModifiedState& operator=(const KeptModifiedState&) = delete;
    ~KeptModifiedState() {
        surely([&] { state_->setModified(modified_); });
    }

  private:
    Ref<css::util::XModifiable> state_;
    bool modified_;
};

}  // namespace qor::calc
