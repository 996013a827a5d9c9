#pragma once

// Wat Windows opent, en het sluiten ervan.

#include <windows.h>

#include <string>
#include <utility>

namespace kern::windows {

class Handvat {
  public:
    explicit Handvat(HANDLE handvat) : handvat_(handvat) {}
    Handvat(const Handvat&) = delete;
    Handvat& operator=(const Handvat&) = delete;
    ~Handvat() {
        if (isOpen()) {
            CloseHandle(handvat_);
        }
    }

    bool isOpen() const { return handvat_ != INVALID_HANDLE_VALUE; }
    HANDLE geef() const { return handvat_; }

    /// De aanroeper sluit het voortaan zelf.
    HANDLE geefUitHanden() { return std::exchange(handvat_, INVALID_HANDLE_VALUE); }

  private:
    HANDLE handvat_;
};

/// Een ander mag met hetzelfde bestand doen wat hij wil; wie alleen kijkt, houdt niemand tegen.
inline constexpr DWORD deelAlles = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Het handvat achter een kanaal van de C-bibliotheek; blijft van dat kanaal.
HANDLE geefHandvat(int kanaal);

/// Het hele pad van wat open is, zonder links en met het voorvoegsel van maakVoluit (zie breed.h). Leeg als
/// het geen naam heeft.
std::wstring geefPad(HANDLE handvat);

}  // namespace kern::windows
