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
        case std::errc::file_exists:
            return "bestaat al";
        case std::errc::directory_not_empty:
            return "de directory is niet leeg";
        case std::errc::not_enough_memory:
            return "er is te weinig geheugen; sluit iets en probeer het opnieuw";
        case std::errc::too_many_files_open:
        case std::errc::too_many_files_open_in_system:
            return "er staan te veel bestanden open";
        case std::errc::too_many_links:
            return "het bestand heeft te veel namen";
        case std::errc::io_error:
            return "de schijf of het netwerk geeft een fout";
        case std::errc::timed_out:
            return "het antwoordt niet op tijd";
        case std::errc::device_or_resource_busy:
        case std::errc::text_file_busy:
            return "het is in gebruik";
        case std::errc::resource_unavailable_try_again:
            return "het systeem heeft even niets over; probeer het opnieuw";
        case std::errc::no_such_device:
        case std::errc::no_such_device_or_address:
            return "het apparaat is er niet";
        case std::errc::cross_device_link:
            return "het ligt op een ander bestandssysteem";
        case std::errc::bad_file_descriptor:
            return "het kanaal is dicht";
        case std::errc::value_too_large:
            return "het getal is te groot voor dit systeem";
        case std::errc::invalid_argument:
        case std::errc::operation_not_supported:
        case std::errc::function_not_supported:
            return "dat kan hier niet";
        default:
            return noemEigenReden(algemeen);
    }
}

}  // namespace kern
