#!/bin/sh
# Help and words that make no sense: help is no failure and Italian; every refusal is one line and status 2.
. "$(dirname "$0")/attrezzi"

corri 0 --help
tace err
dice out "Kit Ambra e acquisti per condominio"
dice out "Uso: ambra [OPZIONI] COMANDO"
mv out tutti
for voce in batch demo check backup restore fatture; do
    grep -q "^  $voce  *[A-Z]" tutti || male "$voce is not in the help"
    corri 0 "$voce" --help
    tace err
    grep -q "^Uso: ambra $voce" out || male "no usage of $voce"
    grep -qi "usage\|required\|print this\|options:" out && male "English in the help of $voce"
done

rifiuta "manca il comando; si veda ambra --help"
rifiuta "non conosco il comando controlla; si veda ambra --help" controlla 7
rifiuta "non capisco --tutto; si veda ambra --help" check --tutto
rifiuta "manca il valore di --drive; si veda ambra --help" check --drive
rifiuta "manca DIR; si veda ambra --help" demo
rifiuta "manca PERCORSO; si veda ambra --help" fatture
rifiuta "manca NNN; si veda ambra --help" backup
rifiuta "manca FILE; si veda ambra --help" backup 1
rifiuta "manca FILE; si veda ambra --help" restore
rifiuta "non capisco di troppo; si veda ambra --help" restore a di troppo
rifiuta "non è una data: 31/02/2024" batch --today 31/02/2024 1
rifiuta "nulla.txt: il file manca o non si legge" batch --drive disco 1 nulla.txt
