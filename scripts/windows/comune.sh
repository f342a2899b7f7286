# What the scripts for Windows share: where the cross-built libraries lie, and how a source package gets there.
# Everything stands outside the tree, so that a fresh checkout finds it done.
triade=x86_64-w64-mingw32
cache=${XDG_CACHE_HOME:-$HOME/.cache}/kit-ambra/mingw64
prefisso=$cache/prefisso
toolchain=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/cmake/mingw64.cmake
mkdir -p "$cache"/{sorgenti,costruzione,fatto,diario} "$prefisso"

# Runs a step once: it leaves its mark when it has succeeded, its words in a log. NAME COMMAND...
una_volta() {
    local nome=$1 inizio=$SECONDS
    shift
    [ -e "$cache/fatto/$nome" ] && return 0
    echo "$nome ..."
    # Not in a condition: there the shell would go on after an error inside the step.
    set +e
    (set -e; "$@") >"$cache/diario/$nome" 2>&1
    local esito=$?
    set -e
    if [ $esito -ne 0 ]; then
        tail -n 30 "$cache/diario/$nome" >&2
        echo "$nome: failed; the whole log is $cache/diario/$nome" >&2
        return 1
    fi
    touch "$cache/fatto/$nome"
    echo "$nome: $((SECONDS - inizio)) s"
}

# apt with a list of its own, made of the machine's entries, that knows source packages: nothing of the
# machine's set-up changes, and no rights are needed.
apt_sorgenti() {
    local d=$cache/apt f
    if [ ! -d "$d/sources.d" ]; then
        mkdir -p "$d/nuovo" "$d/lists/partial" "$d/cache/archives/partial"
        for f in /etc/apt/sources.list.d/debian*.sources; do
            [ -e "$f" ] && sed 's/^Types:.*/Types: deb-src/' "$f" >"$d/nuovo/${f##*/}"
        done
        for f in /etc/apt/sources.list /etc/apt/sources.list.d/debian*.list; do
            [ -e "$f" ] && sed -n 's/^deb /deb-src /p' "$f" >"$d/nuovo/${f##*/}.list"
        done
        mv "$d/nuovo" "$d/sources.d"
    fi
    local comando=$1
    shift
    "apt-$comando" -qq -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$d/sources.d" \
        -o Dir::State::Lists="$d/lists" -o Dir::Cache="$d/cache" -o APT::Sandbox::User="$(id -un)" "$@"
}

# The newest version that the mirror has: right after an update its list may name files that are not there yet.
scarica() { # NAME VERSION FOLDER
    local nuovo=$3.nuovo v versioni=${2:-}
    apt_sorgenti get update
    [ -n "$versioni" ] ||
        versioni=$(apt_sorgenti cache showsrc --only-source "$1" | sed -n 's/^Version: //p' | sort -ruV)
    for v in $versioni; do
        rm -rf "$3" "$nuovo"
        mkdir "$nuovo"
        (cd "$nuovo" && apt_sorgenti get source "$1=$v") || continue
        mv "$nuovo"/*/ "$3"
        rm -rf "$nuovo"
        return 0
    done
    return 1
}

# Prints nothing; afterwards $cache/sorgenti/NAME is the unpacked source package. NAME [VERSION]
sorgente() {
    una_volta "sorgente-$1" scarica "$1" "${2:-}" "$cache/sorgenti/$1"
}

# A library with a CMake build, configured and built in $cache/costruzione/NAME. NAME SOURCE TARGET [CMAKE OPTIONS]
con_cmake() {
    local nome=$1 sorgente=$2 bersaglio=$3
    shift 3
    cmake -G Ninja -S "$sorgente" -B "$cache/costruzione/$nome" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefisso" -DBUILD_SHARED_LIBS=OFF "$@"
    cmake --build "$cache/costruzione/$nome" --target "$bersaglio"
}
