#include <array>
#include <memory>
#include <new>

#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/com/ole_variant.hpp"

namespace qor::excel {
namespace {

// An array's elements in the order in which they lie: the first index runs fastest.
class Elements {
  public:
    explicit Elements(SAFEARRAY& array) : array_(array) {
        require(SafeArrayGetVartype(&array, &type_));
        require(SafeArrayAccessData(&array, &data_));
    }
    Elements(const Elements&) = delete;
    Elements& operator=(const Elements&) = delete;
    ~Elements() { SafeArrayUnaccessData(&array_); }

    Variant operator[](std::size_t place) const {
        void* const element = static_cast<char*>(data_) + place * array_.cbElements;
        // As a reference to the element, whatever its type, and so without a count of its own.
        VARIANT reference;
        VariantInit(&reference);
        reference.vt = static_cast<VARTYPE>(type_ | VT_BYREF);
        reference.byref = element;
        return from_ole(reference);
    }

  private:
    SAFEARRAY& array_;
    VARTYPE type_ = VT_EMPTY;
    void* data_ = nullptr;
};

struct Destroy {
    void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};

}  // namespace

Array from_safe_array(SAFEARRAY& array) {
    if (array.cDims != 1 && array.cDims != 2) throw Error(ErrorNumber::subscript_out_of_range);
    const Elements elements(array);
    // The bounds lie from the last dimension to the first.
    if (array.cDims == 1) {
        std::vector<Variant> list;
        list.reserve(array.rgsabound[0].cElements);
        for (std::size_t place = 0; place < array.rgsabound[0].cElements; ++place) list.push_back(elements[place]);
        return Array::list(std::move(list), array.rgsabound[0].lLbound);
    }
    const SAFEARRAYBOUND& rows = array.rgsabound[1];
    const SAFEARRAYBOUND& columns = array.rgsabound[0];
    Array table = Array::table(rows.cElements, columns.cElements, rows.lLbound);
    for (std::size_t column = 0; column < columns.cElements; ++column)
        for (std::size_t row = 0; row < rows.cElements; ++row)
            table.at(row, column) = elements[column * rows.cElements + row];
    return table;
}

SAFEARRAY* to_safe_array(const Array& array) {
    const bool is_list = array.dimensions() == 1;
    const auto bound = [&](std::size_t count) {
        return SAFEARRAYBOUND{static_cast<ULONG>(count), array.lower_bound()};
    };
    std::array bounds{bound(is_list ? array.columns() : array.rows()), bound(array.columns())};
    std::unique_ptr<SAFEARRAY, Destroy> made(SafeArrayCreate(VT_VARIANT, is_list ? 1 : 2, bounds.data()));
    void* data = nullptr;
    if (!made) throw std::bad_alloc();
    require(SafeArrayAccessData(made.get(), &data));
    auto* const elements = static_cast<VARIANT*>(data);
    const std::unique_ptr<SAFEARRAY, decltype(&SafeArrayUnaccessData)> access(made.get(), SafeArrayUnaccessData);
    for (std::size_t row = 0; row < array.rows(); ++row)
        for (std::size_t column = 0; column < array.columns(); ++column)
            elements[column * array.rows() + row] = to_ole(array.at(row, column)).detach();
    return made.release();
}

}  // namespace qor::excel
