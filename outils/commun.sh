# shellcheck shell=bash
# SPDX-License-Identifier: MPL-2.0
# What every script of ours starts with: strict mode, two languages, clean-up. Sourced, never run.
set -euo pipefail
shopt -s inherit_errexit

# The tree's own folder, whatever the current one is.
DEPOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

# Where costly things are kept between runs and between clones.
# shellcheck disable=SC2034 # used by the scripts that source this one
DOSSIER_CACHE=${VOCALYNE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/vocalyne}

parleFrancais() {
    case ${LC_ALL:-${LC_MESSAGES:-${LANG:-}}} in
    fr | fr_* | fr.*) return 0 ;;
    *) return 1 ;;
    esac
}

# selonLangue FRENCH ENGLISH: prints the one that the person reads.
selonLangue() {
    if parleFrancais; then printf '%s\n' "$1"; else printf '%s\n' "$2"; fi
}

dis() { selonLangue "$@"; }

avertis() { selonLangue "$@" >&2; }

# abandonne FRENCH ENGLISH [STATUS]
abandonne() {
    avertis "$1" "$2"
    exit "${3:-1}"
}

# Wrong options: says so, shows the usage (function `usage` of the script), exit status 2.
mauvaiseOption() {
    avertis "Option ou argument inconnu : $1" "Unknown option or argument: $1"
    usage >&2
    exit 2
}

# commeRacine COMMAND...: runs it as root; false, with a message, where that is impossible.
commeRacine() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        # Without a terminal nobody can type a password: fail at once rather than wait.
        if [ -t 0 ]; then sudo "$@"; else sudo -n "$@"; fi
    else
        avertis "Il faut être root, ou avoir sudo, pour : $*" "Root, or sudo, is needed for: $*"
        return 1
    fi
}

# aLaFin COMMAND...: remembered, and run when the script ends in whatever way, last one first.
ACTIONS_DE_FIN=()
aLaFin() {
    local action
    printf -v action '%q ' "$@"
    ACTIONS_DE_FIN=("$action" "${ACTIONS_DE_FIN[@]}")
}

termine() {
    local statut=$? action
    trap - EXIT
    trap '' INT TERM HUP
    for action in "${ACTIONS_DE_FIN[@]}"; do eval "$action" || true; done
    exit "$statut"
}
trap termine EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# arreteProcessus PID: ends one process that this script started, and waits for its end.
arreteProcessus() {
    kill -TERM "$1" 2>/dev/null || return 0
    wait "$1" 2>/dev/null || true
}

# arreteGroupe PID: the same for one that was started by setsid, with all that it started itself.
arreteGroupe() {
    kill -TERM -- "-$1" 2>/dev/null || return 0
    wait "$1" 2>/dev/null || true
}

# Compilation results are shared between clones and between runs, where ccache is there.
emploieCcache() {
    command -v ccache >/dev/null || return 0
    export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
    export CCACHE_BASEDIR=$DEPOT CCACHE_NOHASHDIR=1
}
