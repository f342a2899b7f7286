#!/bin/sh
# A restore waits for nobody: while another program has the archive open it is refused, afterwards it goes through.
. "$(dirname "$0")/attrezzi"
corri 0 backup --drive disco 1 sana.tar.gz
prima=$(foto disco)

mkfifo azioni
"$ambra" batch --drive disco 2 < azioni > eventi &
altro=$!
exec 3> azioni
for giro in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20; do
    grep -q '"start"' eventi && break
    sleep 0.2
done

# Building 2 is open: what all buildings share is in use, though no file of building 1 is.
rifiuta "un altro programma tiene aperto lumora.tot: chiudete tutti i programmi che usano l'archivio. Nulla è cambiato." \
    restore --drive disco sana.tar.gz
[ "$(foto disco)" = "$prima" ] || male "something has changed"
exec 3>&-
wait $altro || male "the other program was disturbed"
corri 0 restore --drive disco sana.tar.gz
