#include "Knipselaar/kern/systeem/windows/handvat.h"

#include <io.h>

namespace kern::windows {

HANDLE geefHandvat(int kanaal) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(kanaal));
}

std::wstring geefPad(HANDLE handvat) {
    std::wstring pad;
    DWORD nodig = GetFinalPathNameByHandleW(handvat, nullptr, 0, FILE_NAME_NORMALIZED);
    // Krijgt een directory intussen een andere naam, dan kan het pad nog langer zijn.
    while (nodig > pad.size()) {
        pad.resize(nodig);
        nodig = GetFinalPathNameByHandleW(handvat, pad.data(), nodig, FILE_NAME_NORMALIZED);
    }
    pad.resize(nodig);
    return pad;
}

}  // namespace kern::windows
