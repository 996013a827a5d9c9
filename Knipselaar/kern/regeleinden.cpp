#include "Knipselaar/kern/regeleinden.h"

#include <wx/textbuf.h>

namespace kern {

std::string zetRegeleindenOm(std::string_view tekst) {
    std::string uit;
    uit.reserve(tekst.size());
    while (!tekst.empty()) {
        const std::size_t cr = tekst.find('\r');
        uit += tekst.substr(0, cr);
        if (cr == std::string_view::npos) {
            break;
        }
        tekst.remove_prefix(cr + 1);
        if (!tekst.starts_with('\n')) {
            uit += '\n';
        }
    }
    return uit;
}

bool isRegeleindeCrLf() {
    return wxTextBuffer::typeDefault == wxTextFileType_Dos;
}

}  // namespace kern
