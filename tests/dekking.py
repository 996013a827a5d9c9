#!/usr/bin/env python3
"""Zegt hoeveel van de eigen code de tests doorliepen, en wat niet.

dekking.py HOOFDMAP TELLINGEN PROGRAMMA... met TELLINGEN de directory van de .profraw-bestanden. Wat niet doorlopen
is, hoort met een reden in tests/dekking.txt te staan: pad ¦ tekst van de regel ¦ reden. Anders is de status 1. Van
het consoleprogramma komt alleen het totaal: zijn tests doden het of nemen het zijn rechten af, en dan blijft er geen
telling over.
"""
import pathlib
import subprocess
import sys

MET_REDEN = ("Knipselaar/", "gemeenschappelijk/")
ALLEEN_TOTAAL = ("KnipselaarCli/",)


def lees_tellingen(hoofdmap, tellingen, programmas):
    """De tellingen van alle runs samen, in het formaat van lcov."""
    samen = tellingen / "samen.profdata"
    subprocess.run(["llvm-profdata-14", "merge", "-sparse", *map(str, tellingen.glob("*.profraw")), "-o", str(samen)],
                   check=True)
    objecten = [deel for programma in programmas[1:] for deel in ("-object", programma)]
    paden = [str(hoofdmap / deel) for deel in MET_REDEN + ALLEEN_TOTAAL]
    return subprocess.run(["llvm-cov-14", "export", "-format=lcov", programmas[0], *objecten, "-instr-profile",
                           str(samen), *paden], check=True, capture_output=True, text=True).stdout


def tel(lcov, hoofdmap):
    """Per soort (regels, takken) een dict van plaats naar: ooit doorlopen."""
    regels, takken, pad = {}, {}, ""
    for regel in lcov.splitlines():
        soort, _, rest = regel.partition(":")
        if soort == "SF":
            pad = str(pathlib.Path(rest).relative_to(hoofdmap))
        elif soort == "DA":
            nummer, keren = rest.split(",")[:2]
            plaats = (pad, int(nummer))
            regels[plaats] = regels.get(plaats, False) or keren != "0"
        elif soort == "BRDA":
            nummer, blok, tak, keren = rest.split(",")
            plaats = (pad, int(nummer), blok, tak)
            takken[plaats] = takken.get(plaats, False) or keren not in ("0", "-")
    return regels, takken


def lees_redenen(bestand):
    redenen = {}
    for regel in bestand.read_text(encoding="utf-8").splitlines():
        if regel and not regel.startswith("#"):
            pad, tekst, reden = (deel.strip() for deel in regel.split("¦"))
            redenen[(pad, tekst)] = reden
    return redenen


def main():
    hoofdmap, tellingen = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    regels, takken = tel(lees_tellingen(hoofdmap, tellingen, sys.argv[3:]), hoofdmap)
    for delen in (MET_REDEN, ALLEEN_TOTAAL):
        for naam, plaatsen in (("regels", regels), ("takken", takken)):
            tellen = [geraakt for plaats, geraakt in plaatsen.items() if plaats[0].startswith(delen)]
            print(f"Dekking van {' en '.join(delen)}: {sum(tellen)} van {len(tellen)} {naam}, "
                  f"{100 * sum(tellen) / len(tellen):.1f} %")
    redenen = lees_redenen(hoofdmap / "tests/dekking.txt")
    zonder_reden = 0
    gemist = {plaats[:2] for plaatsen in (regels, takken) for plaats, geraakt in plaatsen.items()
              if not geraakt and plaats[0].startswith(MET_REDEN)}
    for pad, nummer in sorted(gemist):
        tekst = (hoofdmap / pad).read_text(encoding="utf-8").splitlines()[nummer - 1].strip()
        reden = redenen.get((pad, tekst))
        if reden is None:
            zonder_reden += 1
        print(f"  {pad}:{nummer}: {tekst}\n      {reden or 'GEEN REDEN in tests/dekking.txt'}")
    return 1 if zonder_reden else 0


if __name__ == "__main__":
    sys.exit(main())
