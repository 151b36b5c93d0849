# shellcheck shell=bash
# SPDX-License-Identifier: MPL-2.0
# A real LibreOffice with the extension of the build, as ./demo drives it; bureau-texte.sh says what
# each function is for. The office works on copies in a folder of its own, with a fresh profile there,
# and never as the superuser: it refuses that.

# The user that the office runs as, and what runs a command as that one.
if [ "$(id -u)" -ne 0 ]; then
    utilisateurBureau=$(id -un)
    commeUtilisateur=()
else
    utilisateurBureau=${SUDO_USER:-nobody}
    [ "$(id -u "$utilisateurBureau")" -ne 0 ] || utilisateurBureau=nobody
    commeUtilisateur=(setpriv "--reuid=$utilisateurBureau" "--regid=$(id -g "$utilisateurBureau")" --clear-groups --)
fi

bureauExemples() { printf '%s\n' "$DEPOT/exemples/francais.fodt" "$DEPOT/exemples/english.fodt"; }

bureauPaquets() { echo libreoffice; }

bureauCibles() {
    if [ "$(uname -m)" != x86_64 ]; then
        abandonne "L'extension LibreOffice n'existe qu'en x86-64." "The LibreOffice extension exists for x86-64 alone."
    fi
    echo vocalyne_oxt
}

# A bus lets in nobody but its own user, unless told so.
bureauBus() {
    if [ "${#commeUtilisateur[@]}" -eq 0 ]; then
        echo --session
        return
    fi
    # shellcheck disable=SC2154 # ./demo sets it
    cat >"$temporaire/bus.conf" <<FIN
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <include>/usr/share/dbus-1/session.conf</include>
  <policy context="mandatory"><allow user="$utilisateurBureau"/></policy>
</busconfig>
FIN
    echo "--config-file=$temporaire/bus.conf"
}

# bureauOuvre FILE...
bureauOuvre() {
    local fichier rang=0 chemins=()
    originaux=("$@")
    dossierBureau=$("${commeUtilisateur[@]}" mktemp -d "${TMPDIR:-/tmp}/vocalyne.XXXXXX" 2>/dev/null) ||
        dossierBureau=$("${commeUtilisateur[@]}" mktemp -d /tmp/vocalyne.XXXXXX)
    aLaFin rm -rf "$dossierBureau"
    mkdir "$dossierBureau/maison"
    mkdir -m 700 "$dossierBureau/execution"
    # shellcheck disable=SC2154 # ./demo sets them
    cp -- "$DEPOT/outils/demo/libreoffice.py" "$construction/share/vocalyne/vocalyne-libreoffice.oxt" "$dossierBureau"
    copies=()
    for fichier; do
        verifieLibre "$fichier"
        mkdir "$dossierBureau/$rang"
        chemins+=("$dossierBureau/$rang/$(basename "$fichier")")
        cp -- "$fichier" "${chemins[rang]}"
        chmod u+rw "${chemins[rang]}"
        rang=$((rang + 1))
    done
    copies=("${chemins[@]}")
    [ "${#commeUtilisateur[@]}" -eq 0 ] || chown -R "$utilisateurBureau" "$dossierBureau"

    dis "LibreOffice démarre, avec l'extension dans un profil neuf…" "LibreOffice starts, with the extension in a fresh profile…"
    local environnement=(-i "PATH=$PATH" "LANG=${LC_ALL:-${LC_MESSAGES:-${LANG:-C.UTF-8}}}" "HOME=$dossierBureau/maison"
        "TMPDIR=$dossierBureau" "XDG_RUNTIME_DIR=$dossierBureau/execution" SAL_USE_VCLPLUGIN=svp
        "DBUS_SESSION_BUS_ADDRESS=$DBUS_SESSION_BUS_ADDRESS" "VOCALYNE_DEMO_PATIENCE=$patienceBureau")
    exec {sortieBureau}< <(cd "$dossierBureau" && exec setsid "${commeUtilisateur[@]}" env "${environnement[@]}" \
        /usr/bin/python3 -B "$dossierBureau/libreoffice.py" "$dossierBureau" "${chemins[@]}" 2>"$temporaire/bureau.erreurs")
    pidBureau=$!
    # Ended before the demonstration's end it saves too, and what is to be corrected in place still is.
    aLaFin rendsDocuments
    aLaFin arreteProcessus "$pidBureau"
    local ligne
    if ! read -r ligne <&"$sortieBureau" || [ "$ligne" != open ]; then
        cat "$temporaire/bureau.erreurs" >&2
        abandonne "LibreOffice ne peut pas servir ces documents." "LibreOffice cannot serve these documents."
    fi
    trouveIdentifiants "${chemins[@]}"
}

# Seconds that any one step of the office may take.
patienceBureau=${VOCALYNE_DEMO_PATIENCE:-120}

# trouveIdentifiants PATH...: waits until the extension lists all of them.
trouveIdentifiants() {
    local limite=$((SECONDS + patienceBureau)) trouves
    while :; do
        # shellcheck disable=SC2154 # ./demo sets it
        trouves=$(HOME=$temporaire/maison "$hote" documents --sortie json 2>/dev/null | python3 -c '
import json, sys
parChemin = {d["chemin"]: d["id"] for d in json.load(sys.stdin)}
print("\n".join(parChemin[chemin] for chemin in sys.argv[1:]))' "$@" 2>/dev/null) && break
        if [ "$SECONDS" -ge "$limite" ]; then
            cat "$dossierBureau/soffice.log" >&2
            abandonne "L'extension ne s'est pas annoncée sur le bus en $patienceBureau s." \
                "The extension did not come to the bus within $patienceBureau s."
        fi
        sleep 0.2
    done
    # shellcheck disable=SC2034 # ./demo reads it
    mapfile -t identifiants <<<"$trouves"
}

# verifieLibre FILE: a document that another office has open is not corrected under its hands.
verifieLibre() {
    # shellcheck disable=SC2154 # ./demo sets it
    if [ "$enPlace" = oui ] && [ -e "$(dirname "$1")/.~lock.$(basename "$1")#" ]; then
        abandonne "$1 : ouvert dans un bureau ; fermez-le d'abord, ou corrigez-en une copie (sans --en-place)." \
            "$1: open in an office; close it first, or correct a copy (without --en-place)."
    fi
}

# Puts what the office saved in the place of what it was opened from, whole or not at all.
rendsDocuments() {
    local rang cible voisin
    for rang in "${!originaux[@]}"; do
        cible=$(realpath -- "${originaux[rang]}")
        cmp -s "${copies[rang]}" "$cible" && continue
        # shellcheck disable=SC2154 # ./demo sets it
        if ! cmp -s "${avant[rang]}" "$cible"; then
            avertis "$cible a changé entre-temps : laissé tel quel." "$cible was changed meanwhile: left as it is."
            continue
        fi
        voisin=$(mktemp "$cible.XXXXXX")
        if cp --preserve=mode,ownership -- "$cible" "$voisin" && cat -- "${copies[rang]}" >"$voisin"; then
            mv -- "$voisin" "$cible"
        else
            rm -f -- "$voisin"
        fi
    done
    originaux=()
}

declare -A rangDe=()
bureauFerme() {
    local rang
    kill -USR1 "$pidBureau" 2>/dev/null || true
    if ! wait "$pidBureau"; then
        cat "$temporaire/bureau.erreurs" >&2
        abandonne "LibreOffice n'a pas enregistré ou montré les documents." "LibreOffice did not save or show the documents."
    fi
    for rang in "${!originaux[@]}"; do rangDe[${originaux[rang]}]=$rang; done
    rendsDocuments
}

# bureauCompare BEFORE AFTER: the changed words, and a picture of the first page that changed.
declare -A imagesFaites=()
bureauCompare() {
    local rang=${rangDe[$2]} base page=1 nom image
    base=$dossierBureau/$rang
    compareTextes "$base.avant.txt" "$base.apres.txt"
    while cmp -s <(textePage "$page" "$base.avant.pdf") <(textePage "$page" "$base.apres.pdf") &&
        [ -n "$(textePage $((page + 1)) "$base.apres.pdf")" ]; do
        page=$((page + 1))
    done
    mkdir -p "$construction/images"
    nom=$(basename "$2") && nom=${nom%.*}
    image=$construction/images/$nom
    [ -z "${imagesFaites[$image]:-}" ] || image=$image-$rang
    imagesFaites[$image]=oui
    pdftoppm -q -r 100 -f "$page" -l "$page" -png -singlefile "$base.apres.pdf" "$image"
    cp -- "$base.apres.pdf" "$image.pdf"
    image=${image#"$DEPOT"/}
    dis "Page $page du document corrigé : $image.png (toutes : $image.pdf)" \
        "Page $page of the corrected document: $image.png (all of them: $image.pdf)"
}

textePage() { pdftotext -f "$1" -l "$1" "$2" - 2>/dev/null; }
