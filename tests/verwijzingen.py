#!/usr/bin/env python3
"""Kijkt of alles bestaat waar de teksten (*.md) naar verwijzen.

verwijzingen.py WORTEL. Bekijkt de links en beelden binnen de boom, met de kop waar een link naar wijst,
en elk script dat genoemd wordt. Meldt elke fout met bestand en regel; de afloopstatus is dan 1.
"""
import pathlib
import re
import sys

WORTEL = pathlib.Path(sys.argv[1]).resolve()

LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
SCRIPT = re.compile(r"(?<![\w./-])(?:\./|(?=scripts/|tests/))([\w./-]+\.(?:sh|py))\b")
ELDERS = re.compile(r"^[a-z]+:")
HEK = re.compile(r"^\s*(`{3,})")


def lees_regels(tekst):
    """De regels met hun nummer, en of ze in een blok met code staan."""
    hek = None
    for nummer, regel in enumerate(tekst.splitlines(), 1):
        gevonden = HEK.match(regel)
        if gevonden and (hek is None or gevonden[1].startswith(hek)):
            hek = gevonden[1] if hek is None else None
            yield nummer, regel, True
        else:
            yield nummer, regel, hek is not None


def anker(kop):
    """De naam die een kop als doel van een link krijgt."""
    tekst = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", kop).strip().lower()
    return re.sub(r"[^\w\- ]", "", tekst).replace(" ", "-")


def lees_ankers(pad):
    return {anker(regel.lstrip("#")) for _, regel, code in lees_regels(pad.read_text(encoding="utf-8"))
            if regel.startswith("#") and not code}


def bekijk_link(pad, doel):
    """De fout in een link, of niets."""
    naam, _, kop = doel.partition("#")
    bestand = (pad.parent / naam).resolve() if naam else pad
    if not bestand.exists():
        return f"{doel} bestaat niet"
    if not bestand.is_relative_to(WORTEL):
        return f"{doel} ligt buiten de boom"
    if kop and kop not in lees_ankers(bestand):
        return f"{doel}: die kop is er niet"
    return None


def bekijk(pad):
    regels = list(lees_regels(pad.read_text(encoding="utf-8")))
    proza = "\n".join("" if code else regel for _, regel, code in regels)
    for gevonden in LINK.finditer(proza):  # een link kan over twee regels lopen
        fout = None if ELDERS.match(gevonden[1]) else bekijk_link(pad, gevonden[1])
        if fout:
            yield f"{pad.relative_to(WORTEL)}:{proza.count(chr(10), 0, gevonden.end()) + 1}: {fout}"
    for nummer, regel, _ in regels:
        for script in SCRIPT.findall(regel):
            if not (WORTEL / script).exists():
                yield f"{pad.relative_to(WORTEL)}:{nummer}: {script} bestaat niet"


def main():
    teksten = [pad for pad in sorted(WORTEL.rglob("*.md"))
               if pad.relative_to(WORTEL).parts[0] not in {"bouw", "resultaat", ".git"}]
    fouten = [fout for pad in teksten for fout in bekijk(pad)]
    print("\n".join(fouten) or f"{len(teksten)} teksten in orde")
    return 1 if fouten or not teksten else 0


if __name__ == "__main__":
    sys.exit(main())
