#include "tests/fouten/proces.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace fouten {

namespace {

Proces::Woorden voegSamen(const Proces::Omgeving& omgeving) {
    Proces::Woorden regels;
    for (const auto& [naam, waarde] : omgeving) {
        regels.push_back(naam + "=" + waarde);
    }
    for (char** regel = environ; *regel != nullptr; ++regel) {
        const std::string geheel = *regel;
        if (!omgeving.contains(geheel.substr(0, geheel.find('=')))) {
            regels.push_back(geheel);
        }
    }
    return regels;
}

std::vector<char*> naarC(Proces::Woorden& woorden) {
    std::vector<char*> rij;
    for (std::string& woord : woorden) {
        rij.push_back(woord.data());
    }
    rij.push_back(nullptr);
    return rij;
}

}  // namespace

std::filesystem::path geefSnellePlaats() {
    const char* geheugen = "/dev/shm";
    return access(geheugen, R_OK | W_OK | X_OK) == 0 ? geheugen : std::filesystem::temp_directory_path();
}

Proces::Proces(const Woorden& opdracht, const Omgeving& omgeving, const std::filesystem::path& verslag) {
    Woorden woorden = opdracht;
    Woorden regels = voegSamen(omgeving);
    posix_spawn_file_actions_t kanalen;
    posix_spawn_file_actions_init(&kanalen);
    posix_spawn_file_actions_addopen(&kanalen, STDOUT_FILENO, verslag.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0600);
    posix_spawn_file_actions_adddup2(&kanalen, STDOUT_FILENO, STDERR_FILENO);
    const int fout = posix_spawn(&nummer_, opdracht.front().c_str(), &kanalen, nullptr, naarC(woorden).data(),
                                 naarC(regels).data());
    posix_spawn_file_actions_destroy(&kanalen);
    if (fout != 0) {
        throw std::runtime_error("start niet: " + opdracht.front());
    }
}

Proces::~Proces() {
    wacht();
}

void Proces::dood() const {
    kill(nummer_, SIGKILL);
}

int Proces::wacht() {
    if (!gewacht_) {
        gewacht_ = waitpid(nummer_, &ruweStatus_, 0) == nummer_;
    }
    return WIFEXITED(ruweStatus_) ? WEXITSTATUS(ruweStatus_) : 128 + WTERMSIG(ruweStatus_);
}

}  // namespace fouten
