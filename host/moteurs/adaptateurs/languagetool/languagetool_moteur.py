# SPDX-License-Identifier: MPL-2.0
"""A LanguageTool server as an engine: JSON Lines on standard input and output (docs/moteurs.md).

Argument: the server's address. Nothing is sent anywhere else, and no redirection is followed."""
import json
import signal
import sys
import urllib.error
import urllib.parse
import urllib.request

ATTENTE_S = 10
REPONSE_MAX = 4 * 1024 * 1024
GENRES = {
    "misspelling": "orthographe", "typographical": "typographie", "whitespace": "typographie",
    "grammar": "accord", "duplication": "repetition", "style": "style",
    "register": "style", "locale-violation": "style",
}
# Countries that the server asks for; texts that name none are in these.
VARIANTES = {"en": "en-US", "de": "de-DE", "pt": "pt-PT"}


class SansRedirection(urllib.request.HTTPRedirectHandler):
    def redirect_request(self, *_):
        return None


def demande_au_serveur(adresse: str, texte: str, langue: str) -> list[dict]:
    champs = {"text": texte, "language": langue, "disabledCategories": "TYPOS"}
    requete = urllib.request.Request(adresse.rstrip("/") + "/v2/check",
                                     data=urllib.parse.urlencode(champs).encode())
    # No proxy: a server of the person's own is asked directly.
    ouvreur = urllib.request.build_opener(urllib.request.ProxyHandler({}), SansRedirection())
    with ouvreur.open(requete, timeout=ATTENTE_S) as reponse:
        return json.loads(reponse.read(REPONSE_MAX))["matches"]


def fais_remarque(trouvee: dict) -> dict:
    regle = trouvee.get("rule", {})
    suggestions = [r["value"] for r in trouvee.get("replacements", [])[:8]]
    return {
        # The server counts in UTF-16 units, as we do.
        "debut": trouvee["offset"], "fin": trouvee["offset"] + trouvee["length"],
        "genre": GENRES.get(regle.get("issueType", ""), "confusion"),
        "regle": regle.get("id", ""), "explication": trouvee.get("message", ""),
        "suggestions": suggestions, "surete": 0.75 if len(suggestions) == 1 else 0.5,
    }


def donne_langue(langues: list[dict]) -> str:
    """The language that most of the text is in."""
    tailles: dict[str, int] = {}
    for etendue in langues:
        if etendue["langue"]:
            taille = etendue["fin"] - etendue["debut"]
            tailles[etendue["langue"]] = tailles.get(etendue["langue"], 0) + taille
    langue = max(tailles, key=lambda nom: tailles[nom], default="fr")
    return VARIANTES.get(langue, langue)


def ecris(objet: dict) -> None:
    sys.stdout.write(json.dumps(objet) + "\n")
    sys.stdout.flush()


def main() -> None:
    signal.signal(signal.SIGINT, signal.SIG_DFL) # quietly, whatever it is about
    adresse = sys.argv[1]
    ecris({"contrat": 1, "moteur": "languagetool", "version": adresse})
    for ligne in sys.stdin:
        demande = json.loads(ligne)
        try:
            trouvees = demande_au_serveur(adresse, demande["texte"],
                                          donne_langue(demande["langues"]))
            ecris({"id": demande["id"], "remarques": [fais_remarque(t) for t in trouvees]})
        except (OSError, ValueError, KeyError, TypeError) as faute:
            ecris({"id": demande["id"], "erreur": f"{adresse}: {faute}"})


if __name__ == "__main__":
    main()
