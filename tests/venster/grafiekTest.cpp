#include "tests/venster/grafiekTest.h"

#include <cstring>

#include "tests/venster/vensterTest.h"

bool Beeld::isGetekend(int x, int y) const {
    return std::min({beeld_.GetRed(x, y), beeld_.GetGreen(x, y), beeld_.GetBlue(x, y)}) < 128;
}

wxColour Beeld::kleur(int x, int y) const {
    return {beeld_.GetRed(x, y), beeld_.GetGreen(x, y), beeld_.GetBlue(x, y)};
}

wxRect Beeld::gebied(const wxRect& binnen) const {
    wxRect omhulsel;
    for (int y = binnen.GetTop(); y <= binnen.GetBottom(); ++y) {
        for (int x = binnen.GetLeft(); x <= binnen.GetRight(); ++x) {
            if (isGetekend(x, y)) {
                omhulsel.Union(wxRect(x, y, 1, 1));
            }
        }
    }
    return omhulsel;
}

int Beeld::telGetekend() const {
    int aantal = 0;
    for (int y = 0; y < beeld_.GetHeight(); ++y) {
        for (int x = 0; x < beeld_.GetWidth(); ++x) {
            aantal += isGetekend(x, y) ? 1 : 0;
        }
    }
    return aantal;
}

int Beeld::telNietWit() const {
    int aantal = 0;
    for (int y = 0; y < beeld_.GetHeight(); ++y) {
        for (int x = 0; x < beeld_.GetWidth(); ++x) {
            aantal += isWit(x, y) ? 0 : 1;
        }
    }
    return aantal;
}

std::string Beeld::kolom(int x) const {
    const wxRect strook = gebied(wxRect(x, 0, 1, beeld_.GetHeight()));
    return strook.IsEmpty() ? "" : std::to_string(strook.GetTop()) + "-" + std::to_string(strook.GetBottom());
}

bool Beeld::operator==(const Beeld& ander) const {
    return beeld_.GetSize() == ander.beeld_.GetSize() &&
           std::memcmp(beeld_.GetData(), ander.beeld_.GetData(),
                       3U * static_cast<std::size_t>(beeld_.GetWidth() * beeld_.GetHeight())) == 0;
}

const hulp::Bewering GrafiekTest::buitenVeld{
    "((inOorsprong.x < grafiekGrootte.GetWidth()) && (inOorsprong.y < grafiekGrootte.GetHeight()))",
    "(GrafiekVenster::zetOorsprong) oorsprong buiten veld."};

GrafiekTest::GrafiekTest()
    : venster_(new wxFrame(nullptr, wxID_ANY, "Grafiekproef", wxPoint(200, 150), wxSize(700, 500))),
      ouder_(new wxPanel(venster_)),
      paneel_(new TelPaneel(ouder_, wxID_ANY, wxPoint(20, 30), wxSize(300, 200), wxFULL_REPAINT_ON_RESIZE)) {}

GrafiekTest::~GrafiekTest() {
    venster_->Destroy();
    laatLopen();
}

void PrintTo(const wxRect& rechthoek, std::ostream* uit) {
    *uit << "(" << rechthoek.x << "," << rechthoek.y << " " << rechthoek.width << "x" << rechthoek.height
         << ")";
}
