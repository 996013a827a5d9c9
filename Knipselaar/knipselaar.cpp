#include "Knipselaar/knipselaar.h"

#include "Knipselaar/venster/parserVenster.h"
#include "Knipselaar/venster/systeem/pictogram.h"

wxIMPLEMENT_APP_NO_MAIN(Knipselaar);

Knipselaar::Knipselaar() : DesktopApp("Knipselaar") {}

Knipselaar::~Knipselaar() = default;

bool Knipselaar::OnInit() {
    auto* venster = new ParserVenster(nullptr, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                      wxDEFAULT_FRAME_STYLE);
    zetPictogram(*venster);
    SetTopWindow(venster);
    venster->Show(true);
    return true;
}
