// Een toolkitprogramma met dezelfde bediening als het parservenster en verder niets: de nullijn voor de
// start.

#include <wx/app.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/radiobox.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include <array>

class Kaal : public wxApp {
  public:
    bool OnInit() override {
        auto* frame = new wxFrame(nullptr, wxID_ANY, "Kaal");
        auto* paneel = new wxPanel(frame);
        auto* menu = new wxMenu;
        for (const int id : {wxID_ABOUT, wxID_OPEN, wxID_ADD, wxID_SAVE, wxID_REPLACE, wxID_EXIT}) {
            menu->Append(id);
        }
        auto* balk = new wxMenuBar;
        balk->Append(menu, "File");
        frame->SetMenuBar(balk);

        auto* sizer = new wxBoxSizer(wxVERTICAL);
        const auto plaats = [sizer](wxWindow* venster) { sizer->Add(venster, 1, wxEXPAND); };
        for (int i = 0; i < 7; ++i) {
            plaats(new wxStaticBox(paneel, wxID_ANY, "kader"));
        }
        for (int i = 0; i < 2; ++i) {
            plaats(new wxStyledTextCtrl(paneel));
            plaats(new wxTextCtrl(paneel, wxID_ANY));
            plaats(new wxStaticText(paneel, wxID_ANY, "directory"));
            plaats(new wxDirPickerCtrl(paneel, wxID_ANY, "/", wxDirSelectorPromptStr, wxDefaultPosition,
                                       wxDefaultSize, wxDIRP_USE_TEXTCTRL | wxDIRP_DIR_MUST_EXIST));
        }
        plaats(new wxTextCtrl(paneel, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                              wxTE_MULTILINE | wxTE_RICH2 | wxHSCROLL));
        const std::array<wxString, 3> keuzes{"een", "twee", "drie"};
        plaats(new wxRadioBox(paneel, wxID_ANY, "keuze", wxDefaultPosition, wxDefaultSize, 3, keuzes.data(),
                              0, wxRA_SPECIFY_ROWS));
        plaats(new wxChoice(paneel, wxID_ANY, wxDefaultPosition, wxDefaultSize, 3, keuzes.data()));
        for (const int id : {wxID_OPEN, wxID_ADD, wxID_SAVE, wxID_REPLACE, wxID_EXIT}) {
            plaats(new wxButton(paneel, id));
        }
        paneel->SetSizer(sizer);
        sizer->Fit(frame);
        frame->Show();
        return true;
    }
};

wxIMPLEMENT_APP(Kaal);
