#include "tests/venster/schermbeeld.h"

#include <gtest/gtest.h>

#include "tests/hulp/opdracht.h"

// De schermcontext van de toolkit geeft hier na de eerste keer steeds hetzelfde beeld; dit komt van de
// X-server.
wxImage neemSchermbeeld(const wxRect& plaats) {
    const std::string uitsnede =
        wxString::Format("%dx%d+%d+%d", plaats.width, plaats.height, plaats.x, plaats.y).utf8_string();
    const std::string punten =
        hulp::voerUit({"import", "-window", "root", "-crop", uitsnede, "-depth", "8", "rgb:-"});
    wxImage beeld(plaats.GetSize());
    const auto nodig = 3U * static_cast<std::size_t>(plaats.width * plaats.height);
    EXPECT_EQ(nodig, punten.size()) << uitsnede;
    punten.copy(reinterpret_cast<char*>(beeld.GetData()), nodig);
    return beeld;
}
