#include "Knipselaar/venster/invoerslot.h"

#include <wx/app.h>

Invoerslot::~Invoerslot() {
    wxTheApp->Unbind(wxEVT_IDLE, &Invoerslot::open, this);
}

void Invoerslot::sluit() {
    wxTheApp->Unbind(wxEVT_IDLE, &Invoerslot::open, this);
    greep_ = std::make_unique<Invoergreep>();
}

void Invoerslot::openBijRust() {
    wxTheApp->Bind(wxEVT_IDLE, &Invoerslot::open, this);
    wxWakeUpIdle();
}

/// De toolkit meldt rust pas als alle invoer die er lag afgehandeld is.
void Invoerslot::open(wxIdleEvent& event) {
    wxTheApp->Unbind(wxEVT_IDLE, &Invoerslot::open, this);
    greep_.reset();
    event.Skip();
}
