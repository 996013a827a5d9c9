# Wat de scripts die bouwen delen. Wordt ingelezen, niet uitgevoerd; de aanroeper zet eerst "hoofdmap".

# Stopt met één duidelijke regel.
stop() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# Voert een opdracht als root uit, zo nodig met sudo.
als_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        stop "hiervoor is root of sudo nodig: $*"
    fi
}

# Voert een opdracht uit als de gebruiker die het script met sudo aanriep, zodat wat gebouwd wordt van hem is.
als_gebruiker() {
    if [ "$(id -u)" -eq 0 ] && [ -n "${SUDO_USER:-}" ] && [ "$SUDO_USER" != root ]; then
        sudo -H -u "$SUDO_USER" --preserve-env=DISPLAY,WAYLAND_DISPLAY,XAUTHORITY,XDG_RUNTIME_DIR "$@"
    else
        "$@"
    fi
}

# Voert een stap uit; alleen als hij mislukt is te zien wat hij te zeggen had, zonder de tests die slaagden.
# $1 is wat er bij een mislukking gemeld wordt, de rest is de opdracht.
stil() {
    local melding=$1 uitvoer
    shift
    if ! uitvoer=$("$@" 2>&1); then
        grep -vE '^ *Start +[0-9]+: |^ *[0-9]+/[0-9]+ Test .* Passed ' <<<"$uitvoer" | tail -n 80 >&2
        stop "$melding"
    fi
}

# Installeert welke van deze pakketten ontbreken.
installeer() {
    local pakket ontbrekend=()
    for pakket in "$@"; do
        if ! dpkg-query -W -f '${Status}' "$pakket" 2>/dev/null | grep -q 'ok installed$'; then
            ontbrekend+=("$pakket")
        fi
    done
    [ ${#ontbrekend[@]} -eq 0 ] && return
    echo "Pakketten installeren: ${ontbrekend[*]}"
    stil "apt-get update lukt niet" als_root apt-get update
    stil "apt-get install lukt niet" als_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${ontbrekend[@]}"
}

# Maakt de Nederlandse locale, waarmee de toolkit haar knoppen en menu's vertaalt.
zorg_voor_locale() {
    # Zonder -q: grep zou locale anders midden in zijn uitvoer afbreken.
    if locale -a | grep -ix 'nl_NL\.utf-\?8' >/dev/null; then
        return
    fi
    echo "Nederlandse locale maken"
    als_root sed -i 's/^# *nl_NL\.UTF-8 UTF-8/nl_NL.UTF-8 UTF-8/' /etc/locale.gen
    stil "locale-gen lukt niet" als_root locale-gen
}

# Configureert en bouwt een preset. $1 is de preset, de rest gaat naar het configureren.
bouw() {
    local preset=$1 map="$hoofdmap/bouw/$1"
    shift
    if [ -e "$map" ] && ! als_gebruiker test -w "$map"; then
        stop "$map is van een andere gebruiker; verwijder die map of voer dit uit als die gebruiker"
    fi
    [ -e "$map/build.ninja" ] || echo "Bouwen ($preset), dat duurt een paar minuten"
    cd "$hoofdmap" || stop "kan niet naar $hoofdmap"
    stil "configureren lukt niet" als_gebruiker cmake --preset "$preset" "$@"
    stil "bouwen lukt niet" als_gebruiker cmake --build --preset "$preset"
}

# librsvg2-common: zonder kan GTK zijn eigen pictogrammen niet tekenen.
pakketten_bouw=(g++ cmake ninja-build libgtk-3-dev libwxgtk3.2-dev pkg-config wx3.2-i18n locales fonts-dejavu-core
    librsvg2-common)
pakketten_bediening=(xvfb xdotool openbox imagemagick)
pakketten_schermlezer=(libatspi2.0-dev at-spi2-core dbus-daemon)
pakketten_pakket=(build-essential debhelper git librsvg2-bin pandoc)
pakketten_keur_pakket=(lintian desktop-file-utils appstream man-db)
pakketten_test=("${pakketten_bediening[@]}" "${pakketten_schermlezer[@]}" libgtest-dev libwayland-dev libxkbcommon-dev
    librsvg2-bin python3 gcc ghdl x11-utils git patch make man-db sway grim pre-commit zsh fish)
pakketten_windows=(g++-mingw-w64-x86-64-posix cmake ninja-build git dpkg-dev gettext googletest librsvg2-bin imagemagick
    pandoc zip nsis wine wine64)
pakketten_keur=(git clang clang-format clang-tidy cppcheck libbenchmark-dev libclang-rt-14-dev llvm-14)
