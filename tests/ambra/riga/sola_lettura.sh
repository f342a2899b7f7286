#!/bin/sh
# Folders that may not be written: the check does not mind, the others say so and leave nothing behind.
. "$(dirname "$0")/attrezzi"
mkdir chiusa
corri 0 backup --drive disco 1 sana.tar.gz
printf altro >> $archivio/lum001.tab
come_nessuno
prima=$(foto disco)
chmod 555 chiusa $archivio

corri 0 check --drive disco 2
corri 0 backup --drive disco 2 due.tar.gz
corri 2 backup --drive disco 1 chiusa/copia.tar.gz
grep -q "^ambra: chiusa/copia.tar.gz: non si può scrivere" err || male "no word why"
rifiuta "chiusa: l'archivio di prova non si può scrivere" demo chiusa
rifiuta "chiusa/sotto: l'archivio di prova non si può scrivere" demo chiusa/sotto
rifiuta "ripristino non riuscito: permesso negato (errore 70). Nulla è cambiato." restore --drive disco sana.tar.gz
rifiuta "ripristino non riuscito: la cartella manca (errore 76). Nulla è cambiato." restore --drive chiusa sana.tar.gz

chmod 755 $archivio
chmod 000 $archivio/lum001.for
corri 2 check --drive disco 1
grep -q '^lum001.for: errore, trovato "permesso negato (errore 70)"' out || male "the unreadable file is not told"
rifiuta "stabile 001 non salvato: lum001.for: permesso negato (errore 70)" backup --drive disco 1 copia.tar.gz
chmod 644 $archivio/lum001.for
[ "$(foto disco)" = "$prima" ] || male "something has changed"
chmod 755 chiusa
