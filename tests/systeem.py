#!/usr/bin/env python3
"""Kijkt of alleen de directories daarvoor een besturingssysteem aanspreken.

systeem.py WORTEL. Elders mag alleen ingelezen worden wat van het programma zelf, van de toolkit of van C++ is, en mag
geen naam staan waarmee een systeem zich kenbaar maakt. Code die per systeem verschilt kiest CMake, nooit de
preprocessor. Meldt elke fout met bestand en regel; de afloopstatus is dan 1.
"""
import pathlib
import re
import sys

WORTEL = pathlib.Path(sys.argv[1]).resolve()
DELEN = ("Knipselaar", "KnipselaarCli", "gemeenschappelijk")

# Met een punt of een schuine streep in de naam is een header niet van C++ zelf; csignal en cerrno zijn dat wel, maar
# wat ermee te doen is verschilt per systeem.
VREEMD = re.compile(r"#\s*include\s*<(?!wx/|experimental/)(?:[^>]*[./][^>]*|csignal|cerrno)>")
AANROEP = re.compile(r"\b(?:errno|(?:gtk|gdk|atk|g_object|g_signal)_\w+|(?:GTK|MSW)[A-Z]\w*)\b")
PREPROCESSOR = re.compile(r"#\s*(?:if|ifdef|ifndef|elif)\b.*"
                          r"\b(?:_WIN32|WIN32|__linux__|__unix__|__APPLE__|__WX(?:GTK|MSW|OSX)\w*__|_POSIX\w*)\b")


def is_van_een_systeem(pad):
    """Of een bestand in een directory voor één systeem of processor ligt: die ligt zelf in een directory die zo heet."""
    return not {"systeem", "processor"}.isdisjoint(pad.parts[:-2])


def bekijk(pad):
    regels = pad.read_text(encoding="utf-8").splitlines()
    for nummer, regel in enumerate(regels, 1):
        code = regel.split("//")[0]
        if PREPROCESSOR.search(code):
            yield nummer, f"de preprocessor kiest hier een systeem: {regel.strip()}"
        elif not is_van_een_systeem(pad.relative_to(WORTEL)) and (VREEMD.search(code) or AANROEP.search(code)):
            yield nummer, f"hoort in een directory onder systeem/: {regel.strip()}"


def main():
    bronnen = [pad for deel in DELEN for pad in sorted((WORTEL / deel).rglob("*")) if pad.suffix in (".cpp", ".h")]
    fouten = [f"{pad.relative_to(WORTEL)}:{nummer}: {fout}" for pad in bronnen for nummer, fout in bekijk(pad)]
    print("\n".join(fouten) or f"{len(bronnen)} bestanden bekeken")
    return 1 if fouten or not bronnen else 0


if __name__ == "__main__":
    sys.exit(main())
