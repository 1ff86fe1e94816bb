#include "screens/wx/faces.hpp"

#include <wx/image.h>
#include <wx/mstream.h>

#include "resources/faces.hpp"

namespace qor::wx {

wxBitmapBundle face(std::u16string_view name) {
    if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG)) wxImage::AddHandler(new wxPNGHandler);
    wxVector<wxBitmap> bitmaps;
    for (const int size : face_sizes) {
        const std::span<const std::byte> png = face_png(name, size);
        if (png.empty()) continue;
        wxMemoryInputStream bytes(png.data(), png.size());
        bitmaps.push_back(wxBitmap(wxImage(bytes, wxBITMAP_TYPE_PNG)));
    }
    return wxBitmapBundle::FromBitmaps(bitmaps);
}

}  // namespace qor::wx
