#!/bin/sh
# Two programs register fifty invoices each into one building at once, with their charge: nothing is lost, and the
# check finds nothing new. AMBRA_ACCANTO, a program of another system, is the second if it is set.
. "$(dirname "$0")/attrezzi"
accanto=${AMBRA_ACCANTO:-$ambra}
corri 0 check --drive disco 1
prima=$(wc -c < $archivio/lum001.ftr)
movimenti=$(wc -c < $archivio/lum001.mov)
for p in 1 2; do
    for n in $(seq 101 150); do
        printf 'click vexoraf.command3d2(2)\nclick lumftem.b_ins\ntype lumftea.Text2(0) INS-%s-%s\n' "$p" "$n"
        printf 'type lumftea.text1(0) 14/03/2024\ntype lumftea.impon(0) 100\nanswer yes\n'
        printf 'click lumftea.command3d1(0)\nclick lumincx.b_fine(1)\n'
    done > "scritto$p"
done
"$ambra" batch --drive disco 1 scritto1 > detto1 2>&1 &
uno=$!
"$accanto" batch --drive disco 1 scritto2 > detto2 2>&1 &
due=$!
wait $uno || male "the first failed: $(tail -n 3 detto1)"
wait $due || male "the second failed: $(tail -n 3 detto2)"
cat detto1 detto2 > out
! grep -q 'occupato' out || male "one was kept out"

quanti=$(grep -ao 'INS-[12]-1[0-5][0-9]' $archivio/lum001.ftr | sort -u | wc -l)
[ "$quanti" -eq 100 ] || male "$quanti of 100 invoices"
[ $(($(wc -c < $archivio/lum001.ftr) - prima)) -eq $((100 * 522)) ] || male "a hundred records more, no hole"
[ $(($(wc -c < $archivio/lum001.mov) - movimenti)) -eq $((100 * 154)) ] || male "a hundred movements more"
corri 0 check --drive disco 1
