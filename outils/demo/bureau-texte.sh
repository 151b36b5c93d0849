# shellcheck shell=bash
# SPDX-License-Identifier: MPL-2.0
# The embedded office for text files, as ./demo drives it. Another office is another file of this
# folder with the same functions; ./demo --bureau NAME takes bureau-NAME.sh.

# The files shown when the person gives none, one a line.
bureauExemples() { printf '%s\n' "$DEPOT/exemples/francais.txt" "$DEPOT/exemples/english.txt"; }

# Sections of outils/paquets.liste that it takes besides [construction] and [execution].
bureauPaquets() { :; }

# CMake targets that it takes besides the host and the plug-in.
bureauCibles() { echo vocalyne-bureau-texte; }

# bureauOuvre FILE...: opens the files on the bus of DBUS_SESSION_BUS_ADDRESS and puts the documents'
# identifiers in `identifiants`, in the files' order.
bureauOuvre() {
    local identifiant
    # shellcheck disable=SC2154 # ./demo sets them
    exec {sortieBureau}< <(exec setsid "$construction/bin/vocalyne-bureau-texte" -- "$@" 2>"$temporaire/bureau.erreurs")
    pidBureau=$!
    aLaFin arreteProcessus "$pidBureau"
    while [ "${#identifiants[@]}" -lt $# ]; do
        if ! read -r -t 30 identifiant <&"$sortieBureau"; then
            cat "$temporaire/bureau.erreurs" >&2
            abandonne "Le bureau ne peut pas servir ces fichiers." "The office cannot serve these files."
        fi
        identifiants+=("$identifiant")
    done
}

# Saves and ends.
bureauFerme() {
    arreteProcessus "$pidBureau"
    # What it could not save is said by itself; that it saved goes without saying.
    grep -vE ': (saved|enregistré)$' "$temporaire/bureau.erreurs" >&2 || true
}

# bureauCompare BEFORE AFTER: the changed words in their paragraphs, in colour on a terminal.
bureauCompare() {
    local couleur=never mots=plain
    if [ -t 1 ] && [ -z "${NO_COLOR:-}" ]; then couleur=always mots=color; fi
    LC_ALL=C.UTF-8 git --no-pager -c color.diff.old="red strike" diff --no-index --no-ext-diff --color="$couleur" --word-diff="$mots" \
        --word-diff-regex='[[:alpha:]]+|[^[:space:]]' --unified=0 -- "$1" "$2" |
        sed -E '1,/^(\x1b\[[0-9;]*m)*@@ /d; s/^(\x1b\[[0-9;]*m)*@@ .*//' || true
}
