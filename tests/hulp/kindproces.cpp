#include "tests/hulp/kindproces.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace hulp {

namespace fs = std::filesystem;

namespace {

void leidOm(const fs::path& bestand, int kanaal) {
    const int doel = open(bestand.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    dup2(doel, kanaal);
    close(doel);
}

}  // namespace

Kindproces::Kindproces(const std::vector<std::string>& opdracht, const fs::path& uitvoer,
                       const fs::path& fouten)
    : nummer_(fork()) {
    if (nummer_ != 0) {
        return;
    }
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    leidOm(uitvoer, STDOUT_FILENO);
    leidOm(fouten, STDERR_FILENO);
    std::vector<char*> woorden;
    for (const std::string& woord : opdracht) {
        woorden.push_back(const_cast<char*>(woord.c_str()));
    }
    woorden.push_back(nullptr);
    execvp(woorden[0], woorden.data());
    _exit(127);
}

Kindproces::~Kindproces() {
    if (!isAf()) {
        stuur(SIGKILL);
        waitpid(nummer_, &ruweStatus_, 0);
    }
}

bool Kindproces::isAf() {
    af_ = af_ || waitpid(nummer_, &ruweStatus_, WNOHANG) == nummer_;
    return af_;
}

int Kindproces::status() const {
    return WIFEXITED(ruweStatus_) ? WEXITSTATUS(ruweStatus_) : 128 + WTERMSIG(ruweStatus_);
}

void Kindproces::stuur(int signaal) const {
    kill(nummer_, signaal);
}

}  // namespace hulp
