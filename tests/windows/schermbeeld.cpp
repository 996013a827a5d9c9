#include "tests/venster/schermbeeld.h"

#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>

wxImage neemSchermbeeld(const wxRect& plaats) {
    wxScreenDC scherm;
    wxBitmap beeld(plaats.GetSize());
    wxMemoryDC doel(beeld);
    EXPECT_TRUE(doel.Blit(wxPoint(0, 0), plaats.GetSize(), &scherm, plaats.GetPosition()));
    doel.SelectObject(wxNullBitmap);
    return beeld.ConvertToImage();
}
