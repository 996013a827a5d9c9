#include "tests/fuzz/velden.h"

#include <algorithm>

namespace fuzz {

std::string_view neemVeld(std::string_view& invoer) {
    const std::string_view veld = invoer.substr(0, invoer.find('\0'));
    invoer.remove_prefix(std::min(veld.size() + 1, invoer.size()));
    return veld;
}

wxString alsTekst(std::string_view bytes) {
    wxString tekst = wxString::FromUTF8(bytes.data(), bytes.size());
    if (tekst.utf8_string().empty()) {
        tekst = wxString(bytes.data(), wxConvISO8859_1, bytes.size());
    }
    // Een te lange vorm kan een NUL zijn; die past in geen tekstveld en in geen instelling.
    tekst.erase(std::remove(tekst.begin(), tekst.end(), L'\0'), tekst.end());
    return tekst;
}

}  // namespace fuzz
