#!/usr/bin/env python3
"""Breekt de code op veel plaatsen, één tegelijk, en laat zien dat de tests elke breuk opmerken.

Werkt in een eigen kopie van de boom: mutaties.py WERKMAP [NUMMER ...]. Zonder nummers komen alle breuken aan de
beurt. Een breuk die geen test opmerkt heet een overlever; de afloopstatus is dan 1. mutaties.py --staan ziet alleen na
of de tekst van elke breuk nog precies één keer in zijn bestand staat.
"""
import pathlib
import subprocess
import sys

BRON = pathlib.Path(__file__).resolve().parents[2]


def lees_breuken():
    """Elke breuk staat in breuken.txt als een regel met het bestand, een oude en een nieuwe tekst."""
    breuken = []
    for regel in (BRON / "tests/mutatie/breuken.txt").read_text(encoding="utf-8").splitlines():
        if regel and not regel.startswith("#"):
            bestand, oud, nieuw = regel.split(" ¦ ")
            breuken.append((bestand.strip(), oud.replace("⏎", "\n"), nieuw.replace("⏎", "\n").strip("·")))
    return breuken


def meld_verdwenen(breuken):
    """Meldt de breuken waarvan de tekst niet precies één keer in de code staat, en geeft hoeveel het er zijn."""
    aantal = 0
    for nummer, (bestand, oud, _) in enumerate(breuken, 1):
        keren = (BRON / bestand).read_text(encoding="utf-8").count(oud)
        if keren != 1:
            print(f"{nummer:3} {bestand}: de tekst staat er {keren} keer: {oud!r}", flush=True)
            aantal += 1
    return aantal


def voer_uit(werk, *opdracht):
    return subprocess.run(opdracht, cwd=werk, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          errors="replace", check=False)


def is_opgemerkt(werk, bestand):
    """Of de breuk niet bouwt of een test laat falen, en zo ja waarmee."""
    if voer_uit(werk, "cmake", "--build", "--preset", "debug").returncode != 0:
        return "bouwt niet"
    # Het eerst de tests die er het dichtst bij staan. Het consoleprogramma staat los van het venster.
    if bestand.startswith("KnipselaarCli/"):
        soorten = [("-R", "^kern[.]cli[.]")]
    else:
        namen = ("kern", "venster", "eind") if "/kern/" in bestand else ("venster", "eind", "kern")
        soorten = [("-L", naam) for naam in namen]
    for soort in soorten:
        uitvoer = voer_uit(werk, "ctest", "--preset", "debug", *soort, "-j3", "--stop-on-failure",
                           "--timeout", "60")
        if uitvoer.returncode != 0:
            gefaald = [regel for regel in uitvoer.stdout.splitlines() if "***" in regel]
            return gefaald[0].split(": ", 1)[1].split(" ")[0] if gefaald else soort[1]
    return None


def main():
    breuken = lees_breuken()
    verdwenen = meld_verdwenen(breuken)
    if verdwenen or sys.argv[1] == "--staan":
        return 1 if verdwenen else 0
    werk = pathlib.Path(sys.argv[1])
    keuze = [int(n) for n in sys.argv[2:]] or range(1, len(breuken) + 1)
    if not (werk / ".git").exists():
        subprocess.run(["git", "clone", "-q", str(BRON), str(werk)], check=True)
    voer_uit(werk, "cmake", "--preset", "debug", "-DKNIPSELAAR_SNELLE_BOUW=OFF")
    overlevers = 0
    for nummer in keuze:
        bestand, oud, nieuw = breuken[nummer - 1]
        pad = werk / bestand
        tekst = pad.read_text(encoding="utf-8")
        pad.write_text(tekst.replace(oud, nieuw), encoding="utf-8")
        oordeel = is_opgemerkt(werk, bestand)
        pad.write_text(tekst, encoding="utf-8")
        overlevers += oordeel is None
        print(f"{nummer:3} {bestand}: {oud!r} -> {nieuw!r}: {oordeel or 'OVERLEEFT'}", flush=True)
    print(f"{len(keuze)} breuken, {overlevers} overlevers")
    return 1 if overlevers else 0


if __name__ == "__main__":
    sys.exit(main())
