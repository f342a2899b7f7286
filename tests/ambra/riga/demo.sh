#!/bin/sh
# The demo makes a whole archive, makes its own anew, and never writes over another's.
. "$(dirname "$0")/attrezzi"

corri 0 demo --today 15/03/2024 "prova d'archivio è/sotto"
tace err
dice out "Archivio di prova in prova d'archivio è/sotto, stabili da 1 a 3"
[ "$(foto disco)" = "$(foto "prova d'archivio è/sotto")" ] || male "the same date gives other bytes"

printf rovinato > $archivio/lum001.for
corri 0 demo --today 15/03/2024 disco
[ "$(foto disco)" = "$(foto "prova d'archivio è/sotto")" ] || male "not made anew"

rifiuta "non è una data: 2024-03-15" demo --today 2024-03-15 altro
[ ! -e altro ] || male "a refused demo leaves a folder"
printf x > file
rifiuta "file: l'archivio di prova non si può scrivere" demo file
[ "$(cat file)" = x ] || male "the file has changed"

printf 'CONDOMINIO DI QUALCUNO' | dd of=$archivio/lumora.tot conv=notrunc 2> err
prima=$(foto disco)
rifiuta "disco contiene già un archivio, che resta com'è: indicate un'altra cartella" demo disco
[ "$(foto disco)" = "$prima" ] || male "the archive has changed"
