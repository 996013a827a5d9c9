#!/usr/bin/env bash
# Bouwt de toolkit voor Windows uit het bronpakket van Debian, eenmaal: wat er al ligt, blijft. Schrijft alleen waar
# hij staat: daar liggen include, lib en nl/wxstd.mo, zijn Nederlandse teksten. Dat is onder
# ~/.cache/knipselaar (of XDG_CACHE_HOME), in een directory per uitgave en per keuze: een andere keuze is een andere bouw.
# Draait als gewone gebruiker; de pakketten die het nodig heeft, staan er dan al (zie windows.sh).
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
voorraad="${XDG_CACHE_HOME:-$HOME/.cache}/knipselaar"

# Wat Knipselaar niet gebruikt: beeldformaten, opmaaktalen, netwerk, en bediening die zijn venster niet heeft.
uit=(LIBPNG LIBJPEG LIBTIFF EXPAT ZLIB LIBLZMA NANOSVG SVG XML XRC HTML WXHTML_HELP HELP MS_HTML_HELP AUI RIBBON
    PROPGRID RICHTEXT MEDIACTRL WEBVIEW WEBREQUEST OPENGL GLCANVAS SOCKETS PROTOCOL PROTOCOL_HTTP PROTOCOL_FTP
    PROTOCOL_FILE URL FS_INET IPC ARTPROVIDER_TANGO GRAPHICS_DIRECT2D)
opties=(-D CMAKE_BUILD_TYPE=Release -D wxBUILD_SHARED=OFF)
for deel in "${uit[@]}"; do
    opties+=(-D "wxUSE_$deel=OFF")
done
# Wat het programma niet aanroept kan de linker dan weglaten.
vlaggen='-ffunction-sections -fdata-sections'

# De uitgave die apt nu zou geven; een herbouw (+b1) heeft dezelfde bron.
uitgave=$(apt-cache show --no-all-versions libwxgtk3.2-dev | sed -n 's/^Version: //p' | sed 's/+b[0-9]*$//')
[ -n "$uitgave" ] || stop "apt kent libwxgtk3.2-dev niet; voer eerst apt-get update uit"
keuze=$({
    printf '%s\n' "${opties[@]}" "$vlaggen"
    x86_64-w64-mingw32-g++-posix --version
    cat "$hoofdmap/cmake/mingw.cmake"
} | sha256sum | cut -c 1-12)
doel="$voorraad/toolkit-windows-$uitgave-$keuze"

# De bronpakketten van de plaatsen waar apt op deze machine zijn pakketten van Debian vandaan haalt.
bronregels() {
    apt-get indextargets --format '$(LABEL) $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' | awk \
        -v sleutel=/usr/share/keyrings/debian-archive-keyring.gpg \
        '$1 ~ /^Debian/ { print "deb-src [signed-by=" sleutel "]", $2, $3, $4 }' | sort -u
}

# Een apt met eigen bronnen en eigen lijsten: aan die van de machine verandert niets, en root is er niet voor nodig.
apt_bron() {
    apt-get -o Dir::Etc::SourceList="$werk/bronnen.list" -o Dir::Etc::SourceParts=- -o Dir::State="$werk/apt" \
        -o Dir::Cache="$werk/apt" -o APT::Sandbox::User= "$@"
}

haal_bron() {
    mkdir -p "$werk/apt/lists/partial" "$werk/apt/archives/partial"
    bronregels >"$werk/bronnen.list"
    [ -s "$werk/bronnen.list" ] || stop "apt haalt hier geen pakketten van Debian"
    stil "de lijst van bronpakketten is niet op te halen" apt_bron update
    cd "$werk"
    stil "het bronpakket van de toolkit is niet op te halen" apt_bron source "wxwidgets3.2=$uitgave"
    mv "$werk"/wxwidgets3.2-*/ "$werk/bron"
}

# Waar de bron stond en hoe laat het was, komt niet in de bibliotheken.
bouw_toolkit() {
    stil "de toolkit is niet te configureren" cmake -S "$werk/bron" -B "$werk/bouw" -G Ninja "${opties[@]}" \
        -D CMAKE_TOOLCHAIN_FILE="$hoofdmap/cmake/mingw.cmake" -D CMAKE_INSTALL_PREFIX="$werk/klaar" \
        -D CMAKE_C_FLAGS="$vlaggen -ffile-prefix-map=$werk/bron=toolkit" \
        -D CMAKE_CXX_FLAGS="$vlaggen -ffile-prefix-map=$werk/bron=toolkit"
    stil "de toolkit is niet te bouwen" cmake --build "$werk/bouw" --target wxbase wxcore wxstc
}

leg_klaar() {
    mkdir -p "$werk/klaar/nl"
    cp -R "$werk/bron/include" "$werk/klaar"
    cp -R "$werk/bouw/lib" "$werk/klaar"
    msgfmt --output-file="$werk/klaar/nl/wxstd.mo" "$werk/bron/locale/nl.po"
    mkdir -p "$voorraad"
    # In één stap: wie dit afbreekt, vindt de volgende keer geen halve toolkit.
    mv --no-target-directory "$werk/klaar" "$doel"
}

if [ ! -d "$doel" ]; then
    echo "Toolkit voor Windows bouwen, dat duurt een kwartier en hoeft maar één keer" >&2
    mkdir -p "$voorraad"
    werk=$(mktemp -d -p "$voorraad")
    trap 'rm -rf "$werk"' EXIT
    haal_bron
    bouw_toolkit
    leg_klaar
fi
echo "$doel"
