#include "Knipselaar/kern/systeem/schijf.h"

#include <fcntl.h>
#include <unistd.h>

#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern {

std::error_code zetVast(const std::string& directory) {
    const Bestand kanaal(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return kanaal.isOpen() ? posix::keur(syncfs(kanaal.geefKanaal())) : posix::geefFout();
}

}  // namespace kern
