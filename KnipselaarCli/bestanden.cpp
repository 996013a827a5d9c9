#include "KnipselaarCli/bestanden.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "Knipselaar/kern/buurbestand.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/onderbreking.h"

namespace cli {

namespace {

constexpr std::size_t leesBlok = 256 * 1024;
/// Eén byte om het einde mee te vinden, en één voor wie er nog iets achter wil.
constexpr std::size_t kleinsteRuimte = 2;
constexpr std::size_t schrijfBlok = 64 * 1024;
constexpr mode_t gewoneRechten = 0777;
constexpr const char* aantekening = "user.knipselaar";

/// Een open bestand dat zichzelf sluit.
class Kanaal {
  public:
    explicit Kanaal(int nummer) : nummer_(nummer) {}
    Kanaal(const Kanaal&) = delete;
    Kanaal& operator=(const Kanaal&) = delete;
    ~Kanaal() {
        if (isOpen()) {
            close(nummer_);
        }
    }

    bool isOpen() const { return nummer_ >= 0; }
    int geefNummer() const { return nummer_; }

  private:
    int nummer_;
};

[[noreturn]] void gooi(const std::string& pad, const char* wat, int foutnummer) {
    throw Fout(pad + ": kan niet " + wat + " worden: " + noemReden(foutnummer));
}

/// Leest tot het einde, achter wat er al is.
bool leesVerder(int kanaal, kern::Bytes& bytes) {
    for (;;) {
        const std::size_t lengte = bytes.geef().size();
        if (bytes.geefRuimte() - lengte < kleinsteRuimte) {
            bytes.maakRuimte(std::max(2 * bytes.geefRuimte(), lengte + leesBlok));
        }
        const ssize_t gelezen = read(kanaal, bytes.geefBegin() + lengte, bytes.geefRuimte() - lengte);
        if (gelezen < 0 && errno == EINTR && !isOnderbroken()) {
            continue;
        }
        if (gelezen <= 0) {
            return gelezen == 0;
        }
        bytes.zetLengte(lengte + static_cast<std::size_t>(gelezen));
    }
}

/// Het masker van de gebruiker is alleen te lezen door het te zetten; dat mag maar één draad doen.
mode_t geefMasker() {
    static const mode_t masker = [] {
        const mode_t oud = umask(0);
        umask(oud);
        return oud;
    }();
    return masker;
}

/// Wat er bij een uitvoerbestand aangetekend wordt: wie het daarna nog schrijft, verandert lengte of tijd.
std::string maakAantekening(Uitvoersoort soort, const struct stat& gegevens) {
    constexpr std::array namen{"bestand", "directory", "boom"};
    std::string tekst = namen.at(static_cast<std::size_t>(soort));
    for (const auto getal :
         {static_cast<long long>(gegevens.st_size), static_cast<long long>(gegevens.st_mtim.tv_sec),
          static_cast<long long>(gegevens.st_mtim.tv_nsec)}) {
        tekst += ' ';
        tekst += std::to_string(getal);
    }
    return tekst;
}

/// Lukt de aantekening niet, dan vraagt een volgende run of het bestand overschreven mag worden.
void tekenAan(int kanaal, Uitvoersoort soort) {
    struct stat gegevens {};
    if (fstat(kanaal, &gegevens) == 0) {
        const std::string waarde = maakAantekening(soort, gegevens);
        fsetxattr(kanaal, aantekening, waarde.data(), waarde.size(), 0);
    }
}

}  // namespace

Inhoud leesInhoud(const std::string& pad) {
    Inhoud inhoud;
    if (pad == standaardinvoer) {
        inhoud.rechten = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
        if (!leesVerder(STDIN_FILENO, inhoud.bytes)) {
            gooi("standaardinvoer", "gelezen", errno);
        }
        return inhoud;
    }
    // O_NONBLOCK: op een pijp zonder tegenpartij zou open anders voor altijd wachten.
    const Kanaal kanaal(open(pad.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat gegevens {};
    if (!kanaal.isOpen() || fstat(kanaal.geefNummer(), &gegevens) != 0) {
        gooi(pad, "gelezen", errno);
    }
    if (!S_ISREG(gegevens.st_mode)) {
        throw Fout(pad + (S_ISDIR(gegevens.st_mode)
                              ? ": is een directory; noem een bestand, of geef --naar of --ter-plaatse"
                              : ": is geen gewoon bestand; gebruik '-' voor de standaardinvoer"));
    }
    inhoud.rechten = gegevens.st_mode & gewoneRechten;
    // Het bestand mag intussen korter of langer geworden zijn.
    inhoud.bytes.maakRuimte(static_cast<std::size_t>(gegevens.st_size) + kleinsteRuimte);
    if (!leesVerder(kanaal.geefNummer(), inhoud.bytes)) {
        gooi(pad, "gelezen", errno);
    }
    return inhoud;
}

namespace {

void schrijfBytes(int kanaal, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t geschreven = write(kanaal, bytes.data(), bytes.size());
        // Een onderbroken aanroep kan al een deel geschreven hebben.
        if (isOnderbroken() || (geschreven < 0 && errno != EINTR)) {
            throw Fout(noemReden(isOnderbroken() ? EINTR : errno));
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(geschreven, 0)));
    }
}

}  // namespace

void schrijfAlles(int kanaal, const Stukken& stukken) {
    std::array<char, schrijfBlok> plaats;  // NOLINT(cppcoreguidelines-pro-type-member-init): wordt gevuld
    kern::Bytes blok = kern::Bytes::leen(plaats);
    stukken([&](std::string_view stuk) {
        if (blok.geef().size() + stuk.size() > schrijfBlok) {
            schrijfBytes(kanaal, blok.geef());
            blok.zetLengte(0);
        }
        if (stuk.size() > schrijfBlok) {
            schrijfBytes(kanaal, stuk);
        } else {
            blok.voegToe(stuk);
        }
    });
    schrijfBytes(kanaal, blok.geef());
}

void schrijfUitvoer(const std::string& pad, const Stukken& stukken, mode_t rechten, Uitvoersoort soort) {
    kern::Buurbestand nieuw(pad);
    if (!nieuw.isOpen()) {
        gooi(pad, "geschreven", errno);
    }
    try {
        schrijfAlles(nieuw.geefKanaal(), stukken);
    } catch (const Fout& fout) {
        throw Fout(pad + ": kan niet geschreven worden: " + fout.what());
    }
    tekenAan(nieuw.geefKanaal(), soort);
    if (fchmod(nieuw.geefKanaal(), rechten & gewoneRechten & ~geefMasker()) != 0 || !nieuw.ruil()) {
        gooi(pad, "geschreven", errno);
    }
}

bool isEerdereUitvoer(const std::string& pad, Uitvoersoort soort) {
    std::array<char, 80> gelezen{};
    struct stat gegevens {};
    const ssize_t lengte = lgetxattr(pad.c_str(), aantekening, gelezen.data(), gelezen.size());
    return lengte > 0 && lstat(pad.c_str(), &gegevens) == 0 &&
           std::string_view(gelezen.data(), static_cast<std::size_t>(lengte)) ==
               maakAantekening(soort, gegevens);
}

void vervangTerPlaatse(const std::string& pad, const Stukken& stukken) {
    const std::unique_ptr<char, decltype(&std::free)> echt(realpath(pad.c_str(), nullptr), &std::free);
    struct stat oud {};
    if (echt == nullptr || stat(echt.get(), &oud) != 0) {
        gooi(pad, "vervangen", errno);
    }
    kern::Buurbestand nieuw(echt.get());
    if (!nieuw.isOpen()) {
        throw Fout(pad + ": blijft zoals het is: ernaast is geen bestand te maken: " + noemReden(errno));
    }
    try {
        schrijfAlles(nieuw.geefKanaal(), stukken);
    } catch (const Fout& fout) {
        throw Fout(pad + ": blijft zoals het is: " + fout.what());
    }
    nieuw.beginTeBewaren();
    if (!nieuw.neemRechtenOver(oud) || !nieuw.neemPlaatsIn()) {
        gooi(pad, "vervangen", errno);
    }
}

}  // namespace cli
