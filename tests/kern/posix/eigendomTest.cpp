// Wat een bestand houdt als het ter plaatse vervangen wordt: toegangslijst en aantekeningen, en niemand mag
// daarna meer dan eerst.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <vector>

#include "Knipselaar/kern/systeem/buurbestand.h"
#include "Knipselaar/kern/systeem/vervanging.h"
#include "tests/hulp/bestanden.h"

namespace fs = std::filesystem;

using kern::Buurbestand;
using kern::Kenmerken;
using kern::Verlies;

namespace {

constexpr const char* lijst = "system.posix_acl_access";
constexpr const char* lijstVoorNieuwe = "system.posix_acl_default";
constexpr uid_t collega = 12345;

/// Een toegangslijst zoals Linux haar bewaart: "u::rw-,u:12345:rw-,g::r--,m::rw-,o::---".
std::string maakLijst() {
    struct Deel {
        std::uint16_t soort;
        std::uint16_t rechten;
        std::uint32_t wie;
    };
    constexpr std::uint32_t niemandInHetBijzonder = 0xFFFFFFFF;
    constexpr std::array delen{Deel{0x01, 6, niemandInHetBijzonder}, Deel{0x02, 6, collega},
                               Deel{0x04, 4, niemandInHetBijzonder}, Deel{0x10, 6, niemandInHetBijzonder},
                               Deel{0x20, 0, niemandInHetBijzonder}};
    std::string bytes;
    const auto schrijf = [&bytes](std::uint32_t waarde, int aantal) {
        for (int i = 0; i < aantal; ++i) {
            bytes += static_cast<char>(waarde >> (8U * static_cast<unsigned>(i)));
        }
    };
    schrijf(2, 4);
    for (const Deel& deel : delen) {
        schrijf(deel.soort, 2);
        schrijf(deel.rechten, 2);
        schrijf(deel.wie, 4);
    }
    return bytes;
}

/// Wat er bij een bestand aangetekend is, of "geen".
std::string leesAantekening(const fs::path& pad, const char* naam) {
    std::array<char, 200> waarde{};
    const ssize_t lengte = getxattr(pad.c_str(), naam, waarde.data(), waarde.size());
    return lengte < 0 ? "geen" : std::string(waarde.data(), static_cast<std::size_t>(lengte));
}

bool tekenAan(const fs::path& pad, const char* naam, const std::string& waarde) {
    return setxattr(pad.c_str(), naam, waarde.data(), waarde.size(), 0) == 0;
}

/// Langs beide wegen: uit de tijdelijke directory, en van ernaast.
class Eigendom : public testing::TestWithParam<bool> {
  protected:
    Eigendom() {
        fs::permissions(map_.pad(), fs::perms::all);
        hulp::schrijfBestand(oud_, "oud");
    }

    Verlies vervang() const {
        Kenmerken kenmerken;
        EXPECT_FALSE(kern::leesKenmerken(oud_.string(), kenmerken));
        if (GetParam()) {
            hulp::schrijfBestand(map_ / "nieuw", "");
            chmod((map_ / "nieuw").c_str(), 0600);
            EXPECT_FALSE(kern::verhuis((map_ / "nieuw").string(), oud_.string(), kenmerken));
            return {};
        }
        Buurbestand nieuw(oud_.string());
        EXPECT_FALSE(nieuw.vervang(kenmerken));
        return nieuw.geefVerlies();
    }

    mode_t geefRechten() const { return static_cast<mode_t>(fs::status(oud_).permissions()); }

    hulp::TijdelijkeMap map_;
    fs::path oud_ = map_ / "a.c";
};

}  // namespace

TEST_P(Eigendom, HoudtDeToegangslijstEnDeAantekeningen) {
    if (!tekenAan(oud_, lijst, maakLijst()) || !tekenAan(oud_, "user.vak", "digitaal ontwerpen")) {
        GTEST_SKIP() << "dit bestandssysteem bewaart ze niet";
    }
    ASSERT_EQ(0660U, geefRechten()) << "voor de groep staat daar het meeste dat wie genoemd is mag";
    // Die kan alleen root zetten.
    const bool vanHetSysteem = tekenAan(oud_, "trusted.vak", "x");
    EXPECT_FALSE(vervang().isEr());
    EXPECT_TRUE(!vanHetSysteem || leesAantekening(oud_, "trusted.vak") == "geen");
    EXPECT_EQ(maakLijst(), leesAantekening(oud_, lijst));
    EXPECT_EQ("digitaal ontwerpen", leesAantekening(oud_, "user.vak"));
    EXPECT_EQ(0660U, geefRechten());
    EXPECT_EQ(0U, fs::file_size(oud_));
}

TEST_P(Eigendom, KrijgtGeenToegangslijstVanDeDirectory) {
    if (!tekenAan(map_.pad(), lijstVoorNieuwe, maakLijst())) {
        GTEST_SKIP() << "dit bestandssysteem bewaart geen toegangslijsten";
    }
    chmod(oud_.c_str(), 0640);
    EXPECT_FALSE(vervang().isEr());
    EXPECT_EQ("geen", leesAantekening(oud_, lijst));
    EXPECT_EQ(0640U, geefRechten());
}

INSTANTIATE_TEST_SUITE_P(Beide, Eigendom, testing::Bool(),
                         [](const auto& info) { return std::string(info.param ? "Verhuisd" : "Ernaast"); });

class EigendomVanEenAnder : public Eigendom {};

TEST_P(EigendomVanEenAnder, GaatZonderDeGroepAlleenMetWatIedereenMag) {
    constexpr uid_t ik = 65534;
    const bool metLijst = tekenAan(oud_, lijst, maakLijst());
    if (geteuid() != 0 || chown(oud_.c_str(), collega, collega) != 0 || seteuid(ik) != 0) {
        GTEST_SKIP() << "alleen root kan een bestand van een ander maken";
    }
    const Verlies verlies = vervang();
    ASSERT_EQ(0, seteuid(0));
    EXPECT_EQ(
        metLijst ? "kon eigenaar, groep en toegangslijst niet houden" : "kon eigenaar en groep niet houden",
        kern::noemVerlies(verlies));
    EXPECT_EQ("geen", leesAantekening(oud_, lijst));
    EXPECT_EQ(metLijst ? 0600U : 0644U, geefRechten());
}

TEST_P(EigendomVanEenAnder, HoudtDeEigenaarOokAlsDeGroepNietKan) {
    constexpr uid_t ik = 65534;
    chmod(oud_.c_str(), 04750);
    if (geteuid() != 0 || chown(oud_.c_str(), ik, collega) != 0 || chmod(oud_.c_str(), 04750) != 0 ||
        seteuid(ik) != 0) {
        GTEST_SKIP() << "alleen root kan een bestand van een ander maken";
    }
    const Verlies verlies = vervang();
    ASSERT_EQ(0, seteuid(0));
    EXPECT_EQ("kon groep niet houden", kern::noemVerlies(verlies));
    EXPECT_EQ(0700U, geefRechten()) << "de bijzondere rechten golden met die groep erbij";
}

INSTANTIATE_TEST_SUITE_P(Ernaast, EigendomVanEenAnder, testing::Values(false),
                         [](const auto&) { return std::string("Ernaast"); });

TEST(Verlies, WordtInWoordenGenoemd) {
    EXPECT_EQ("", kern::noemVerlies({}));
    EXPECT_EQ("kon groep niet houden", kern::noemVerlies({.groep = true}));
    EXPECT_FALSE(Verlies().isEr());
    for (const Verlies& verlies : {Verlies{.eigenaar = true}, Verlies{.groep = true},
                                   Verlies{.toegangslijst = true}, Verlies{.kenmerken = true}}) {
        EXPECT_TRUE(verlies.isEr());
    }
    EXPECT_EQ("kon eigenaar, groep, toegangslijst en kenmerken niet houden",
              kern::noemVerlies({.eigenaar = true, .groep = true, .toegangslijst = true, .kenmerken = true}));
}
