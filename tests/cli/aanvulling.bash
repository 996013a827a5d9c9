# Wat bash aanvult: van elke regel op de standaardinvoer de mogelijkheden, met een lege regel erachter.
# Gebruik: bash aanvulling.bash DIRECTORY < REGELS, met de directory van knipselaar-cli.bash.

source "$1/knipselaar-cli.bash"
while IFS= read -r regel; do
    eval "COMP_WORDS=($regel)"
    [[ $regel == *' ' ]] && COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _knipselaar_cli
    ((${#COMPREPLY[@]})) && printf '%s\n' "${COMPREPLY[@]}"
    echo
done
