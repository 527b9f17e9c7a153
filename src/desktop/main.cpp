#include <wx/app.h>

#include "desktop/app.h"

wxIMPLEMENT_APP(tarvex::App);
