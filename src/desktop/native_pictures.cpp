#include "desktop/native_pictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/image.h>
#include <wx/imagpng.h>
#include <wx/msgdlg.h>
#include <wx/mstream.h>

#include "desktop/desktop.h"
#include "desktop/native_text.h"
#include "toolkit/failure.h"

namespace tarvex {

namespace {

constexpr int PixelsToUnit = 2;
constexpr std::array<const char*, 2> Endings = {"svg", "png"};  // in the order of the dialog's filters

// The chosen path with the ending of a picture: its own, or that of the chosen filter.
wxString WithEnding(const wxString& path, int filter) {
    const wxString own = wxFileName(path).GetExt().Lower();
    if (std::find(Endings.begin(), Endings.end(), own) != Endings.end()) return path;
    return path + "." + Endings.at(static_cast<std::size_t>(std::clamp(filter, 0, 1)));
}

}  // namespace

std::optional<std::string> NativePictures::AskForPlace(const std::string& name) {
    wxWindow* parent = desktop_ != nullptr ? desktop_->BeforeMessage() : nullptr;
    wxFileDialog dialog(parent, "Save Picture", wxString(), Shown(name) + "." + Endings[0],
                        "SVG picture (*.svg)|*.svg|PNG picture (*.png)|*.png",
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    wxString path;
    while (path.empty() && dialog.ShowModal() == wxID_OK) {
        path = WithEnding(dialog.GetPath(), dialog.GetFilterIndex());
        // The dialog asked about the name that was typed.
        if (path == dialog.GetPath() || !wxFileName::FileExists(path)) break;
        if (wxMessageBox(path + "\n\nThis file is there already. Replace it?", "Save Picture",
                         wxYES_NO | wxNO_DEFAULT, parent) != wxYES) {
            path.clear();
        }
    }
    if (desktop_ != nullptr) desktop_->AfterMessage();
    if (path.empty()) return std::nullopt;
    std::string place = path.utf8_string();
    std::replace(place.begin(), place.end(), '/', '\\');
    return place;
}

std::string NativePictures::PngOf(const Drawing& drawing) {
    const wxSize size(static_cast<int>(std::ceil(drawing.size.width * PixelsToUnit)),
                      static_cast<int>(std::ceil(drawing.size.height * PixelsToUnit)));
    wxImage image(size);
    if (!image.IsOk()) throw Failure(DeviceError, "there is no memory for a picture of that size");
    {
        const std::unique_ptr<wxGraphicsContext> canvas(wxGraphicsContext::Create(image));
        canvas->Scale(PixelsToUnit, PixelsToUnit);
        Painter(*canvas, LightPalette()).Paint(drawing);
    }
    wxMemoryOutputStream stream;
    if (!wxPNGHandler().SaveFile(&image, stream, false)) {
        throw Failure(DeviceError, "the picture could not be made a PNG file");
    }
    std::string bytes(stream.GetSize(), '\0');
    stream.CopyTo(bytes.data(), bytes.size());
    return bytes;
}

}  // namespace tarvex
