#!/usr/bin/env python3
"""Meet Knipselaar tegen wat een docent anders zou gebruiken, afgewisseld in één keer, en drukt twee tabellen af.

meet.py BOUWMAP [RONDEN]. Alle getallen zijn verhoudingen van medianen; de machine zelf doet er dus minder toe. De
tabellen zijn voor README.md, en dus in het Engels.
"""
import os
import pathlib
import random
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

BOUW = pathlib.Path(sys.argv[1])
RONDEN = int(sys.argv[2]) if len(sys.argv) > 2 else 9
KNIP = str(BOUW / "tests/bench/knipmeter")
VENSTER = str(BOUW / "tests/bench/venstermeter")
VLOER = str(BOUW / "tests/bench/vloermeter")
ZONDER_VAST = str(BOUW / "tests/bench/libzonder_vast.so")
CLI = [str(BOUW / "KnipselaarCli/knipselaar-cli"), "--zonder-instellingen"]
BEGIN, EIND = "//**** Student Begin ****//", "//**** Student Eind ****//"
VERVANG = '#error "Dit stuk software ontbreekt."\\\n/* Beste student,\\\n    Werk dit uit.  */'
OMGEVING = dict(os.environ, LC_ALL="C.UTF-8")

SED = ["sed", f"/Student Begin/,/Student Eind/c\\\n{VERVANG}"]
AWK = '/Student Begin/{b=1;print r;next} /Student Eind/{if(b){b=0;next}} !b'
PERL = 'if(/Student Begin/){$b=1;print $r;next} if($b){$b=0 if /Student Eind/;next} print'
PYTHON = """import sys
b = False
r = "#error\\n"
with open(sys.argv[1], encoding="utf-8", errors="surrogateescape") as i, \
     open(sys.argv[2], "w", encoding="utf-8", errors="surrogateescape") as u:
    for regel in i:
        if "Student Begin" in regel:
            b = True
            u.write(r)
        elif b:
            b = "Student Eind" not in regel
        else:
            u.write(regel)
"""
PYTHON3 = "/usr/bin/python3" if os.path.exists("/usr/bin/python3") else sys.executable


def naar(opdracht):
    """Een opdracht die één bestand leest en op de standaarduitvoer schrijft."""
    def voer_uit(bron, doel):
        with open(doel, "wb") as uit:
            return subprocess.run([*opdracht, bron], stdout=uit, check=True, env=OMGEVING)
    return voer_uit


def los(*opdracht):
    """Een opdracht die bron en doel als laatste argumenten krijgt."""
    return lambda bron, doel: subprocess.run([*opdracht, bron, doel], check=True, env=OMGEVING)


def met_cli(*opties):
    """Het consoleprogramma, van bestand naar bestand."""
    return lambda bron, doel: subprocess.run([*CLI, *opties, "--overschrijf", "--uit", doel, bron], check=True,
                                             env=OMGEVING)


PER_BESTAND = {
    "engine": los(KNIP, "bestand"),
    "sed": naar(SED),
    "cp": los("cp"),
    "cli": met_cli(),
    "cli --als-venster": met_cli("--als-venster"),
    "mawk": naar(["mawk", "-v", "r=#error", AWK]),
    "gawk": naar(["gawk", "-v", "r=#error", AWK]),
    "perl": naar(["perl", "-ne", f"BEGIN{{$r=qq(#error\\n)}} {PERL}"]),
    "python3": los(PYTHON3, "-c", PYTHON),
}


def meet(kandidaten, voorbereiden=lambda: None):
    """De mediaan per kandidaat, om beurten gemeten zodat een drukke tel iedereen treft."""
    tijden = {naam: [] for naam in kandidaten}
    for ronde in range(RONDEN + 1):
        for naam, handeling in kandidaten.items():
            voorbereiden()
            begin = time.perf_counter()
            eigen = handeling()
            duur = time.perf_counter() - begin
            if ronde > 0:  # de eerste ronde warmt de schijf op
                tijden[naam].append(eigen if isinstance(eigen, float) else duur)
    return {naam: statistics.median(lijst) for naam, lijst in tijden.items()}


KOLOMMEN = ("engine", "window", "cli", "cli --als-venster", "sed", "cp", "mawk", "gawk", "perl", "python3", "unifdef")


def kop(*namen):
    print(f"| {' | '.join(namen)} |")
    print(f"|{'---|' * len(namen)}", flush=True)


def rij(werk, medianen, doel):
    """Een werk, met van elk programma de tijd als verhouding tot die van sed."""
    sed = medianen["sed"]
    cellen = [f"{medianen[naam] / sed:.2f}" if naam in medianen else "" for naam in KOLOMMEN]
    cellen[KOLOMMEN.index("sed")] = f"{sed * 1000:.0f} ms"
    anders = "; ".join(f"{naam} {tijd / sed:.2f}" for naam, tijd in medianen.items() if naam not in KOLOMMEN)
    print(f"| {werk} | {' | '.join(cellen)} | {anders} | {doel} |", flush=True)


def rij_tegen(werk, tijd, wat, basis, doel):
    """Een werk dat alleen met iets van het programma zelf of van de toolkit te vergelijken is."""
    print(f"| {werk} | {tijd * 1000:.1f} ms | {wat}: {basis * 1000:.1f} ms | **{tijd / basis:.2f}** | {doel} |",
          flush=True)


def maak_tekst(regels, blokken, regeleinde="\n", accenten=0.0, zaad=1):
    toeval = random.Random(zaad)
    om_de = regels // blokken
    uit = []
    for i in range(regels):
        plaats = i % om_de
        if plaats == 5:
            uit.append(f"    {BEGIN}")
        elif plaats == 9:
            uit.append(f"    {EIND}")
        else:
            staart = " // één, café, naïef" if toeval.random() < accenten else " // tel de waarde op"
            uit.append(f"    som_{toeval.randrange(1000)} += f(x[{i % 97}]);{staart}")
    return regeleinde.join(uit) + regeleinde


def meet_bestanden(werk):
    gevallen = [
        ("a C file of 11.5 MB, 230,000 lines, 10,000 blocks", "utf-8", "\n", 0.0, "engine 0.4, and 2.5 × cp"),
        ("the same with CR LF", "utf-8", "\r\n", 0.0, "engine 0.6"),
        ("the same in UTF-8 with 5 % other characters", "utf-8", "\n", 0.5, "engine 0.4"),
        ("the same in ISO 8859-1", "latin-1", "\n", 0.5, "engine 0.4"),
    ]
    for naam, codering, regeleinde, accenten, doel in gevallen:
        bron = werk / "bron.c"
        bron.write_bytes(maak_tekst(230_000, 10_000, regeleinde, accenten).encode(codering))
        # Elk maakt zijn eigen uitvoer opnieuw: wie die van zijn voorganger vervangt, wacht ook op wat die nog naar de
        # schijf aan het schrijven is.
        kandidaten = {k: (lambda f=f, k=k: f(str(bron), str(werk / f"{k}.uit.c"))) for k, f in PER_BESTAND.items()}
        if codering == "utf-8" and regeleinde == "\n" and not accenten:
            ifdef = werk / "ifdef.c"
            ifdef.write_text(bron.read_text().replace(f"    {BEGIN}", "#ifdef OPLOSSING")
                             .replace(f"    {EIND}", "#endif"))
            kandidaten["unifdef"] = lambda: subprocess.run(["unifdef", "-UOPLOSSING", "-o", str(werk / "unifdef.uit.c"),
                                                            str(ifdef)], check=False)
        rij(naam, meet(kandidaten), f"{doel}; cli 1.2 × engine")


def meet_lastige_markers(werk):
    bron, uit = werk / "bron.c", werk / "uit.c"
    bron.write_text(maak_tekst(230_000, 10_000))
    marker = "s*o*m*+*f*x*tel*waarde*Z"
    eigen = dict(OMGEVING, BEGIN=marker, EIND=marker)
    patroon = "/" + marker.replace("*", ".*").replace("+", "[+]") + "/"
    rij("wildcards that almost match on every line", meet({
        "engine": lambda: subprocess.run([KNIP, "bestand", bron, uit], env=eigen, check=True),
        "sed": lambda: naar(["sed", f"{patroon},{patroon}c\\\nx"])(str(bron), str(uit))}), "engine 2")
    bron.write_text("code en nog eens code // Student x" * 3_000_000)
    rij("one line of 100 MB", meet({
        "engine": lambda: los(KNIP, "bestand")(str(bron), str(uit)),
        "sed": lambda: naar(SED)(str(bron), str(uit))}), "engine 2")
    bron.unlink()


class VerseSchijf:
    """Een directory op een bestandssysteem dat voor elke meting nieuw is.

    Op een schijf waar net duizend bestanden vervangen zijn, loopt ext4 bij elk nieuw bestand alle pas vrijgekomen
    inodes langs; dan meet de ene meting vooral wat de vorige achterliet. Alleen root mag een bestandssysteem maken;
    een ander krijgt elke keer een lege directory.
    """

    def __init__(self, werk):
        self.plaats = werk / "schijf"
        self.beeld = werk / "schijf.beeld"
        self.plaats.mkdir()
        self.aangekoppeld = False

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.koppel_af()

    def koppel_af(self):
        if self.aangekoppeld:
            subprocess.run(["umount", self.plaats], check=True)
            self.aangekoppeld = False

    def vernieuw(self):
        self.koppel_af()
        shutil.rmtree(self.plaats)
        self.plaats.mkdir()
        if os.geteuid() == 0:
            self.beeld.unlink(missing_ok=True)
            with open(self.beeld, "wb") as beeld:
                beeld.truncate(2**30)
            subprocess.run(["/sbin/mkfs.ext4", "-q", "-F", self.beeld], check=True)
            subprocess.run(["mount", "-o", "loop", self.beeld, self.plaats], check=True)
            self.aangekoppeld = True


def meet_directories(werk):
    with VerseSchijf(werk) as schijf:
        meet_directories_op(schijf, werk)


def meet_directories_op(schijf, werk):
    bron, doel, boom, tijdelijk = (schijf.plaats / naam for naam in ("map", "doel", "boom", "tijdelijk"))
    teksten = {f"f{i:04}.c": maak_tekst(220, 10, zaad=i) for i in range(1000)}
    namen = [str(bron / naam) for naam in teksten]
    kopie = [str(doel / naam) for naam in teksten]
    omgeving = dict(OMGEVING, TMPDIR=str(tijdelijk))

    def voer_uit(*opdracht):
        subprocess.run(opdracht, check=True, env=omgeving)

    def vul(directory):
        directory.mkdir(parents=True)
        for naam, tekst in teksten.items():
            (directory / naam).write_text(tekst)

    def leeg_doel():
        schijf.vernieuw()
        vul(bron)
        doel.mkdir()
        tijdelijk.mkdir()
        os.sync()

    def verse_boom():
        schijf.vernieuw()
        vul(boom / "sub")
        tijdelijk.mkdir()
        os.sync()

    script = werk / "vlak.sed"
    script.write_text(f"/Student Begin/,/Student Eind/c\\\n{VERVANG}\n")
    sed_vlak = f'for f in {bron}/*.c; do sed -f {script} "$f" > {doel}/"${{f##*/}}"; done'

    def venster(*woorden):
        uitvoer = subprocess.run([VENSTER, *map(str, woorden)], capture_output=True, text=True, check=True,
                                 env=omgeving).stdout
        return int(uitvoer.split()[1]) / 1e6

    sed_i = ["sed", "-i", "-f", str(script)]

    def meet_sed_met_kopie():
        """Wat een docent typt: eerst kopiëren, dan sed op de kopie."""
        voer_uit("cp", *namen, str(doel))
        voer_uit(*sed_i, *kopie)

    def meet_sed():
        """Alleen sed, op een kopie die er al is: één proces dat dezelfde bestanden leest en schrijft."""
        voer_uit("cp", *namen, str(doel))
        begin = time.perf_counter()
        voer_uit(*sed_i, *kopie)
        return time.perf_counter() - begin

    def meet_sed_aaneen():
        """sed leest dezelfde bestanden en schrijft ze, wat geen opgaven zijn, achter elkaar in één bestand."""
        with open(doel / "alles", "wb") as uit:
            subprocess.run(["sed", "-s", "-f", str(script), *namen], stdout=uit, check=True, env=omgeving)

    rij("1,000 files of 11 KB to a directory", meet({
        "engine": lambda: voer_uit(KNIP, "directory", bron, doel),
        "sed": meet_sed,
        "cp": lambda: voer_uit("cp", *namen, str(doel)),
        "cp and then sed": meet_sed_met_kopie,
        "sed for each file": lambda: voer_uit("sh", "-c", sed_vlak),
        "sed, all into one file": meet_sed_aaneen,
        "window": lambda: venster("directory", bron, doel)}, leeg_doel), "engine 1.0; window 1.5")
    alle = ["find", str(boom), "-name", "*.c", "-exec"]
    rij("1,000 files of 11 KB in place", meet({
        "engine": lambda: voer_uit(KNIP, "boom", boom),
        "sed": lambda: voer_uit(*alle, *sed_i, "{}", "+"),
        "perl": lambda: voer_uit(*alle, "perl", "-i", "-ne", f"BEGIN{{$r=qq(#error\n)}} {PERL}", "{}", "+"),
        "cli": lambda: voer_uit(*CLI, "--stil", "--recursief", "--ter-plaatse", boom),
        "window": lambda: venster("boom", boom)}, verse_boom), "engine 0.95; window 1.2; cli 0.7")

    def verse_takken():
        schijf.vernieuw()
        for i, (naam, tekst) in enumerate(teksten.items()):
            tak = boom / f"tak{i % 20}"
            tak.mkdir(parents=True, exist_ok=True)
            (tak / naam).write_text(tekst)
        os.sync()

    # LD_PRELOAD is een lijst: een pad met een spatie erin zou als twee gelden.
    zonder_vast = werk / "zonder_vast.so"
    zonder_vast.symlink_to(ZONDER_VAST)
    ter_plaatse = [*CLI, "--stil", "--recursief", "--ter-plaatse", str(boom)]
    rij("the same in 20 directories", meet({
        "sed": lambda: voer_uit(*alle, *sed_i, "{}", "+"),
        "cli": lambda: voer_uit(*ter_plaatse),
        "floor: only open, read, make, write, set the mode, rename": lambda: voer_uit(VLOER, boom),
        "cli, one thread, not waiting for the disk": lambda: subprocess.run(
            [*ter_plaatse, "--taken", "1"], check=True, env=dict(omgeving, LD_PRELOAD=str(zonder_vast)))},
        verse_takken), "cli 0.6; its last column 1.25 × floor")


def meet_editor(werk):
    bron = werk / "bron.c"
    bron.write_text(maak_tekst(230_000, 10_000))

    def medianen(wat):
        """De mediaan van elke meting die het venster ermee deed."""
        uitvoer = subprocess.run([VENSTER, wat, bron], capture_output=True, text=True, check=True).stdout
        tijden = {}
        for regel in uitvoer.splitlines():
            naam, duur = regel.split()
            tijden.setdefault(naam, []).append(int(duur) / 1e6)
        return {naam: statistics.median(lijst) for naam, lijst in tijden.items()}

    editor = medianen("editor")
    rij_tegen("230,000 lines from editor to editor", editor["knip"], "setting the text at once", editor["zet"], "1.0")
    merken = medianen("merken")
    rij_tegen("230,000 lines marked", merken["merk"], "setting the text at once", merken["zet"], "0.1")


def meet_geheugen(werk):
    bron, uit = werk / "groot.c", werk / "groot_uit.c"
    deel = maak_tekst(230_000, 10_000).encode()
    with open(bron, "wb") as bestand:
        while bestand.tell() < 1_000_000_000:
            bestand.write(deel)

    def piek(*opdracht):
        eigen = dict(OMGEVING, GEHEUGEN="1")
        return int(subprocess.run(opdracht, env=eigen, capture_output=True, check=True).stdout) / 1024

    extra = piek(KNIP, "bestand", str(bron), str(uit)) - piek(KNIP, "niets")
    print(f"| memory for a file of 1 GB | **{extra:.1f} MB** more | the engine at rest | | 32 MB |", flush=True)
    bron.unlink()
    uit.unlink()


def meet_start(werk):
    nummer = werk / "nummer"
    with open(nummer, "wb") as uit:
        # Zonder -noreset begint de server opnieuw zodra de enige klant weg is, en weigert hij dan even de volgende.
        xvfb = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
                                 "-noreset"], stdout=uit, stderr=subprocess.DEVNULL)
    while not nummer.read_bytes().endswith(b"\n"):
        time.sleep(0.05)
    omgeving = dict(os.environ, DISPLAY=":" + nummer.read_text().strip(), HOME=str(werk), GDK_BACKEND="x11",
                    NO_AT_BRIDGE="1", GSETTINGS_BACKEND="memory", LANG="nl_NL.UTF-8")

    def start(programma, titel):
        def handeling():
            begin = time.perf_counter()
            kind = subprocess.Popen([programma], env=omgeving, stderr=subprocess.DEVNULL)
            while subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{titel}$"], env=omgeving,
                                 capture_output=True, check=False).returncode != 0:
                if kind.poll() is not None:
                    raise RuntimeError(f"{programma} stopte met {kind.returncode} voor zijn venster er was")
            duur = time.perf_counter() - begin
            kind.kill()
            kind.wait()
            return duur
        return handeling

    medianen = meet({"venster": start(str(BOUW / "Knipselaar/knipselaar"), "Knipselaar"),
                     "kaal": start(str(BOUW / "tests/bench/startmeter"), "Kaal")})
    rij_tegen("from start to a visible window", medianen["venster"], "a bare window", medianen["kaal"], "1.2")
    xvfb.terminate()
    xvfb.wait()


def meet_start_cli(_werk):
    medianen = meet({"cli": lambda: subprocess.run([*CLI, "--versie"], stdout=subprocess.DEVNULL, check=True),
                     "kern": lambda: subprocess.run([KNIP, "niets"], check=True)})
    rij_tegen("start and stop of the console program", medianen["cli"], "the engine", medianen["kern"], "1.2")


def main():
    with tempfile.TemporaryDirectory() as map_naam:
        werk = pathlib.Path(map_naam)
        kop("work", *KOLOMMEN, "others", "goal")
        for meting in (meet_bestanden, meet_lastige_markers, meet_directories):
            meting(werk)
        print()
        kop("work", "Knipselaar", "against", "ratio", "goal")
        for meting in (meet_editor, meet_geheugen, meet_start_cli, meet_start):
            meting(werk)


if __name__ == "__main__":
    main()
