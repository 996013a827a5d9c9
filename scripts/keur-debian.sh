#!/usr/bin/env bash
# Voert de twee opdrachten uit README.md uit op een kale Debian: blijkt daar dat er iets niet geïnstalleerd wordt, of
# dat een andere uitgave van de toolkit iets anders doet? De boom komt er te staan zoals git hem nu kent, in een pad
# met een spatie. Meldt van beide opdrachten de afloopstatus en de tijd, en wat CTest telde.
# Gebruik: keur-debian.sh SUITE [ALS [OPDRACHT]...]
#   SUITE     zoals bookworm of trixie
#   ALS       root (standaard), of de naam van een gewone gebruiker, die daar sudo zonder wachtwoord heeft
#   OPDRACHT  start of test; standaard allebei, na elkaar. Met alleen test moet die ook alle pakketten nog ophalen
# Het kale systeem, de opgehaalde pakketten en de verslagen blijven in ~/.cache/knipselaar-debian, of waar
# KNIPSELAAR_DEBIAN naar wijst. Een vers systeem: haal SUITE.tar daar weg.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
suite=${1:?}
als=${2:-root}
opdrachten=("${@:3}")
[ ${#opdrachten[@]} -gt 0 ] || opdrachten=(start test)
voorraad=${KNIPSELAAR_DEBIAN:-$HOME/.cache/knipselaar-debian}
pakketten="$voorraad/pakketten-$suite"

# Waar apt op deze machine Debian vandaan haalt. $1 is wat er op het label volgt: niets, of -Security.
spiegel() {
    apt-get indextargets --format '$(LABEL) $(REPO_URI)' 'Created-By: Packages' | awk -v label="Debian$1" \
        '$1 == label { print $2; exit }'
}

# Wat de pakketten van deze suite verbetert, komt van dezelfde plaats als hier.
schrijf_bronnen() {
    local veilig
    veilig=$(spiegel -Security)
    echo "deb $(spiegel '') $suite main"
    [ -z "$veilig" ] || echo "deb $veilig $suite-security main"
}

haal_kaal_systeem() {
    echo "Kaal systeem ophalen, dat duurt een minuut"
    installeer debootstrap debian-archive-keyring
    stil "debootstrap lukt niet" als_root debootstrap --variant=minbase --include=ca-certificates,git,sudo \
        "$suite" "$root" "$(spiegel '')"
    schrijf_bronnen | als_root tee "$root/etc/apt/sources.list" >/dev/null
    als_root tar --create --one-file-system --directory "$root" --file "$werk/kaal.tar" .
    als_root mv "$werk/kaal.tar" "$voorraad/$suite.tar"
}

# Voert een opdracht uit in de root. In eigen naamruimtes: wat daar aangekoppeld of gestart is, verdwijnt met de
# opdracht, hoe die ook ophoudt. Daarna is er in de root niets meer van deze machine te wissen.
in_root() {
    als_root unshare --mount --pid --fork --kill-child bash -c '
        set -e
        root=$1 pakketten=$2
        shift 2
        mount --rbind /dev "$root/dev"
        mount --rbind /sys "$root/sys"
        mount -t proc proc "$root/proc"
        mount --bind "$pakketten" "$root/var/cache/apt/archives"
        chroot "$root" "$@"' - "$root" "$pakketten" "$@"
}

# Voert een opdracht uit als de gebruiker, met alleen wat bij inloggen in de omgeving komt.
als_ander() {
    in_root setpriv --reuid "$als" --regid "$als" --init-groups env -i HOME="$thuis" USER="$als" LOGNAME="$als" \
        PATH="$zoekpad" SHELL=/bin/bash TERM=dumb "$@"
}

maak_gebruiker() {
    in_root useradd --create-home --shell /bin/bash "$als"
    echo "$als ALL=(ALL) NOPASSWD: ALL" | als_root tee "$root/etc/sudoers.d/$als" >/dev/null
}

# Voert een opdracht van de README uit en zegt hoe dat ging. De uitvoer komt in het verslag $verslag.
keur() {
    local status=0 begin=$SECONDS
    als_ander bash -c 'cd "$1" && shift && exec "$@"' - "$boom" "$@" >"$verslag" 2>&1 </dev/null || status=$?
    echo "$*: status $status, $((SECONDS - begin)) s, verslag in $verslag"
    sed -n '/% tests passed/,$p' "$verslag"
    if [ $status -ne 0 ]; then
        tail -n 40 "$verslag"
        afloop=1
    fi
}

mkdir -p "$voorraad"
als_root mkdir -p "$pakketten/partial"
werk=$(mktemp -d -p "${TMPDIR:-/var/tmp}")
trap 'als_root rm -rf --one-file-system "$werk"' EXIT
root="$werk/root"
als_root mkdir "$root"
if [ -e "$voorraad/$suite.tar" ]; then
    als_root tar --extract --directory "$root" --file "$voorraad/$suite.tar"
else
    haal_kaal_systeem
fi
# De naamserver kan sinds de vorige keer een andere zijn.
als_root cp --dereference /etc/resolv.conf "$root/etc/resolv.conf"

thuis=/root
zoekpad=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
if [ "$als" != root ]; then
    maak_gebruiker
    thuis="/home/$als"
    zoekpad=/usr/local/bin:/usr/bin:/bin
fi
boom="$thuis/mijn map/knipselaar"
als_gebruiker git -C "$hoofdmap" -c safe.directory="$hoofdmap" bundle create --quiet - HEAD --branches |
    als_root tee "$root/boom.bundle" >/dev/null
als_ander git -c init.defaultBranch=main clone --quiet /boom.bundle "$boom"
als_root rm "$root/boom.bundle"

echo "$suite als $als, $(als_ander git -C "$boom" log -1 --format='%h %s')"
afloop=0
for opdracht in "${opdrachten[@]}"; do
    verslag="$voorraad/$suite-$als-$opdracht.txt"
    keur "./$opdracht.sh"
done
# De uitgaven waarmee dit zo ging.
in_root dpkg-query -W -f '${Package} ${Version}\n' 'libwxgtk3.2-dev' 'libgtk-3-dev' 'g++' cmake at-spi2-core || true
exit $afloop
