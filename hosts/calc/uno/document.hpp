#pragma once

#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>

#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {

// A workbook as the office has it.
using Document = Ref<css::sheet::XSpreadsheetDocument>;

}  // namespace qor::calc
