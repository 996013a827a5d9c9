#include "Knipselaar/kern/systeem/opdracht.h"

#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <cstdio>

#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern {

Opdrachtuitkomst voerOpdrachtUit(const std::string& opdracht) {
    Opdrachtuitkomst uitkomst;
    // Op een eigen regel: dan geldt het ook voor wat de shell zelf over de opdracht te zeggen heeft.
    FILE* pijp = popen(("exec 2>&1 </dev/null\n" + opdracht).c_str(), "re");
    if (pijp == nullptr) {
        uitkomst.fout = posix::geefFout();
        return uitkomst;
    }
    constexpr std::size_t leesBlok = 4096;
    std::array<char, leesBlok> blok{};
    while (std::feof(pijp) == 0) {
        uitkomst.uitvoer.append(blok.data(), std::fread(blok.data(), 1, blok.size(), pijp));
        if (std::ferror(pijp) != 0) {
            if (errno != EINTR) {
                break;
            }
            std::clearerr(pijp);
        }
    }
    constexpr int eersteSignaal = 128;
    const int status = pclose(pijp);
    uitkomst.afloop = WIFSIGNALED(status) ? eersteSignaal + WTERMSIG(status) : WEXITSTATUS(status);
    return uitkomst;
}

std::string citeer(const std::string& pad) {
    std::string uit = pad.starts_with('-') ? "'./" : "'";
    for (const char teken : pad) {
        if (teken == '\'') {
            uit += R"('\'')";
        } else {
            uit += teken;
        }
    }
    return uit + "'";
}

}  // namespace kern
