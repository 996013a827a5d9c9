# Aanvulling van knipselaar-cli in bash.

_knipselaar_cli() {
    local huidig=${COMP_WORDS[COMP_CWORD]} vorige=${COMP_WORDS[COMP_CWORD - 1]} vooraan=
    # Bash maakt van "--keuze=v" drie woorden.
    [ "$huidig" = = ] && huidig=
    [ "$vorige" = = ] && vorige=${COMP_WORDS[COMP_CWORD - 2]}

    # Na "--" komen alleen nog bestanden.
    local woord
    for woord in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [ "$woord" = -- ]; then
            mapfile -t COMPREPLY < <(compgen -f -- "$huidig")
            compopt -o filenames 2>/dev/null
            return
        fi
    done
    # Staat "=" niet bij wat woorden scheidt, dan zit de waarde aan de optie vast.
    if [[ $huidig == --*=* ]]; then
        vorige=${huidig%%=*}
        huidig=${huidig#*=}
        vooraan="$vorige="
    fi

    compopt -o filenames 2>/dev/null
    case $vorige in
    -k | --keuze)
        mapfile -t COMPREPLY < <(compgen -P "$vooraan" -W 'talen vhdl alles' -- "$huidig")
        return
        ;;
    -T | --taal)
        mapfile -t COMPREPLY < <(compgen -P "$vooraan" -W 'c vhdl overig' -- "$huidig")
        return
        ;;
    -M | --maak)
        mapfile -t COMPREPLY < <(compgen -P "$vooraan" -W 'student oplossing' -- "$huidig")
        return
        ;;
    -n | --naar)
        mapfile -t COMPREPLY < <(compgen -P "$vooraan" -d -- "$huidig")
        return
        ;;
    -u | --uit | --markers-uit | --vervang-uit | --vervang-c-uit | --vervang-vhdl-uit | --vervang-overig-uit | \
        --weglaten-uit | --bewijs-toegestaan | --afhankelijk | -o | --opties)
        mapfile -t COMPREPLY < <(compgen -P "$vooraan" -f -- "$huidig")
        return
        ;;
    -b | --begin | -e | --eind | -v | --vervang | --vervang-c | --vervang-vhdl | --vervang-overig | -m | --masker | \
        -w | --weglaten | -G | --geef | --houd | --minstens | -P | --probeer | -L | --bewijs-lengte | -J | --taken)
        COMPREPLY=()
        return
        ;;
    esac
    if [[ $huidig == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '-u --uit -n --naar -t --ter-plaatse -r --recursief -f --overschrijf
            --spiegel --alles-of-niets -k --keuze -m --masker -w --weglaten --weglaten-uit -x --verborgen
            --versiebeheer -b --begin -e --eind --markers-uit -l --letterlijk -z --zonder-instellingen -v --vervang
            --vervang-uit --vervang-c --vervang-c-uit --vervang-vhdl --vervang-vhdl-uit --vervang-overig
            --vervang-overig-uit -T --taal -G --geef -M --maak --houd -g --getrouw -a --als-venster -i --inspringen
            --regels-gelijk -c --controle -s --streng --minstens -d --droog -D --verschil -p --bewijs -L
            --bewijs-lengte --bewijs-toegestaan -P --probeer -q --stil -j --json --afhankelijk -o --opties -J --taken
            -h --help -V --versie' -- "$huidig")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$huidig")
    fi
}

complete -F _knipselaar_cli knipselaar-cli
