#include "Knipselaar/kern/regelOmzetter.h"

#include <utility>

#include "Knipselaar/kern/utf8.h"

namespace kern {

bool RegelOmzetter::isAlGoed(std::string_view blok) const {
    return codering_ == Codering::utf8 && !naCR_ && halfTeken_.empty() && isSchoneUtf8(blok);
}

void RegelOmzetter::zetOm(std::string_view blok, Bytes& uit) {
    while (!halfTeken_.empty() && !blok.empty()) {
        const std::string teken = std::exchange(halfTeken_, {}) + blok.front();
        zetUtf8Om(teken, uit);
        blok.remove_prefix(1);
    }
    if (codering_ == Codering::latijn1) {
        zetLatijn1Om(blok, uit);
    } else {
        zetUtf8Om(blok, uit);
    }
}

void RegelOmzetter::sluitAf(Bytes& uit) {
    zetLatijn1Om(std::exchange(halfTeken_, {}), uit);
    if (!naCR_) {
        uit.voegToe('\n');
    }
}

/// Verwerkt een teken dat een regel eindigt, of het tweede deel daarvan. False voor elk ander teken.
bool RegelOmzetter::eindigRegel(char teken, Bytes& uit) {
    const bool hoortBijCR = naCR_ && teken != '\r';
    naCR_ = teken == '\r';
    if (teken != '\n' && teken != '\r' && teken != '\0') {
        return false;
    }
    if (!hoortBijCR) {
        uit.voegToe('\n');
    }
    return true;
}

/// Neemt de tekens over die blijven wat ze zijn, tot het eerste waar iets mee moet gebeuren. Een CR LF is
/// daar ook een van, maar dan zo vaak dat hij hier meteen meegaat.
void RegelOmzetter::neemGewoneTekens(std::string_view& blok, Bytes& uit) const {
    if (naCR_) {
        return;
    }
    for (;;) {
        blok.remove_prefix(neemGewoneAscii(blok, uit));
        const std::size_t kort = telKorteTekens(blok);
        if (kort == 0) {
            return;
        }
        uit.voegToe(blok.substr(0, kort));
        blok.remove_prefix(kort);
    }
}

void RegelOmzetter::zetUtf8Om(std::string_view blok, Bytes& uit) {
    while (!blok.empty()) {
        neemGewoneTekens(blok, uit);
        if (blok.empty()) {
            return;
        }
        const Utf8Teken teken = leesUtf8(blok);
        if (teken.oordeel == Utf8Oordeel::half) {
            halfTeken_ = blok;
            return;
        }
        if (teken.oordeel == Utf8Oordeel::ongeldig) {
            codering_ = Codering::latijn1;
            zetLatijn1Om(blok, uit);
            return;
        }
        // Een te lange vorm kan een regeleinde zijn; boven ASCII zegt alleen de waarde nog iets.
        if (teken.waarde >= 0x80 || !eindigRegel(static_cast<char>(teken.waarde), uit)) {
            naCR_ = false;
            schrijfUtf8(teken.waarde, uit);
        }
        blok.remove_prefix(teken.lengte);
    }
}

void RegelOmzetter::zetLatijn1Om(std::string_view blok, Bytes& uit) {
    while (!blok.empty()) {
        std::size_t genomen = naCR_ ? 0 : neemLatijn1(blok, uit);
        if (genomen == 0) {
            genomen = 1;
            if (!eindigRegel(blok[0], uit)) {
                schrijfUtf8(static_cast<unsigned char>(blok[0]), uit);
            }
        }
        blok.remove_prefix(genomen);
    }
}

}  // namespace kern
