#pragma once

// De regels die in een blok staan om aan de student te geven.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace cli {

/// Waar in een regel staat wat de student krijgt: tot inspringing, en vanaf rest. In bytes.
struct Geefregel {
    std::size_t inspringing;
    std::size_t rest;

    /// Wat de student krijgt.
    std::string maakTekst(std::string_view regel) const;
};

/// Niets als de regel er geen is. Eindigt een prefix niet op een blanco teken, dan hoort één spatie erachter
/// bij de prefix: zo springt de regel niet verder in dan hij er staat.
/// @param regel     met of zonder haar regeleinde.
/// @param prefixen  niet leeg, en zonder blanco teken vooraan.
std::optional<Geefregel> zoekGeefregel(std::string_view regel, std::span<const std::string> prefixen);

}  // namespace cli
