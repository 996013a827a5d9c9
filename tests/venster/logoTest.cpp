#include <gtest/gtest.h>
#include <wx/bitmap.h>
#include <wx/image.h>

#include "gemeenschappelijk/desktopApp.h"

TEST(Logo, WordtEenBitmap) {
    const wxBitmap logo(qorlogo);
    ASSERT_TRUE(logo.IsOk());
    EXPECT_EQ(wxSize(223, 155), logo.GetSize());
    EXPECT_EQ(nullptr, logo.GetMask()) << "elk beeldpunt heeft een kleur";
    const wxImage beeld = logo.ConvertToImage();
    EXPECT_GT(beeld.CountColours(), 16U) << "een tekening, geen vlak";
    EXPECT_LE(beeld.CountColours(), 256U);
}
