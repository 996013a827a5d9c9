#include "tests/cli/proef.h"

#include <fcntl.h>
#include <pty.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <thread>

namespace proef {

namespace fs = std::filesystem;

namespace {

constexpr uid_t niemand = 65534;

std::vector<char*> naarC(Woorden& woorden) {
    std::vector<char*> rij;
    for (std::string& woord : woorden) {
        rij.push_back(woord.data());
    }
    rij.push_back(nullptr);
    return rij;
}

/// Leest tot de andere kant sluit. Bij een terminal is dat een fout en geen einde.
std::string leesKanaal(int kanaal) {
    std::string tekst;
    std::array<char, 4096> blok{};
    for (ssize_t gelezen = 0;
         (gelezen = read(kanaal, blok.data(), blok.size())) > 0 || (gelezen < 0 && errno == EINTR);) {
        tekst.append(blok.data(), gelezen > 0 ? static_cast<std::size_t>(gelezen) : 0);
    }
    return tekst;
}

int openVoor(const fs::path& pad, int vlaggen) {
    const int kanaal = open(pad.c_str(), vlaggen | O_CLOEXEC, 0600);
    EXPECT_GE(kanaal, 0) << pad;
    return kanaal;
}

/// Leidt de invoer van een run uit een bestand en zijn uitvoer naar een ander.
class Kanalen {
  public:
    Kanalen(const fs::path& plaats, const std::string& invoer) : plaats_(plaats) {
        hulp::schrijfBestand(plaats_ / "invoer", invoer);
        in = openVoor(plaats_ / "invoer", O_RDONLY);
        uit = openVoor(plaats_ / "uitvoer", O_WRONLY | O_CREAT | O_TRUNC);
        fout = openVoor(plaats_ / "foutkanaal", O_WRONLY | O_CREAT | O_TRUNC);
    }
    Kanalen(const Kanalen&) = delete;
    Kanalen& operator=(const Kanalen&) = delete;
    ~Kanalen() {
        for (const int kanaal : {in, uit, fout}) {
            close(kanaal);
        }
    }

    std::string leesUit() const { return hulp::leesBestand(plaats_ / "uitvoer"); }
    std::string leesFout() const { return hulp::leesBestand(plaats_ / "foutkanaal"); }

    int in = -1;
    int uit = -1;
    int fout = -1;

  private:
    fs::path plaats_;
};

}  // namespace

void PrintTo(const Uitkomst& uitkomst, std::ostream* uit) {
    *uit << "status " << uitkomst.status << "\nuitvoer:\n"
         << hulp::toonBytes(uitkomst.uit) << "\nfoutkanaal:\n"
         << uitkomst.fout;
}

namespace {
/// Wie een ander programma aanwijst, doet dat voor Windows.
const char* geefWindowsprogramma() {
    return getenv("KNIPSELAAR_CLI");
}
}  // namespace

fs::path geefProgramma() {
    const char* ander = geefWindowsprogramma();
    return ander == nullptr ? KNIPSELAAR_CLI : ander;
}

std::string alsVenster(const std::string& tekst) {
    std::string uit;
    for (const char teken : tekst) {
        uit += teken == '\n' && geefWindowsprogramma() != nullptr ? "\r\n" : std::string(1, teken);
    }
    return uit;
}

Cli::Cli() {
    for (const fs::path& pad : {map_, thuis_, tijdelijk_, alles_ / "kanalen"}) {
        fs::create_directory(pad);
    }
    for (const fs::path& pad : {alles_.pad(), map_, thuis_, tijdelijk_}) {
        fs::permissions(pad, fs::perms::all);
    }
}

namespace {
constexpr const char* tellingen = "LLVM_PROFILE_FILE";
}

pid_t Cli::start(const Woorden& woorden, const Start& hoe, int invoer, int uitvoer, int foutkanaal) const {
    Woorden opdracht{hoe.programma.string()};
    opdracht.insert(opdracht.end(), woorden.begin(), woorden.end());
    std::map<std::string, std::string> omgeving{{"HOME", thuis_},         {"TMPDIR", tijdelijk_},
                                                {"LC_ALL", "C.UTF-8"},    {"TERM", "xterm"},
                                                {"PATH", getenv("PATH")}, {"LANG", "C.UTF-8"}};
    for (const auto& [naam, waarde] : hoe.omgeving) {
        omgeving[naam] = waarde;
    }
    // De sanitizers en de tellers van de dekking krijgen hun instellingen ook uit de omgeving.
    for (const char* naam : {"ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS", tellingen}) {
        if (const char* waarde = getenv(naam)) {
            omgeving[naam] = waarde;
        }
    }
    // Wie niets kan schrijven, kan ook zijn tellingen niet bewaren en zou dat op het foutkanaal zeggen.
    if (hoe.gewoneGebruiker || hoe.grootsteBestand) {
        omgeving[tellingen] = "/dev/null";
    }
    Woorden regels;
    for (const auto& [naam, waarde] : omgeving) {
        regels.push_back(naam + "=" + waarde);
    }
    std::vector<char*> argumenten = naarC(opdracht);
    std::vector<char*> variabelen = naarC(regels);
    const pid_t kind = fork();
    if (kind != 0) {
        return kind;
    }
    // Wie de tests op de achtergrond start, laat ze signalen negeren; het programma zou dat overnemen.
    for (const int signaal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        std::signal(signaal, signaal == SIGHUP && hoe.negeertOphangen ? SIG_IGN : SIG_DFL);
    }
    const rlimit grens{.rlim_cur = hoe.grootsteBestand.value_or(RLIM_INFINITY),
                       .rlim_max = hoe.grootsteBestand.value_or(RLIM_INFINITY)};
    // Voor het inleveren van de rechten: het programma kan in een directory staan die alleen van root is.
    // Het blijft open: van een script leest pas de shell.
    const int programma = open(hoe.programma.c_str(), O_RDONLY);
    const bool klaar =
        programma >= 0 && dup2(invoer, STDIN_FILENO) >= 0 && dup2(uitvoer, STDOUT_FILENO) >= 0 &&
        dup2(foutkanaal, STDERR_FILENO) >= 0 && chdir(map_.c_str()) == 0 &&
        (!hoe.grootsteBestand ||
         (std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &grens) == 0)) &&
        (!hoe.gewoneGebruiker || geteuid() != 0 ||
         (setresgid(niemand, niemand, niemand) == 0 && setresuid(niemand, niemand, niemand) == 0));
    if (klaar) {
        fexecve(programma, argumenten.data(), variabelen.data());
    }
    _exit(127);
}

int Cli::wacht(pid_t proces) {
    int status = 0;
    while (waitpid(proces, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

bool Cli::wachtOp(const std::function<bool()>& gebeurd) {
    const auto grens = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (!gebeurd() && std::chrono::steady_clock::now() < grens) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return gebeurd();
}

Uitkomst Cli::draai(const Woorden& woorden, const Start& hoe) const {
    const Kanalen kanalen(alles_ / "kanalen", hoe.invoer);
    Uitkomst uitkomst;
    uitkomst.status = wacht(start(woorden, hoe, kanalen.in, kanalen.uit, kanalen.fout));
    uitkomst.uit = kanalen.leesUit();
    uitkomst.fout = kanalen.leesFout();
    return uitkomst;
}

Uitkomst Cli::draaiOpTerminal(const Woorden& woorden, const Start& hoe) const {
    const Kanalen kanalen(alles_ / "kanalen", hoe.invoer);
    int baas = -1;
    int terminal = -1;
    EXPECT_EQ(0, openpty(&baas, &terminal, nullptr, nullptr, nullptr));
    fcntl(baas, F_SETFD, FD_CLOEXEC);
    Uitkomst uitkomst;
    const pid_t kind = start(woorden, hoe, kanalen.in, kanalen.uit, terminal);
    close(terminal);
    std::thread lezer([&] { uitkomst.fout = leesKanaal(baas); });
    uitkomst.status = wacht(kind);
    lezer.join();
    close(baas);
    uitkomst.uit = kanalen.leesUit();
    return uitkomst;
}

}  // namespace proef
