#pragma once

#include <wx/colour.h>

#include <cstdint>

namespace qor::wx {

// Colours of the models are 0xBBGGRR.
inline wxColour to_wx(std::int32_t color) {
    return {static_cast<unsigned char>(color), static_cast<unsigned char>(color >> 8),
            static_cast<unsigned char>(color >> 16)};
}

inline std::int32_t from_wx(const wxColour& color) {
    return color.Red() | color.Green() << 8 | color.Blue() << 16;
}

// Black or white, whichever can be read on it.
inline wxColour readable_on(const wxColour& ground) {
    return ground.GetLuminance() > 0.5 ? *wxBLACK : *wxWHITE;
}

}  // namespace qor::wx
