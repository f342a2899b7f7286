# Sourced first by every script: the root of the tree, and the script's own head as its help.
for parola in "$@"; do
    case $parola in
        -h | --help)
            awk 'NR > 1 { if (!sub(/^# ?/, "")) exit; print }' "$0"
            exit 0
            ;;
    esac
done
unset parola
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# What is not understood ends the script before anything is done.
non_capito() {
    echo "$(basename "$0"): not understood: $*; see $(basename "$0") --help" >&2
    exit 2
}
