# Wat fish aanvult: van elke regel op de standaardinvoer de mogelijkheden, met een lege regel erachter.
# Gebruik: fish aanvulling.fish DIRECTORY < REGELS, met de directory van knipselaar-cli.fish.

source $argv[1]/knipselaar-cli.fish
while IFS= read regel
    # Achter een tab staat de uitleg.
    complete -C $regel | string replace -r '\t.*' ''
    echo
end
