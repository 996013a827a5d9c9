// Wat DesktopApp over het platform weet.

#include <wx/intl.h>
#include <wx/translation.h>
#include <wx/utils.h>

#include <cstdint>

#include "tests/venster/vensterTest.h"

namespace {

/// Zet een omgevingsvariabele voor de duur van een test, of haalt haar weg.
class Variabele {
  public:
    Variabele(wxString naam, const wxString& waarde) : Variabele(std::move(naam)) { wxSetEnv(naam_, waarde); }
    explicit Variabele(wxString naam) : naam_(std::move(naam)), stond_(wxGetEnv(naam_, &vorige_)) {
        wxUnsetEnv(naam_);
    }
    Variabele(const Variabele&) = delete;
    Variabele& operator=(const Variabele&) = delete;
    ~Variabele() {
        if (stond_) {
            wxSetEnv(naam_, vorige_);
        } else {
            wxUnsetEnv(naam_);
        }
    }

  private:
    wxString naam_;
    wxString vorige_;
    bool stond_;
};

/// Een catalogus in het bestandsformaat van gettext: een kop met de plaats van twee tabellen (de teksten en
/// hun vertalingen), elk een rij van lengte en plaats, en dan alle teksten met een nul erachter.
wxCharBuffer maakCatalogus(const std::vector<std::pair<std::string, std::string>>& vertalingen) {
    constexpr std::uint32_t kop = 28;
    const auto aantal = static_cast<std::uint32_t>(vertalingen.size());
    std::vector<std::uint32_t> getallen{0x950412de, 0, aantal, kop, kop + 8 * aantal, 0, 0};
    std::string teksten;
    const auto zet = [&](const std::string& tekst) {
        getallen.push_back(static_cast<std::uint32_t>(tekst.size()));
        getallen.push_back(static_cast<std::uint32_t>(kop + 16 * aantal + teksten.size()));
        teksten += tekst + '\0';
    };
    for (const auto& vertaling : vertalingen) {
        zet(vertaling.first);
    }
    for (const auto& vertaling : vertalingen) {
        zet(vertaling.second);
    }
    const std::string alles =
        std::string(reinterpret_cast<const char*>(getallen.data()), getallen.size() * sizeof(getallen[0])) +
        teksten;
    wxCharBuffer buffer(alles.size());
    alles.copy(buffer.data(), alles.size());
    return buffer;
}

/// Levert elke taal dezelfde catalogus, zonder bestanden.
class Proeflader : public wxTranslationsLoader {
  public:
    wxMsgCatalog* LoadCatalog(const wxString& domein, const wxString& /*taal*/) override {
        return wxMsgCatalog::CreateFromData(maakCatalogus({{"", "Content-Type: text/plain; charset=UTF-8\n"},
                                                           {"Linux", "vertaald Linux"},
                                                           {"Unbekannt", "een onbekend systeem"}}),
                                            domein);
    }
    wxArrayString GetAvailableTranslations(const wxString& /*domein*/) const override {
        wxArrayString talen;
        talen.Add("nl");
        return talen;
    }
};

/// Een tweede locale met alleen de proefcatalogus; de toolkit keert daarna terug naar die van de toepassing.
class Proefvertaling {
  public:
    Proefvertaling() : locale_(wxLANGUAGE_DUTCH, 0) {
        wxTranslations::Get()->SetLoader(new Proeflader);
        EXPECT_TRUE(wxTranslations::Get()->AddCatalog("proef"));
    }

  private:
    wxLocale locale_;
};

class Platform : public VensterTest {
  protected:
    static std::string osNaam(int id) {
        return wxGetApp().verkrijgOSNaam(static_cast<wxOperatingSystemId>(id)).utf8_string();
    }

    static std::string zoek(const wxString& startNaam, const wxString& werkDir,
                            const wxString& variabele = {}) {
        return wxGetApp().wxFindAppPath(startNaam, werkDir, variabele).utf8_string();
    }

    /// Een lege directory in de werkdirectory van de test.
    static std::filesystem::path maakMap(const std::string& naam) {
        const auto pad = geefOmgeving().werk() / naam;
        std::filesystem::create_directories(pad);
        return pad;
    }

    static constexpr const char* proefvariabele = "KNIPSELAAR_PROEFDIRECTORY";
};

}  // namespace

TEST_F(Platform, KentDeNamenVanDeSystemen) {
    const std::pair<int, const char*> tabel[] = {{wxOS_MAC_OS, "Mac OS 8/9/X (Mac arch)"},
                                                 {wxOS_MAC_OSX_DARWIN, "Mac OS X (Darwin arch)"},
                                                 {wxOS_WINDOWS_9X, "Microsoft Windows 95/98"},
                                                 {wxOS_WINDOWS_NT, "Microsoft Windows 2000/NT/XP"},
                                                 {wxOS_WINDOWS_MICRO, "Micro Windows"},
                                                 {wxOS_WINDOWS_CE, "Microsoft Windows CE"},
                                                 {wxOS_UNIX_LINUX, "Linux"},
                                                 {wxOS_UNIX_FREEBSD, "FreeBSD"},
                                                 {wxOS_UNIX_OPENBSD, "OpenBSD"},
                                                 {wxOS_UNIX_NETBSD, "NetBSD"},
                                                 {wxOS_UNIX_SOLARIS, "SUN Solaris"},
                                                 {wxOS_UNIX_AIX, "IBM AIX"},
                                                 {wxOS_UNIX_HPUX, "HP-UX"},
                                                 {wxOS_OS2, "IBM OS/2"}};
    for (const auto& [id, naam] : tabel) {
        EXPECT_EQ(naam, osNaam(id)) << id;
    }
}

TEST_F(Platform, HeeftVasteNummersVoorDeSystemen) {
    const std::pair<int, const char*> tabel[] = {{1, "Mac OS 8/9/X (Mac arch)"},
                                                 {2, "Mac OS X (Darwin arch)"},
                                                 {4, "Microsoft Windows 95/98"},
                                                 {8, "Microsoft Windows 2000/NT/XP"},
                                                 {16, "Micro Windows"},
                                                 {32, "Microsoft Windows CE"},
                                                 {64, "Linux"},
                                                 {128, "FreeBSD"},
                                                 {256, "OpenBSD"},
                                                 {512, "NetBSD"},
                                                 {1024, "SUN Solaris"},
                                                 {2048, "IBM AIX"},
                                                 {4096, "HP-UX"},
                                                 {65536, "IBM OS/2"}};
    for (const auto& [id, naam] : tabel) {
        EXPECT_EQ(naam, osNaam(id)) << id;
    }
}

TEST_F(Platform, NoemtAlHetAndereOnbekend) {
    for (const int id :
         {static_cast<int>(wxOS_UNKNOWN), 3, 5, static_cast<int>(wxOS_DOS), 32768, 8192, 131071,
          static_cast<int>(wxOS_MAC), static_cast<int>(wxOS_WINDOWS), static_cast<int>(wxOS_UNIX)}) {
        EXPECT_EQ("Unbekannt", osNaam(id)) << id;
    }
}

TEST_F(Platform, VertaaltAlleenOnbekend) {
    {
        const Proefvertaling vertaling;
        ASSERT_EQ("vertaald Linux", wxGetTranslation("Linux"));
        EXPECT_EQ("een onbekend systeem", osNaam(wxOS_UNKNOWN));
        EXPECT_EQ("een onbekend systeem", osNaam(wxOS_MAC));
        EXPECT_EQ("Linux", osNaam(wxOS_UNIX_LINUX)) << "de namen zelf worden nooit vertaald";
    }
    EXPECT_EQ("Unbekannt", osNaam(wxOS_UNKNOWN));
    EXPECT_EQ("Bestand", wxGetTranslation("File")) << "de vertalingen van de toepassing zijn terug";
}

TEST_F(Platform, GelooftDeVariabele) {
    const Variabele plaats(proefvariabele, "/bestaat niet/bin/");
    EXPECT_EQ("/bestaat niet/bin/", zoek("/usr/bin/tool", "/home/x", proefvariabele)) << "zoals zij er staat";
    EXPECT_EQ("/usr/bin", zoek("/usr/bin/tool", "/home/x")) << "zonder naam telt geen variabele";
}

TEST_F(Platform, GaatEenLegeOfOntbrekendeVariabeleVoorbij) {
    {
        const Variabele leeg(proefvariabele, "");
        EXPECT_EQ("/usr/bin", zoek("/usr/bin/tool", "/home/x", proefvariabele));
    }
    const Variabele weg(proefvariabele);
    EXPECT_EQ("/usr/bin", zoek("/usr/bin/tool", "/home/x", proefvariabele));
}

TEST_F(Platform, NeemtVanEenAbsoluteNaamDeDirectory) {
    const auto map = maakMap("absoluut");
    hulp::schrijfBestand(map / "tool", "");
    EXPECT_EQ("/usr/local/bin", zoek("/usr/local/bin/tool", naarWx(map)));
    EXPECT_EQ("/", zoek("/tool", naarWx(map)));
}

TEST_F(Platform, ZoektEenRelatieveNaamInDeWerkdirectory) {
    const auto map = maakMap("relatief");
    hulp::schrijfBestand(map / "tool", "");
    maakMap("relatief/onder");
    hulp::schrijfBestand(map / "onder" / "tool", "");
    const Variabele zoekpad("PATH", "/bestaat/niet");
    EXPECT_EQ(map.string(), zoek("tool", naarWx(map)));
    EXPECT_EQ(map.string(), zoek("tool", naarWx(map) + "/")) << "geen dubbele schuine streep";
    EXPECT_EQ((map / "onder").string(), zoek("onder/tool", naarWx(map)));
}

TEST_F(Platform, ZoektDaarnaInPath) {
    const auto map = maakMap("elders");
    const auto later = maakMap("later");
    hulp::schrijfBestand(map / "tool", "");
    hulp::schrijfBestand(later / "tool", "");
    const auto werkmap = maakMap("werkmap");
    const Variabele zoekpad("PATH", "/bestaat/niet:" + naarWx(map) + ":" + naarWx(later));
    EXPECT_EQ(map.string(), zoek("tool", naarWx(werkmap)));
    maakMap("werkmap/tool");
    EXPECT_EQ(map.string(), zoek("tool", naarWx(werkmap))) << "een directory is geen bestand";
    std::filesystem::remove(werkmap / "tool");
    hulp::schrijfBestand(werkmap / "tool", "");
    EXPECT_EQ(werkmap.string(), zoek("tool", naarWx(werkmap))) << "de werkdirectory gaat voor";
}

TEST_F(Platform, GeeftLeegAlsErNietsTeVindenIs) {
    const auto werkmap = maakMap("leegmap");
    {
        const Variabele zoekpad("PATH", naarWx(werkmap));
        EXPECT_EQ("", zoek("tool", naarWx(werkmap)));
    }
    const Variabele geenZoekpad("PATH");
    EXPECT_EQ("", zoek("tool", naarWx(werkmap)));
}

TEST_F(Platform, NeemtEenLegeWerkdirectoryAlsDeWortel) {
    const auto map = maakMap("vanafWortel");
    hulp::schrijfBestand(map / "tool", "");
    const Variabele zoekpad("PATH", "/bestaat/niet");
    EXPECT_EQ(map.string(), zoek(naarWx(map / "tool").Mid(1), ""));
    EXPECT_EQ("", zoek("tool", ""));
}
