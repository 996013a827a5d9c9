#include "tests/hulp/kleineSchijf.h"

#include <sys/mount.h>

namespace hulp {

KleineSchijf::KleineSchijf(const std::filesystem::path& plaats) : plaats_(plaats) {
    std::filesystem::create_directories(plaats);
    gelukt_ = mount("knipseltest", plaats.c_str(), "tmpfs", 0, "size=300k") == 0;
}

KleineSchijf::~KleineSchijf() {
    if (gelukt_) {
        umount2(plaats_.c_str(), MNT_DETACH);
    }
}

}  // namespace hulp
