#!/usr/bin/env python3
"""Zet een PNG-beeld om in XPM-gegevens met altijd 256 kleurregels van twee tekens per beeldpunt.

Gebruik: pngNaarXpm.py NAAM < beeld.png > NAAM.xpm

Het beeld moet dekkend zijn, met 8 bits per kanaal, in RGB of RGBA en zonder interliniëring. Dezelfde invoer
geeft altijd dezelfde uitvoer.
"""

import collections
import struct
import sys
import zlib

KLEUREN = 256
HANDTEKENING = b"\x89PNG\r\n\x1a\n"


def lees_blokken(gegevens):
    """Geeft de blokken van een PNG-bestand als paren van soort en inhoud."""
    if not gegevens.startswith(HANDTEKENING):
        raise ValueError("geen PNG-beeld")
    plaats = len(HANDTEKENING)
    while plaats < len(gegevens):
        lengte, soort = struct.unpack_from(">I4s", gegevens, plaats)
        yield soort, gegevens[plaats + 8 : plaats + 8 + lengte]
        plaats += 12 + lengte


def voorspel(links, boven, linksboven):
    """De buur die het dichtst bij links + boven - linksboven ligt: de Paeth-voorspeller van PNG."""
    schatting = links + boven - linksboven
    return min((links, boven, linksboven), key=lambda buur: abs(schatting - buur))


def herstel_rij(filtersoort, rij, vorige, stap):
    """Maakt het filter van een beeldrij ongedaan; vorige is de herstelde rij erboven."""
    for i, waarde in enumerate(rij):
        links = rij[i - stap] if i >= stap else 0
        boven = vorige[i]
        linksboven = vorige[i - stap] if i >= stap else 0
        bijdrage = (0, links, boven, (links + boven) // 2, voorspel(links, boven, linksboven))[filtersoort]
        rij[i] = (waarde + bijdrage) & 0xFF
    return rij


def lees_png(gegevens):
    """Geeft het beeld als lijst van rijen met (rood, groen, blauw) per beeldpunt."""
    blokken = list(lees_blokken(gegevens))
    breedte, hoogte, diepte, kleursoort, _, _, interlinie = struct.unpack(">IIBBBBB", dict(blokken)[b"IHDR"])
    stap = {2: 3, 6: 4}.get(kleursoort)
    if diepte != 8 or stap is None or interlinie:
        raise ValueError("alleen RGB of RGBA met 8 bits per kanaal, zonder interliniëring")
    ruw = zlib.decompress(b"".join(inhoud for soort, inhoud in blokken if soort == b"IDAT"))
    lengte = breedte * stap
    vorige = bytearray(lengte)
    rijen = []
    for y in range(hoogte):
        begin = y * (lengte + 1)
        vorige = herstel_rij(ruw[begin], bytearray(ruw[begin + 1 : begin + 1 + lengte]), vorige, stap)
        punten = [tuple(vorige[i : i + stap]) for i in range(0, lengte, stap)]
        if any(punt[3:] not in ((), (255,)) for punt in punten):
            raise ValueError("het beeld is niet dekkend")
        rijen.append([punt[:3] for punt in punten])
    return rijen


def kies_palet(rijen):
    """De meest gebruikte kleuren; bij gelijke stand beslist de kleur zelf, zodat de keuze vastligt."""
    aantallen = collections.Counter(punt for rij in rijen for punt in rij)
    return sorted(aantallen, key=lambda kleur: (-aantallen[kleur], kleur))[:KLEUREN]


def zoek_sleutels(rijen, palet):
    """Geeft bij elke kleur van het beeld de sleutel van de dichtstbijzijnde paletkleur."""

    def afstand(kleur, ander):
        return sum((a - b) ** 2 for a, b in zip(kleur, ander))

    kleuren = {punt for rij in rijen for punt in rij}
    return {
        kleur: "%02x" % min(range(len(palet)), key=lambda nummer: (afstand(kleur, palet[nummer]), nummer))
        for kleur in kleuren
    }


def schrijf_xpm(naam, rijen, uit):
    palet = kies_palet(rijen)
    sleutels = zoek_sleutels(rijen, palet)
    strings = ["%d %d %d 2 " % (len(rijen[0]), len(rijen), KLEUREN)]
    # Wat het beeld niet nodig heeft, wordt zwart aangevuld: het aantal kleurregels ligt vast.
    kleurnamen = ["#%02X%02X%02X" % kleur for kleur in palet] + ["black"] * (KLEUREN - len(palet))
    strings += ["%02x c %s" % (nummer, kleurnaam) for nummer, kleurnaam in enumerate(kleurnamen)]
    strings += ["".join(sleutels[punt] for punt in rij) for rij in rijen]
    uit.write("/* XPM */\n")
    uit.write("const char* const %s[%d] = {  // NOLINT(modernize-avoid-c-arrays)\n" % (naam, len(strings)))
    uit.write(",\n".join('"%s"' % regel for regel in strings))
    uit.write("\n};\n")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    try:
        rijen = lees_png(sys.stdin.buffer.read())
    except ValueError as fout:
        sys.exit("pngNaarXpm: %s" % fout)
    schrijf_xpm(sys.argv[1], rijen, sys.stdout)


if __name__ == "__main__":
    main()
