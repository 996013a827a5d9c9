#pragma once

// Het hoofdvenster: alle bediening, het ene menu, de gebeurtenistabel en wat de opdrachten met elkaar delen.
// De leden die naar bediening wijzen bezitten niets; het venster ruimt zijn kinderen zelf op. De instellingen
// komen in de constructor uit de opslag van de toepassing en gaan er in de destructor weer in.
//
// De bronnen zijn verdeeld naar taak: parserVenster.cpp (opbouw, levensloop), indeling.cpp (sizers),
// toegankelijkheid.cpp, bestandsOpdrachten.cpp, knipOpdracht.cpp, batchOpdracht.cpp, modus.cpp,
// kleuring.cpp en markering.cpp.

#include <wx/filename.h>
#include <wx/frame.h>

#include <memory>
#include <optional>

#include "Knipselaar/kern/bestandKnipper.h"
#include "Knipselaar/kern/knipper.h"
#include "Knipselaar/kern/parserInstellingen.h"
#include "Knipselaar/venster/invoerslot.h"

class BezigVenster;
class Markeerder;
class wxButton;
class wxChoice;
class wxConfigBase;
class wxDirPickerCtrl;
class wxFileDirPickerEvent;
class wxPanel;
class wxRadioBox;
class wxSizer;
class wxStaticBox;
class wxStaticText;
class wxStyledTextCtrl;
class wxStyledTextEvent;
class wxTextCtrl;

class ParserVenster : public wxFrame {
  public:
    /// @param style  wordt genegeerd: het venster heeft altijd wxDEFAULT_FRAME_STYLE.
    ParserVenster(wxWindow* parent, int id, const wxString& title, const wxPoint& pos, const wxSize& size,
                  long style);
    ParserVenster(const ParserVenster&) = delete;
    ParserVenster& operator=(const ParserVenster&) = delete;
    ~ParserVenster() override;

    virtual void overHandler(wxCommandEvent& event);
    virtual void openHandler(wxCommandEvent& event);
    virtual void opslagHandler(wxCommandEvent& event);
    virtual void eindeHandler(wxCommandEvent& event);
    virtual void verwijderHandler(wxCommandEvent& event);
    virtual void parserModeHandler(wxCommandEvent& event);
    virtual void openAddHandler(wxCommandEvent& event);

    void pasAanUpdateHandler(wxUpdateUIEvent& event);
    void opslagUpdateHandler(wxUpdateUIEvent& event);
    void voegToeUpdateHandler(wxUpdateUIEvent& event);
    void parserKeuzeUpdateHandler(wxUpdateUIEvent& event);
    void onScrollLeft(wxStyledTextEvent& event);
    void onScrollRight(wxStyledTextEvent& event);
    void onMarginClick(wxStyledTextEvent& event);
    void verwerkDirHandler(wxFileDirPickerEvent& event);

    /// Werkt bij wat de editors laten zien, als het venster niets te doen heeft.
    void OnInternalIdle() override;

    /// Knipt de tekst van origineelEditor naar aangepastEditor. De regeleinden van het origineel worden LF.
    void bewerkBestand();

    /// Knipt het ene bestand naar het andere; meldt niets.
    void bewerkBestand(const wxFileName& bron, const wxFileName& bestemming);

    /// De algemene opmaak van een editor: marges, vouwtekens, regelterugloop. Wist alle kleuren.
    void zetAlgStijl(wxStyledTextCtrl* editor);
    void zetCStijl(wxStyledTextCtrl* editor);
    void zetCPPStijl(wxStyledTextCtrl* editor);
    void zetVHDLStijl(wxStyledTextCtrl* editor);

  protected:
    wxStaticBox* batchBox;
    wxStaticBox* enkelBestandBox;
    wxStaticBox* aangepastBox;
    wxStaticBox* vervangBox;
    wxStaticBox* origineelBox;
    wxStaticBox* eindMarkerBox;
    wxStaticBox* beginMarkerBox;
    wxMenuBar* menuBalk;
    wxStyledTextCtrl* origineelEditor;  ///< het origineel, of bij een batch het eerste logboek
    wxTextCtrl* beginMarkerTekst;
    wxTextCtrl* eindMarkerTekst;
    wxStyledTextCtrl* aangepastEditor;  ///< het resultaat, of bij een batch het tweede logboek
    wxTextCtrl* vervangTekst;
    wxRadioBox* parserModeKeuze;
    wxButton* openKnop;
    wxButton* voegToeKnop;
    wxButton* opslaanKnop;
    wxStaticText* bronLabel;
    wxDirPickerCtrl* bronDirKiezer;
    wxStaticText* bestemmingLabel;
    wxDirPickerCtrl* bestemmingDirKiezer;
    wxChoice* bestandTypeKeuze;
    wxButton* pasAanKnop;
    wxButton* eindeKnop;
    wxPanel* paneel;
    bool bezigMetScrollen = false;  ///< een editor wordt door de andere verschoven
    wxConfigBase* config;           ///< de opslag van de toepassing
    wxString origineelPad;          ///< directory van de originelen, zonder scheidingsteken achteraan
    wxString aangepastPad;          ///< directory van de resultaten, zonder scheidingsteken achteraan
    wxFileName huidigBestand;       ///< laatst geopend of toegevoegd bestand, of laatst gekozen directory
    bool origineelGeladen = false;
    bool bronGekozen = false;
    bool bestemmingGekozen = false;

    /// Zet een stap in wat de editors laten zien. Geeft of er daarna nog meer te doen is.
    bool werkMerkenBij();

  private:
    void maakMenu();
    void maakTeksten();
    void maakKeuzes();
    void noemVoorSchermlezer();
    void zetInstellingen(const kern::ParserInstellingen& instellingen);
    void set_properties();
    void do_layout();
    wxSizer* maakBovenrij();
    wxSizer* maakMiddenrij();
    wxSizer* maakOnderrij();

    bool kiesOrigineel();
    void kleurVoorHuidigBestand();
    kern::KnipTeksten geefKnipTeksten() const;
    void wisEditors();
    const kern::KnipMal& geefMal();
    kern::KnipUitslag knipVoorBatch(const wxFileName& bron, const wxFileName& bestemming);
    void volgOrigineel();
    void verwerkDirectory(BezigVenster& bezig);
    void verwerkDirectoryRecursief(BezigVenster& bezig);
    void volgEditor(wxStyledTextCtrl* leider, wxStyledTextCtrl* volger);

    std::optional<kern::KnipMal> mal_;  ///< van de laatste knipbeurt
    kern::KnipUitslag uitslag_;         ///< van het laatste bestand dat geknipt is
    std::unique_ptr<Markeerder> markeerder_;
    Invoerslot slot_;  ///< dicht tijdens een knipopdracht

    wxDECLARE_EVENT_TABLE();
};
