# Wat zsh aanvult: van elke regel op de standaardinvoer de mogelijkheden, met een lege regel erachter.
# Gebruik: zsh -f aanvulling.zsh DIRECTORY < REGELS, met de directory van _knipselaar-cli.

# De aanvulling werkt alleen in de editor van een shell op een terminal; die leest dit bestand dan nog eens.
if [[ -z $AANVULLING ]]; then
    zmodload zsh/zpty
    export AANVULLING=$1 REGELS=$(mktemp) UITKOMST=$(mktemp)
    cat >$REGELS
    zpty shell zsh -f -i
    zpty -w shell "source ${(q)0:A}"
    while zpty -r shell uitvoer; do :; done
    cat $UITKOMST
    rm $REGELS $UITKOMST
    exit
fi

fpath=($AANVULLING $fpath)
autoload -Uz compinit
compinit -D -u

# Neemt op wat er aan te vullen is, voordat het op de regel komt.
compadd() {
    local -a gevonden
    # Met een van deze opties vraagt de aanvulling zelf alleen wat er past.
    if [[ " ${@[1,(i)(-|--)]} " != *' '-[OAD]' '* ]]; then
        builtin compadd -A gevonden "$@"
        (( $#gevonden )) && print -rl -- $gevonden >>$UITKOMST
    fi
    builtin compadd "$@"
}

neem_op() {
    _main_complete
    compstate[insert]=
    compstate[list]=
}
zle -C neem-op complete-word neem_op

zle-line-init() {
    local regel
    while IFS= read -r regel; do
        BUFFER=$regel
        CURSOR=$#regel
        zle neem-op
        print >>$UITKOMST
    done <$REGELS
    BUFFER=exit
    zle accept-line
}
zle -N zle-line-init
