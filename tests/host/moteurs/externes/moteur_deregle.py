# SPDX-License-Identifier: MPL-2.0
"""An engine that does what the text says, for tests: it hangs, lies and dies on request."""
import json
import os
import sys


def ecris(objet) -> None:
    sys.stdout.write((objet if isinstance(objet, str) else json.dumps(objet)) + "\n")
    sys.stdout.flush()


def note(texte: str, mot: str, **plus) -> dict:
    debut = texte.index(mot)
    return {"debut": debut, "fin": debut + len(mot), "genre": "accord", "regle": "essai",
            "explication": "Essai.", "suggestions": ["bon"], "surete": 0.9, **plus}


def reponds(demande: dict) -> None:
    texte, numero = demande["texte"], demande["id"]
    if "pends" in texte:
        sys.stdin.read()
    elif "meurs" in texte:
        print("je meurs", file=sys.stderr)
        os._exit(3)
    elif "illisible" in texte:
        ecris("{\"id\": 1, pas du JSON")
    elif "sanstableau" in texte:
        ecris({"id": numero, "remarques": "aucune"})
    elif "enorme" in texte:
        sys.stdout.write("x" * (20 * 1024 * 1024))
        sys.stdout.flush()
        sys.stdin.read()
    elif "vieux" in texte:
        ecris({"id": numero + 1000, "remarques": [note(texte, "vieux", regle="faux")]})
        ecris({"id": numero - 1, "remarques": [note(texte, "vieux", regle="faux")]})
        ecris({"id": numero, "remarques": [note(texte, "vieux")]})
    elif "hors" in texte:
        ecris({"id": numero, "remarques": [
            note(texte, "hors", debut=-3), note(texte, "hors", fin=10 ** 9),
            note(texte, "hors", debut=1e300), note(texte, "hors", debut="zero"),
            note(texte, "hors", fin=None), 12, note(texte, "hors")]})
    elif "erreur" in texte:
        ecris({"id": numero, "erreur": "pas celui-ci"})
    elif "vide" in texte:
        ecris({"id": numero, "remarques": []})
    elif "langues" in texte:
        ecris({"id": numero, "remarques": [
            note(texte, "langues", explication=" ".join(e["langue"] for e in demande["langues"]))]})
    else:
        premier = texte.split()[0]
        ecris({"id": numero, "remarques": [note(texte, premier, explication=texte)]})


def main() -> None:
    maniere = sys.argv[1] if len(sys.argv) > 1 else ""
    if maniere == "muet":
        sys.stdin.read()
    elif maniere == "meurs":
        print("rien ne va", file=sys.stderr)
        sys.exit(1)
    elif maniere == "autre":
        ecris("bonjour")
    elif maniere == "absent":
        ecris({"contrat": 1, "moteur": "deregle", "absent": "pas de module"})
        sys.exit(0)
    elif maniere == "sourd":
        ecris({"contrat": 1, "moteur": "deregle", "version": "1"})
        while True:
            pass
    else:
        ecris({"contrat": 1, "moteur": "deregle", "version": "1"})
    for ligne in sys.stdin:
        reponds(json.loads(ligne))


if __name__ == "__main__":
    main()
