#include "Knipselaar/kern/systeem/aantekening.h"

#include <sys/xattr.h>

#include <array>

namespace kern {

namespace {
constexpr const char* naam = "user.knipselaar";
}

void tekenAan(int kanaal, std::string_view tekst) {
    fsetxattr(kanaal, naam, tekst.data(), tekst.size(), 0);
}

std::string leesAantekening(const std::string& pad) {
    std::array<char, 80> gelezen{};
    const ssize_t lengte = lgetxattr(pad.c_str(), naam, gelezen.data(), gelezen.size());
    return lengte > 0 ? std::string(gelezen.data(), static_cast<std::size_t>(lengte)) : std::string();
}

}  // namespace kern
