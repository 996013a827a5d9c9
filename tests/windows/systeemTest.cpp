// Wat Windows anders doet dan POSIX: apparaten, delen, kenmerken, lange paden, hoofdletters.

#include <gtest/gtest.h>
#include <windows.h>
// Na windows.h.
#include <sddl.h>
#include <winioctl.h>

#include <algorithm>

#include "Knipselaar/kern/batch.h"
#include "Knipselaar/kern/systeem/aantekening.h"
#include "Knipselaar/kern/systeem/buurbestand.h"
#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/masker.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/kern/systeem/reden.h"
#include "Knipselaar/kern/systeem/vervanging.h"
#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"
#include "tests/hulp/bestanden.h"

namespace fs = std::filesystem;

using kern::Bestandssoort;

namespace {

class Systeem : public testing::Test {
  protected:
    std::string geefPad(const char* naam) const { return (map_ / naam).string(); }

    /// Zet een bestand ter plaatse op de plaats van een ander en geeft de reden als dat niet lukt.
    std::string verhuis() const {
        kern::Kenmerken oud;
        EXPECT_FALSE(kern::leesKenmerken(oud_, oud));
        const auto fout = kern::verhuis(nieuw_, oud_, oud);
        return fout ? kern::noemReden(fout) : std::string();
    }

    void schrijfBeide() const {
        hulp::schrijfBestand(oud_, "oud");
        hulp::schrijfBestand(nieuw_, "nieuw");
    }

    const hulp::TijdelijkeMap map_;
    const std::string oud_ = geefPad("oud.c");
    const std::string nieuw_ = geefPad("nieuw.c");
};

/// Een boom met een naam erin die naar een directory erbuiten kan wijzen.
class SysteemBuiten : public Systeem {
  protected:
    SysteemBuiten() {
        fs::create_directory(map_ / "elders");
        fs::create_directory(map_ / "boom");
        hulp::schrijfBestand(map_ / "elders/a.c", "");
    }
    ~SysteemBuiten() override { RemoveDirectoryW(wijzer_.c_str()); }

    void verwachtBuitenDeBoom() const {
        const std::string pad = geefPad("boom/wijzer");
        EXPECT_TRUE(kern::isLink(pad));
        EXPECT_EQ(kern::geefEchtPad(geefPad("elders")), kern::leesLink(pad));
        EXPECT_FALSE(kern::ligtIn(kern::geefEchtPad(pad), kern::geefEchtPad(geefPad("boom"))));
        EXPECT_TRUE(kern::lijstBoom(kern::naarTekst(geefPad("boom"))).empty());
    }

    const std::wstring elders_ = kern::windows::maakVoluit(geefPad("elders"));
    const std::wstring wijzer_ = kern::windows::maakVoluit(geefPad("boom/wijzer"));
};

std::vector<std::string> noemDelen(const std::string& pad) {
    std::vector<kern::Deel> delen;
    EXPECT_FALSE(kern::leesDirectory(pad, delen));
    std::vector<std::string> namen;
    for (const kern::Deel& deel : delen) {
        namen.push_back(deel.naam + (deel.verborgen ? " verborgen" : ""));
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

/// De toegangslijst in letters.
std::wstring leesToegang(const std::string& pad) {
    const std::wstring breed = kern::windows::maakVoluit(pad);
    DWORD nodig = 0;
    GetFileSecurityW(breed.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &nodig);
    std::vector<BYTE> lijst(nodig);
    EXPECT_NE(0, GetFileSecurityW(breed.c_str(), DACL_SECURITY_INFORMATION, lijst.data(), nodig, &nodig));
    LPWSTR letters = nullptr;
    EXPECT_NE(0, ConvertSecurityDescriptorToStringSecurityDescriptorW(
                     lijst.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &letters, nullptr));
    const std::wstring uit = letters == nullptr ? L"" : letters;
    LocalFree(letters);
    return uit;
}

/// Een programma dat een bestand open heeft zolang dit object er is.
class AnderProgramma {
  public:
    explicit AnderProgramma(const std::string& pad) {
        SECURITY_ATTRIBUTES erft{
            .nLength = sizeof erft, .lpSecurityDescriptor = nullptr, .bInheritHandle = 1};
        const kern::windows::Handvat bestand(CreateFileW(kern::windows::maakVoluit(pad).c_str(), GENERIC_READ,
                                                         FILE_SHARE_READ, &erft, OPEN_EXISTING, 0, nullptr));
        EXPECT_TRUE(bestand.isOpen());
        HANDLE lezen = nullptr;
        EXPECT_NE(0, CreatePipe(&lezen, &invoer_, &erft, 0));
        SetHandleInformation(invoer_, HANDLE_FLAG_INHERIT, 0);
        STARTUPINFOW hoe{};
        hoe.cb = sizeof hoe;
        hoe.dwFlags = STARTF_USESTDHANDLES;
        hoe.hStdInput = lezen;
        // Het leest tot zijn invoer ophoudt.
        std::wstring opdracht = L"cmd.exe /q";
        EXPECT_NE(0, CreateProcessW(nullptr, opdracht.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                    &hoe, &proces_));
        CloseHandle(lezen);
    }
    AnderProgramma(const AnderProgramma&) = delete;
    AnderProgramma& operator=(const AnderProgramma&) = delete;
    ~AnderProgramma() {
        CloseHandle(invoer_);
        WaitForSingleObject(proces_.hProcess, INFINITE);
        CloseHandle(proces_.hThread);
        CloseHandle(proces_.hProcess);
    }

  private:
    HANDLE invoer_ = nullptr;
    PROCESS_INFORMATION proces_{};
};

bool maakLink(const std::wstring& pad, const std::wstring& doel) {
    constexpr DWORD ookZonderBeheerder = 2;
    return CreateSymbolicLinkW(pad.c_str(), doel.c_str(),
                               SYMBOLIC_LINK_FLAG_DIRECTORY | ookZonderBeheerder) != 0 &&
           GetFileAttributesW(pad.c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// Een directory die naar een andere wijst, zoals elke gebruiker haar mag maken.
bool maakJunction(const std::wstring& pad, const std::wstring& doel) {
    // Zo begint een pad voor Windows zelf.
    const std::wstring naam = L"\\??\\" + doel.substr(4);
    const auto lengte = static_cast<WORD>(naam.size() * sizeof(wchar_t));
    // Soort, lengte van wat volgt, niets; dan van beide namen waar zij begint en hoe lang zij is.
    constexpr WORD vast = 8;
    constexpr WORD einden = 2 * sizeof(wchar_t);
    std::vector<WORD> gegevens{LOWORD(IO_REPARSE_TAG_MOUNT_POINT),
                               HIWORD(IO_REPARSE_TAG_MOUNT_POINT),
                               static_cast<WORD>(vast + lengte + einden),
                               0,
                               0,
                               lengte,
                               static_cast<WORD>(lengte + sizeof(wchar_t)),
                               0};
    gegevens.insert(gegevens.end(), naam.begin(), naam.end());
    gegevens.insert(gegevens.end(), {0, 0});
    if (CreateDirectoryW(pad.c_str(), nullptr) == 0) {
        return false;
    }
    const kern::windows::Handvat handvat(
        CreateFileW(pad.c_str(), GENERIC_WRITE, kern::windows::deelAlles, nullptr, OPEN_EXISTING,
                    FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    DWORD geschreven = 0;
    return handvat.isOpen() && DeviceIoControl(handvat.geef(), FSCTL_SET_REPARSE_POINT, gegevens.data(),
                                               static_cast<DWORD>(gegevens.size() * sizeof(WORD)), nullptr, 0,
                                               &geschreven, nullptr) != 0;
}

}  // namespace

TEST_F(Systeem, OpentGeenApparaat) {
    for (const char* naam : {"NUL", "CON", "COM1", "lessen\\nul", "\\\\.\\pipe\\knipseltest"}) {
        for (const kern::Opening& opening : {kern::openBron(naam), kern::openDoel(naam)}) {
            EXPECT_FALSE(opening.bestand.isOpen()) << naam;
            EXPECT_FALSE(opening.fout) << naam;
            EXPECT_EQ(Bestandssoort::anders, opening.kenmerken.soort) << naam;
        }
    }
    EXPECT_FALSE(kern::isZelfdePlaats("NUL", "CON"));
}

TEST_F(Systeem, HoudtVanEenDirectoryNietsOpen) {
    const kern::Opening opening = kern::openBron(map_.pad().string());
    EXPECT_FALSE(opening.bestand.isOpen());
    EXPECT_EQ(Bestandssoort::directory, opening.kenmerken.soort);
}

TEST_F(Systeem, LeestEnSchrijftVoorbij260Tekens) {
    std::string diep = map_.pad().string();
    for (int i = 0; i < 10; ++i) {
        diep += "\\" + std::string(60, 'd');
        ASSERT_NE(0, CreateDirectoryW(kern::windows::maakVoluit(diep).c_str(), nullptr));
    }
    const std::string pad = kern::plak(diep, "opgave.c");
    kern::Opening doel = kern::openDoel(pad);
    ASSERT_TRUE(doel.bestand.isOpen());
    EXPECT_FALSE(kern::schrijf(doel.bestand.geefKanaal(), "inhoud"));
    EXPECT_FALSE(doel.bestand.sluit());
    EXPECT_EQ(std::vector<std::string>{"opgave.c"}, noemDelen(diep));
    kern::Buurbestand buur(pad);
    ASSERT_TRUE(buur.isOpen());
    EXPECT_FALSE(kern::schrijf(buur.geefKanaal(), "nieuwer"));
    EXPECT_FALSE(buur.ruil(fs::perms::all));
    kern::Kenmerken kenmerken;
    EXPECT_FALSE(kern::leesKenmerken(pad, kenmerken));
    EXPECT_EQ(7U, kenmerken.lengte);
    std::error_code fout;
    EXPECT_NE("", kern::geefEchtPad(pad, fout));
    EXPECT_FALSE(fout);
    // remove_all komt niet zo diep.
    DeleteFileW(kern::windows::maakVoluit(pad).c_str());
    for (int i = 0; i < 10; ++i) {
        RemoveDirectoryW(kern::windows::maakVoluit(diep).c_str());
        diep.resize(diep.size() - 61);
    }
}

TEST_F(Systeem, NeemtNamenBuitenDeTekensetVanWindows) {
    const std::string naam = "\xCE\xA9\xE2\x82\xAC\xF0\x9F\x98\x80.c";
    const kern::Opening doel = kern::openDoel(kern::plak(map_.pad().string(), naam));
    EXPECT_TRUE(doel.bestand.isOpen());
    EXPECT_EQ(std::vector<std::string>{naam}, noemDelen(map_.pad().string()));
    EXPECT_EQ(naam, kern::naarPad(kern::naarTekst(naam)));
}

TEST_F(Systeem, VervangtEnHoudtDeKenmerken) {
    schrijfBeide();
    const std::wstring breed = kern::windows::maakVoluit(oud_);
    ASSERT_NE(0, SetFileAttributesW(breed.c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ("", verhuis());
    EXPECT_EQ("nieuw", hulp::leesBestand(oud_));
    EXPECT_FALSE(fs::exists(nieuw_));
    EXPECT_EQ(static_cast<DWORD>(FILE_ATTRIBUTE_HIDDEN),
              GetFileAttributesW(breed.c_str()) & ~static_cast<DWORD>(FILE_ATTRIBUTE_ARCHIVE));
}

TEST_F(Systeem, VervangtEnHoudtDeToegangslijst) {
    schrijfBeide();
    const std::wstring breed = kern::windows::maakVoluit(oud_);
    const std::wstring voor = leesToegang(oud_);
    // Iedereen mag alles.
    PSECURITY_DESCRIPTOR lijst = nullptr;
    ASSERT_NE(0, ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;WD)", SDDL_REVISION_1,
                                                                      &lijst, nullptr));
    EXPECT_NE(0, SetFileSecurityW(breed.c_str(), DACL_SECURITY_INFORMATION, lijst));
    LocalFree(lijst);
    const std::wstring gezet = leesToegang(oud_);
    EXPECT_NE(voor, gezet);
    EXPECT_NE(gezet, leesToegang(nieuw_));
    EXPECT_EQ("", verhuis());
    EXPECT_EQ("nieuw", hulp::leesBestand(oud_));
    EXPECT_EQ(gezet, leesToegang(oud_));
}

TEST_F(Systeem, LaatWatAlleenTeLezenIsStaan) {
    schrijfBeide();
    ASSERT_NE(0, SetFileAttributesW(kern::windows::maakVoluit(oud_).c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ("het bestand is alleen-lezen; haal dat kenmerk eraf", verhuis());
    kern::Buurbestand buur(oud_);
    EXPECT_EQ("het bestand is alleen-lezen; haal dat kenmerk eraf", kern::noemReden(buur.vervang({})));
    EXPECT_EQ("oud", hulp::leesBestand(oud_));
    SetFileAttributesW(kern::windows::maakVoluit(oud_).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Systeem, LaatWatEenAnderOpenHeeftStaan) {
    schrijfBeide();
    const kern::windows::Handvat ander(CreateFileW(kern::windows::maakVoluit(oud_).c_str(), GENERIC_READ,
                                                   FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(ander.isOpen());
    EXPECT_EQ("een ander programma heeft het open; sluit het daar", verhuis());
    EXPECT_EQ("oud", hulp::leesBestand(oud_));
    EXPECT_EQ("nieuw", hulp::leesBestand(nieuw_));
}

TEST_F(Systeem, LaatWatEenAnderProgrammaOpenHeeftStaan) {
    schrijfBeide();
    {
        const AnderProgramma ander(oud_);
        EXPECT_EQ("een ander programma heeft het open; sluit het daar", verhuis());
        EXPECT_EQ("oud", hulp::leesBestand(oud_));
    }
    EXPECT_EQ("", verhuis());
    EXPECT_EQ("nieuw", hulp::leesBestand(oud_));
}

TEST_F(SysteemBuiten, VolgtGeenLinkEenBoomUit) {
    if (!maakLink(wijzer_, elders_)) {
        GTEST_SKIP() << "hier zijn geen links te maken";
    }
    verwachtBuitenDeBoom();
}

TEST_F(SysteemBuiten, VolgtGeenJunctionEenBoomUit) {
    if (!maakJunction(wijzer_, elders_)) {
        GTEST_SKIP() << "hier zijn geen junctions te maken";
    }
    verwachtBuitenDeBoom();
}

TEST_F(Systeem, VernieuwtUitvoerDieAlleenTeLezenIs) {
    for (const char* inhoud : {"eerst", "daarna"}) {
        kern::Buurbestand buur(oud_);
        EXPECT_FALSE(kern::schrijf(buur.geefKanaal(), inhoud));
        EXPECT_FALSE(buur.ruil(fs::perms::owner_read));
        EXPECT_EQ(inhoud, hulp::leesBestand(oud_));
        EXPECT_EQ(static_cast<DWORD>(FILE_ATTRIBUTE_READONLY),
                  GetFileAttributesW(kern::windows::maakVoluit(oud_).c_str()) & FILE_ATTRIBUTE_READONLY);
    }
    EXPECT_EQ(std::vector<std::string>{"oud.c"}, noemDelen(map_.pad().string()));
    SetFileAttributesW(kern::windows::maakVoluit(oud_).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Systeem, KentEenPlaatsOokMetAndereHoofdletters) {
    schrijfBeide();
    const std::string anders = geefPad("OUD.C");
    EXPECT_TRUE(kern::isZelfdePlaats(oud_, anders));
    EXPECT_FALSE(kern::isZelfdePlaats(oud_, nieuw_));
    EXPECT_EQ(kern::geefEchtPad(oud_), kern::geefEchtPad(anders));
    EXPECT_TRUE(kern::ligtIn("C:\\Les\\a.c", "c:/les"));
    EXPECT_TRUE(kern::ligtIn("c:\\les", "C:\\les"));
    EXPECT_TRUE(kern::ligtIn("C:\\a.c", "C:\\"));
    EXPECT_FALSE(kern::ligtIn("C:\\lessen\\a.c", "C:\\les"));
}

TEST_F(Systeem, NoemtVerborgenWatWindowsZoNoemtEnWatMetEenPuntBegint) {
    hulp::schrijfBestand(map_ / "a.c", "");
    hulp::schrijfBestand(map_ / ".b.c", "");
    hulp::schrijfBestand(map_ / "c.c", "");
    ASSERT_NE(0,
              SetFileAttributesW(kern::windows::maakVoluit(geefPad("c.c")).c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ((std::vector<std::string>{".b.c verborgen", "a.c", "c.c verborgen"}),
              noemDelen(map_.pad().string()));
}

TEST_F(Systeem, KiestOpEenMaskerZoalsEenShell) {
    struct Geval {
        const char* masker;
        const char* naam;
        bool past;
    };
    for (const Geval& geval :
         {Geval{"*.c", "a.c", true}, Geval{"*.c", "a.cpp", false}, Geval{"*.C", "a.c", true},
          Geval{"?.c", "ab.c", false}, Geval{"[a-c]*.c", "bal.c", true}, Geval{"[!a-c]*.c", "bal.c", false},
          Geval{"[.c", "[.c", true}, Geval{"a*b*c", "axxbyyc", true}, Geval{"", "", true}}) {
        EXPECT_EQ(geval.past, kern::pastOp(geval.masker, geval.naam, false))
            << geval.masker << " " << geval.naam;
    }
    EXPECT_TRUE(kern::pastOp("sub/*.c", "sub\\a.c", true));
    EXPECT_FALSE(kern::pastOp("*.c", "sub/a.c", true));
    EXPECT_TRUE(kern::pastOp("*.c", "sub/a.c", false));
}
