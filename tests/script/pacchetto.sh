#!/bin/sh
# What `cmake --install` puts there and `uninstall` takes away, and the Debian package, seen by the tools of Debian
# that this machine has.
# usage: pacchetto.sh FOLDER-OF-THE-BUILD VERSION
set -u
build=$1 versione=$2
casa=$(mktemp -d)
trap 'rm -rf "$casa"' EXIT
cd "$casa" || exit 70

male() {
    echo "$*"
    [ ! -e detto ] || cat detto
    exit 1
}
# corri COMMAND...: which must succeed; what it says is in `detto`.
corri() {
    "$@" > detto 2>&1 || male "$*: status $?"
}
# ha TOOL: whether this machine has it, said aloud where not.
ha() {
    command -v "$1" > /dev/null || { echo "no $1 here: what it would say is not known"; return 1; }
}

export DESTDIR=$casa/albero
corri cmake --install "$build" --prefix /usr
cosa=$DESTDIR/usr
share=$cosa/share
for f in bin/vexoraf bin/ambra share/man/man1/vexoraf.1.gz share/man/man1/ambra.1.gz \
    share/applications/it.kitambra.vexoraf.desktop share/metainfo/it.kitambra.vexoraf.metainfo.xml \
    share/icons/hicolor/scalable/apps/kit-ambra.svg share/icons/hicolor/16x16/apps/kit-ambra.png \
    share/icons/hicolor/256x256/apps/kit-ambra.png share/doc/kit-ambra/copyright; do
    [ -s "$cosa/$f" ] || male "not installed: $f"
done
grep -q "release version=\"$versione\"" "$share"/metainfo/*.xml || male "metainfo of another version"
[ "$("$cosa/bin/vexoraf" --version)" = "vexoraf $versione" ] || male "vexoraf of another version"
grep -q '^Exec=vexoraf --scegli$' "$share"/applications/*.desktop || male "the desktop entry starts something else"
ha desktop-file-validate && corri desktop-file-validate "$share"/applications/*.desktop
ha appstreamcli && corri appstreamcli validate --no-net "$share"/metainfo/*.xml
for pagina in ambra vexoraf; do
    ha man || break
    LC_ALL=C.UTF-8 MANROFFSEQ='' man --warnings -E UTF-8 -l -Tutf8 -Z "$share/man/man1/$pagina.1.gz" 2> detto > /dev/null
    [ ! -s detto ] || male "manual page $pagina"
done
corri cmake -P "$build/pacchetto/disinstalla.cmake"
resta=$(find "$DESTDIR" ! -type d)
[ -z "$resta" ] || male "left after the uninstallation: $resta"
unset DESTDIR

ha dpkg-shlibdeps && ha dpkg-deb || exit 0
corri cpack -G DEB -B "$casa/deb" --config "$build/CPackConfig.cmake"
deb=$(echo "$casa"/deb/kit-ambra_"${versione}"_*.deb)
[ -s "$deb" ] || male "no package: $deb"
dpkg-deb -f "$deb" Depends | grep -q 'libqt6widgets6' || male "does not ask for the window library"
ha lintian || exit 0
lintian --allow-root --fail-on error,warning "$deb" > detto 2>&1 || male "lintian finds fault"
echo "lintian: no error, no warning"
