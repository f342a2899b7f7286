#!/bin/sh
# What is no whole backup is refused with a word why, and nothing changes; an interrupted restore is finished.
. "$(dirname "$0")/attrezzi"
corri 0 backup --drive disco 1 sana.tar.gz
prima=$(foto disco)

# rifiutato FILE TEXT: the refusal begins with this reason and nothing changed.
rifiutato() {
    corri 2 restore --drive disco "$1"
    tace out
    grep -q "^ambra: $1 rifiutato: $2.*\. Nulla è cambiato\.$" err || male "$comando: not refused so: $2"
    [ "$(foto disco)" = "$prima" ] || male "$comando: something has changed"
    [ -z "$(find $archivio -name 'sostituiti*')" ] || male "$comando: a folder was made"
}

lungo=$(wc -c < sana.tar.gz)
for quanti in 1 500 $((lungo / 2)) $((lungo - 9)); do
    head -c "$quanti" sana.tar.gz > tronca.tar.gz
    rifiutato tronca.tar.gz "archivio tronco o danneggiato"
done
: > vuota.tar.gz
rifiutato vuota.tar.gz "archivio tronco o danneggiato"
echo "non sono un archivio" > testo.tar.gz
rifiutato testo.tar.gz "archivio tronco o danneggiato"
rifiutato nulla.tar.gz "manca o non si legge"
rifiutato disco "manca o non si legge"

mkdir dentro
tar xzf sana.tar.gz -C dentro
(cd dentro && tar czf ../senza.tar.gz lum001.*)
rifiutato senza.tar.gz "manca il manifesto"
printf x >> dentro/lum001.ftr
(cd dentro && tar czf ../alterata.tar.gz MANIFEST.TXT $(tar tzf ../sana.tar.gz | grep -v MANIFEST))
rifiutato alterata.tar.gz "un file alterato: lum001.ftr"

# the restore of another building died in the middle: the journal is there, a file is not yet in place
mkdir $archivio/sostituiti-prima
mv $archivio/lum002.ftr $archivio/lum002.ftr.~~~
printf 'sostituiti-prima\r\n+lum002.ftr\r\npronto\r\n' > "$archivio/ripristino.~~~"
rifiuta "un ripristino dell'archivio è in corso o è stato interrotto: ambra restore lo finisce" batch --drive disco 2
[ ! -e $archivio/lum002.ftr ] || male "who opens the building makes files"
rifiuta "stabile 001 non salvato: un ripristino dell'archivio è in corso o è stato interrotto: ambra restore lo finisce" \
    backup --drive disco 1 mista.tar.gz
corri 1 check --drive disco 1
grep -q "un ripristino interrotto" out || male "the check says nothing"
corri 0 restore --drive disco sana.tar.gz
rm -r $archivio/sostituiti-*
[ "$(foto disco)" = "$prima" ] || male "not as saved"
