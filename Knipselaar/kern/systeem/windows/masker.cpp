#include "Knipselaar/kern/systeem/masker.h"

#include <windows.h>

#include <algorithm>
#include <string_view>

#include "Knipselaar/kern/systeem/windows/breed.h"

namespace kern {

namespace {

/// Windows ziet geen verschil tussen hoofdletters en kleine letters, en tussen beide schuine strepen.
std::wstring maakGelijk(const std::string& tekst) {
    std::wstring breed = windows::maakBreed(tekst);
    CharLowerBuffW(breed.data(), static_cast<DWORD>(breed.size()));
    std::replace(breed.begin(), breed.end(), L'\\', L'/');
    return breed;
}

/// Waar een verzameling tekens tussen haken ophoudt, zoals [a-z] of [!0-9]; npos als er geen sluithaak is.
/// @param masker  begint met een haak.
std::size_t vindSluithaak(std::wstring_view masker) {
    const bool omgekeerd = masker.size() > 1 && (masker[1] == L'!' || masker[1] == L'^');
    return masker.find(L']', omgekeerd ? 3 : 2);
}

/// @param verzameling  tussen haken, met de haken.
bool bevat(std::wstring_view verzameling, wchar_t teken) {
    const bool omgekeerd = verzameling[1] == L'!' || verzameling[1] == L'^';
    const std::size_t einde = verzameling.size() - 1;
    bool gevonden = false;
    for (std::size_t i = omgekeerd ? 2 : 1; i < einde; ++i) {
        const bool reeks = i + 2 < einde && verzameling[i + 1] == L'-';
        const wchar_t laatste = verzameling[reeks ? i + 2 : i];
        gevonden = gevonden || (verzameling[i] <= teken && teken <= laatste);
        i += reeks ? 2 : 0;
    }
    return gevonden != omgekeerd;
}

class Vergelijker {
  public:
    explicit Vergelijker(bool heelPad) : heelPad_(heelPad) {}

    bool past(std::wstring_view masker, std::wstring_view naam) const {
        while (!masker.empty()) {
            if (masker.front() == L'*') {
                return pastNaSter(masker.substr(1), naam);
            }
            const std::size_t stap = naam.empty() ? 0 : pastTeken(masker, naam.front());
            if (stap == 0) {
                return false;
            }
            masker.remove_prefix(stap);
            naam.remove_prefix(1);
        }
        return naam.empty();
    }

  private:
    bool isGrens(wchar_t teken) const { return heelPad_ && teken == L'/'; }

    bool pastNaSter(std::wstring_view masker, std::wstring_view naam) const {
        for (;;) {
            if (past(masker, naam)) {
                return true;
            }
            if (naam.empty() || isGrens(naam.front())) {
                return false;
            }
            naam.remove_prefix(1);
        }
    }

    /// Hoeveel van het masker bij dit teken hoort; nul als het niet past.
    std::size_t pastTeken(std::wstring_view masker, wchar_t teken) const {
        if (masker.front() == L'?') {
            return isGrens(teken) ? 0 : 1;
        }
        const std::size_t haak = masker.front() == L'[' ? vindSluithaak(masker) : std::wstring_view::npos;
        if (haak != std::wstring_view::npos) {
            return bevat(masker.substr(0, haak + 1), teken) && !isGrens(teken) ? haak + 1 : 0;
        }
        return masker.front() == teken ? 1 : 0;
    }

    bool heelPad_;
};

}  // namespace

bool pastOp(const std::string& masker, const std::string& naam, bool heelPad) {
    return Vergelijker(heelPad).past(maakGelijk(masker), maakGelijk(naam));
}

}  // namespace kern
