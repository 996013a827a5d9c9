#include "Knipselaar/kern/systeem/vervanging.h"

#include <cstdio>

#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/posix/fout.h"
#include "Knipselaar/kern/systeem/posix/rechten.h"

namespace kern {

std::error_code verhuis(const std::string& nieuw, const std::string& plaats, const Kenmerken& oud) {
    const Opening opening = openBron(nieuw);
    if (const auto fout = opening.keur()) {
        return fout;
    }
    if (opening.kenmerken.schijf != oud.schijf) {
        return std::make_error_code(std::errc::cross_device_link);
    }
    const int kanaal = opening.bestand.geefKanaal();
    Verlies verlies;
    if (const auto fout = posix::neemAllesOver(kanaal, opening.kenmerken, plaats, oud, verlies)) {
        return fout;
    }
    if (verlies.isEr()) {
        return std::make_error_code(std::errc::operation_not_permitted);
    }
    return posix::keur(std::rename(nieuw.c_str(), plaats.c_str()));
}

}  // namespace kern
