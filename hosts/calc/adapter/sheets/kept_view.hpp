#pragma once

#include <com/sun/star/uno/Any.hxx>

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// While it lives, the workbook's current window may show and select something else: at the end it shows again the
// sheets, the group of sheets and the cells that it showed before.
class KeptView {
  public:
    explicit KeptView(Book book);
    KeptView(const KeptView&) = delete;
    KeptView& operator=(const KeptView&) = delete;
    ~KeptView();

  private:
    Book book_;
    css::uno::Any selection_;
    std::vector<std::int32_t> sheets_;  // the active one first
};

}  // namespace qor::calc
