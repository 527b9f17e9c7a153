#include "desktop/program_icon.h"

#ifndef __WXMSW__
#include <tarvex_icon.h>

#include <wx/bitmap.h>
#include <wx/image.h>
#include <wx/mstream.h>
#endif

namespace tarvex {

#ifdef __WXMSW__
wxIconBundle ProgramIcons() {
    return wxIconBundle("tarvex", static_cast<WXHINSTANCE>(nullptr));
}
#else
wxIconBundle ProgramIcons() {
    if (wxImage::FindHandler(wxBITMAP_TYPE_PNG) == nullptr) wxImage::AddHandler(new wxPNGHandler);
    wxIconBundle icons;
    for (const auto& png : icon::Sizes) {
        wxMemoryInputStream bytes(png.bytes, png.size);
        wxIcon icon;
        wxImage image;
        image.LoadFile(bytes, wxBITMAP_TYPE_PNG);
        icon.CopyFromBitmap(wxBitmap(image));
        icons.AddIcon(icon);
    }
    return icons;
}
#endif

}  // namespace tarvex
