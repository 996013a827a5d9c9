#include "Knipselaar/kern/systeem/reden.h"

#include "Knipselaar/kern/systeem/eigenReden.h"

namespace kern {

std::string noemReden(const std::error_code& fout) {
    const std::error_code algemeen = maakAlgemeen(fout);
    if (algemeen.category() != std::generic_category()) {
        return noemEigenReden(algemeen);
    }
    switch (static_cast<std::errc>(algemeen.value())) {
        case std::errc::no_such_file_or_directory:
            return "bestaat niet";
        case std::errc::permission_denied:
        case std::errc::operation_not_permitted:
            return "geen toegang; geef rechten of kies een andere plaats";
        case std::errc::no_space_on_device:
            return "de schijf is vol; maak ruimte en probeer het opnieuw";
        case std::errc::file_too_large:
            return "het bestand wordt groter dan mag";
        case std::errc::read_only_file_system:
            return "het bestandssysteem is alleen te lezen; kies een andere plaats";
        case std::errc::is_a_directory:
            return "is een directory; noem een bestand";
        case std::errc::not_a_directory:
            return "een deel van het pad is geen directory";
        case std::errc::filename_too_long:
            return "de naam is te lang";
        case std::errc::too_many_symbolic_link_levels:
            return "de links lopen in een kring";
        case std::errc::broken_pipe:
            return "de lezer van de pijp is gestopt";
        case std::errc::interrupted:
            return "onderbroken";
        default:
            return noemEigenReden(algemeen);
    }
}

}  // namespace kern
