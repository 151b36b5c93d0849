# shellcheck shell=bash
# SPDX-License-Identifier: MPL-2.0
# The embedded office for text files, as ./demo drives it. Another office is another file of this
# folder with the same functions; ./demo --bureau NAME takes bureau-NAME.sh.

# The files shown when the person gives none, one a line.
bureauExemples() { printf '%s\n' "$DEPOT/exemples/francais.txt" "$DEPOT/exemples/english.txt"; }

# Sections of outils/paquets.liste that it takes besides [construction] and [execution].
bureauPaquets() { :; }

# Options that the bus's daemon takes: who may come to it.
bureauBus() { echo --session; }

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

# bureauCompare BEFORE AFTER: shows what changed in one of the files.
bureauCompare() { compareTextes "$@"; }
