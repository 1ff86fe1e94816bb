#pragma once

#include <algorithm>
#include <com/sun/star/uno/Sequence.hxx>
#include <initializer_list>

namespace qor::calc {

template <class T>
com::sun::star::uno::Sequence<T> sequence_of(std::initializer_list<T> elements) {
    return {elements.begin(), static_cast<sal_Int32>(elements.size())};
}

}  // namespace qor::calc
