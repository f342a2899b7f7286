#!/bin/sh
# A list goes into a file of text: whole or not at all, over what stood there, and no folder is left dirty.
. "$(dirname "$0")/attrezzi"

mkdir fuori
printf 'csv vexoraf.elenco fuori/lista di città.csv\nnote fatto\n' > script
corri 0 batch --drive disco 1 script
tace err
dice out '{"event":"note","text":"fatto"}'
lista="fuori/lista di città.csv"
[ "$(head -c 3 "$lista" | od -An -tx1 | tr -d ' \n')" = efbbbf ] || male "no byte-order mark"
head -1 "$lista" | grep -q 'Registr.;Data;Fattura;Data;Fornitore;Importo;Scoperto' || male "headings"
[ "$(tr -cd '\r' < "$lista" | wc -c)" -eq "$(wc -l < "$lista")" ] || male "not every line ends in CR LF"
grep -q ';clic qui;clic qui;' "$lista" || male "no rows"
grep -q '^;*.$' "$lista" && male "a filler row"

# a second time over the first
printf vecchio > "$lista"
corri 0 batch --drive disco 1 script
grep -q vecchio "$lista" && male "the old file stands"

# where it cannot be written it is told, nothing is left, and the script goes no further
mkdir fuori/cartella
for dove in fuori/cartella manca/lista.csv; do
    printf 'csv vexoraf.elenco %s\nnote mai\n' "$dove" > script
    corri 2 batch --drive disco 1 script
    grep -qF "\"line\":1,\"text\":\"cannot be written: $dove: " out || male "the failure is not told"
    grep -q '"text":"mai"' out && male "the script went on after an error"
done
[ "$(ls -A fuori | wc -l)" -eq 2 ] || male "something was left behind: $(ls -A fuori)"
[ -z "$(ls -A fuori/cartella)" ] || male "something was left in the folder"
