#!/bin/sh
# A list that cannot be written leaves what stood there as it was and nothing beside it: a folder where the user
# may not write, a disk that fills up in the middle.
. "$(dirname "$0")/attrezzi"
come_nessuno

mkdir chiusa fuori
printf vecchio > chiusa/lista.csv
printf vecchio > fuori/lista.csv
chmod 777 fuori chiusa/lista.csv
chmod 555 chiusa

# prova_csv PATH: the script ends at this line, and says why.
prova_csv() {
    printf 'csv vexoraf.elenco %s\nnote mai\n' "$1" > script
    corri 2 batch --drive disco 1 script
    grep -qF "\"line\":1,\"text\":\"cannot be written: $1: " out || male "the failure is not told"
    grep -q '"text":"mai"' out && male "the script went on after an error"
    return 0
}

prova_csv chiusa/lista.csv
prova_csv chiusa/nuova.csv
(ulimit -f 8 && prova_csv fuori/lista.csv) || exit 1
for dove in chiusa fuori; do
    [ "$(ls -A $dove)" = lista.csv ] || male "something was left behind: $(ls -A $dove)"
    [ "$(cat $dove/lista.csv)" = vecchio ] || male "the old file is gone"
done

# a file that only its own mark protects is replaced, as every program that writes beside and renames does
chmod 444 fuori/lista.csv
printf 'csv vexoraf.elenco %s/fuori/lista.csv\n' "$casa" > script
corri 0 batch --drive disco 1 script
grep -q ';clic qui;' fuori/lista.csv || male "not written"

# a pipe is nobody's list: refused, and still there
mkfifo fuori/tubo
prova_csv "$casa/fuori/tubo"
[ -p fuori/tubo ] || male "the pipe is gone"
