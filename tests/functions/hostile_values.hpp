#pragma once

#include <limits>
#include <string>
#include <vector>

#include "automation/variant.hpp"

namespace qor::test {

// Every kind of value that a host can hand over, the extremes of each included.
inline const std::vector<Variant>& hostile_values() {
    using Limits = std::numeric_limits<double>;
    static const std::vector<Variant> values{
        Empty{},
        Null{},
        Missing{},
        true,
        false,
        std::int16_t{-32768},
        std::numeric_limits<std::int32_t>::min(),
        std::numeric_limits<std::int32_t>::max(),
        0,
        1,
        -1,
        1.5F,
        0.0,
        -0.0,
        1e-300,
        Limits::denorm_min(),
        Limits::min(),
        1e15,
        0.5,
        Limits::max(),
        Limits::lowest(),
        Limits::infinity(),
        -Limits::infinity(),
        Limits::quiet_NaN(),
        Currency{std::numeric_limits<std::int64_t>::max()},
        Date{-657434.0},
        Date{2958465.99},
        Date{1e300},
        ErrorValue{2007},
        Object(),
        Array::list({Variant(1), Variant(u"b")}),
        u"",
        u" 12 ",
        u"1e999",
        u"&HFFFF",
        u"31 December 9999",
        u"%#[!*?",
        std::u16string(32767, u'9'),
        std::u16string(32767, u'['),
        std::u16string(32767, u' '),
        std::u16string(32767, u','),
        std::u16string(32767, u'*'),
        std::u16string(32767, u'(') + u"1",
        u"1" + std::u16string(32766, u'.'),
        u"yyyy",
        u"dollar",
        u"C",
        std::u16string(u"\xD800\0x", 3),
        std::u16string(1, u'\xDC00'),
        std::u16string(32767, u'\xDBFF'),
    };
    return values;
}

}  // namespace qor::test
