#include "Knipselaar/kern/systeem/reden.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <system_error>

namespace {

std::string noem(int foutnummer) {
    return kern::noemReden({foutnummer, std::generic_category()});
}

}  // namespace

TEST(Reden, NoemtElkeFoutInHetNederlands) {
    struct Geval {
        int foutnummer;
        const char* reden;
    };
    for (const auto& [foutnummer, reden] :
         {Geval{ENOENT, "bestaat niet"},
          Geval{EACCES, "geen toegang; geef rechten of kies een andere plaats"},
          Geval{EPERM, "geen toegang; geef rechten of kies een andere plaats"},
          Geval{ENOSPC, "de schijf is vol; maak ruimte en probeer het opnieuw"},
          Geval{EDQUOT, "de schijf is vol; maak ruimte en probeer het opnieuw"},
          Geval{EFBIG, "het bestand wordt groter dan mag"},
          Geval{EROFS, "het bestandssysteem is alleen te lezen; kies een andere plaats"},
          Geval{EISDIR, "is een directory; noem een bestand"},
          Geval{ENOTDIR, "een deel van het pad is geen directory"}, Geval{ENAMETOOLONG, "de naam is te lang"},
          Geval{ELOOP, "de links lopen in een kring"}, Geval{EPIPE, "de lezer van de pijp is gestopt"},
          Geval{EINTR, "onderbroken"}}) {
        EXPECT_EQ(reden, noem(foutnummer)) << foutnummer;
    }
}

TEST(Reden, NoemtEenZeldzameFoutMetHaarNummer) {
    EXPECT_EQ("fout " + std::to_string(EUNATCH) + " van het systeem", noem(EUNATCH));
}

TEST(Reden, NoemtGeenEnkeleFoutInHetEngels) {
    constexpr int voorbijDeLaatste = 140;
    for (int foutnummer = 1; foutnummer < voorbijDeLaatste; ++foutnummer) {
        EXPECT_NE(std::error_code(foutnummer, std::generic_category()).message(), noem(foutnummer));
    }
    EXPECT_EQ("de schijf of het netwerk geeft een fout", noem(EIO));
    EXPECT_EQ("het is in gebruik", noem(ETXTBSY));
}
