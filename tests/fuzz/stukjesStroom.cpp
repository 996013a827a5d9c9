#include "tests/fuzz/stukjesStroom.h"

#include <algorithm>

namespace fuzz {

wxInputStream& StukjesStroom::Read(void* buffer, size_t lengte) {
    m_lastcount = OnSysRead(buffer, lengte);
    return *this;
}

size_t StukjesStroom::OnSysRead(void* buffer, size_t lengte) {
    const std::size_t aantal = std::min({lengte, neemGrootte(), rest_.size()});
    std::copy_n(rest_.begin(), aantal, static_cast<char*>(buffer));
    rest_.remove_prefix(aantal);
    m_lasterror = aantal == 0 ? wxSTREAM_EOF : wxSTREAM_NO_ERROR;
    return aantal;
}

std::size_t StukjesStroom::neemGrootte() {
    constexpr std::size_t merkteken = 4;
    const std::size_t kleinste = beurt_ == 0 ? merkteken : 1;
    const std::size_t grootte =
        grootten_.empty() ? 1 : static_cast<unsigned char>(grootten_[beurt_ % grootten_.size()]) + 1U;
    ++beurt_;
    return std::max(kleinste, grootte);
}

}  // namespace fuzz
