#!/bin/sh
# Four programs insert a hundred suppliers each into one building at once: nobody is lost, the archive is sound.
. "$(dirname "$0")/attrezzi"
corri 0 check --drive disco 1
for p in 1 2 3 4; do
    {
        echo "click vexoraf.command3d2(3)"
        for n in $(seq 101 200); do
            printf 'click lumfor.b_ins\ntype lumfor.Text2(0) ditta %s-%s\n' "$p" "$n"
            printf 'type lumfor.Text2(6) CODICE%s%s\nclick lumfor.b_conferma\n' "$p" "$n"
        done
    } > "scritto$p"
done

for p in 1 2 3 4; do
    "$ambra" batch --drive disco 1 "scritto$p" > "detto$p" 2>&1 &
    eval "figlio$p=$!"
done
for p in 1 2 3 4; do
    eval "wait \$figlio$p" || male "program $p failed: $(tail -n 3 "detto$p")"
    grep -q '"event":"message"' "detto$p" && male "program $p was refused: $(grep message "detto$p")"
done

for file in for srf; do
    quante=$(grep -aoi 'ditta [1-4]-[12][0-9][0-9]' "$archivio/lum001.$file" | sort -u | wc -l)
    [ "$quante" -eq 400 ] || male "lum001.$file: $quante of 400 suppliers"
done
corri 0 check --drive disco 1
