# SPDX-License-Identifier: MPL-2.0
"""Grammalecte as an engine: JSON Lines on standard input and output (docs/moteurs.md)."""
import json
import re
import signal
import sys

# What clean texts are full of, or what spelling and the writer's own taste decide.
ETEINTES = ("apos", "nbsp", "num", "nf", "unit", "liga", "mapos", "ocr", "poncfin", "neg", "redon1",
            "redon2", "mc", "idrule", "html", "latex", "md", "tab", "pleo", "eepi", "minis", "chim")
GENRES = {
    "gn": "accord", "conj": "accord", "ppas": "accord", "infi": "accord", "eleu": "accord",
    "conf": "confusion", "loc": "confusion", "inte": "confusion", "imp": "confusion",
    "vmode": "confusion", "neg": "confusion",
    "redon1": "repetition", "redon2": "repetition",
    "bs": "style", "pleo": "style", "mc": "style", "eepi": "style",
}
SURETES = {"accord": 0.85, "confusion": 0.85, "typographie": 0.8, "repetition": 0.7, "style": 0.4}
MOT = re.compile(r"\w+")
# Small raised letters ("XIXᵉ"): who writes a letter raises it by its format.
EXPOSANTS = re.compile("[\u02b0-\u02b8\u1d2c-\u1d6a\u2070-\u207f]")


def charge():
    """The checker, and its version."""
    import grammalecte
    from grammalecte import GrammarChecker
    correcteur = GrammarChecker("fr").getGCEngine()
    options = {nom: False for nom in ETEINTES if nom in correcteur.getOptions()}
    correcteur.setOptions({**correcteur.getOptions(), **options})
    return correcteur, getattr(grammalecte, "__version__", None) or correcteur.version


def fais_places(texte: str) -> list[int]:
    """The UTF-16 place of each character, and of the end."""
    places, place = [], 0
    for caractere in texte:
        places.append(place)
        place += 2 if ord(caractere) > 0xFFFF else 1
    return places + [place]


def est_le_meme_doute(une: dict, autre: dict, texte: str) -> bool:
    """Do both mend the same disagreement, each at its own end?"""
    debut, fin = sorted((une, autre), key=lambda f: f["nStart"])
    entre = texte[debut["nEnd"]:fin["nStart"]]
    return une["sLineId"] == autre["sLineId"] and len(MOT.findall(entre)) <= 2


def sans_doubles(fautes: list[dict], texte: str) -> list[dict]:
    """Of remarks that mend one disagreement, the one that changes the later word: articles are
    rarely what was mistyped."""
    gardees: list[dict] = []
    for faute in sorted(fautes, key=lambda f: -f["nStart"]):
        if not any(est_le_meme_doute(faute, autre, texte) for autre in gardees):
            gardees.append(faute)
    return gardees


def fais_remarque(faute: dict, places: list[int]) -> dict:
    genre = GENRES.get(faute["sType"], "typographie")
    suggestions = [s for s in faute["aSuggestions"] if s]
    surete = SURETES[genre]
    if faute["sType"] == "ppas": # where the verb is the wrong one, a participle made to agree with it is too
        surete = 0.7
    if len(suggestions) != 1:
        surete = min(surete, 0.6 if suggestions else 0.5)
    return {
        "debut": places[faute["nStart"]], "fin": places[faute["nEnd"]], "genre": genre,
        "regle": faute["sRuleId"].split("__b")[0], "explication": faute["sMessage"],
        "suggestions": suggestions, "surete": surete,
    }


def examine(correcteur, texte: str, pays: str) -> list[dict]:
    fautes = correcteur.parse(texte, pays)
    if isinstance(fautes, tuple):
        fautes = fautes[0]
    fautes = [f for f in fautes if not any(EXPOSANTS.search(s) for s in f["aSuggestions"])]
    places = fais_places(texte)
    return [fais_remarque(faute, places) for faute in sans_doubles(fautes, texte)]


def donne_pays(langues: list[dict]) -> str:
    etiquettes = [e["langue"] for e in langues if e["langue"].split("-")[0] == "fr"]
    return etiquettes[0][3:5].upper() if etiquettes and len(etiquettes[0]) == 5 else "FR"


def ecris(objet: dict) -> None:
    sys.stdout.write(json.dumps(objet) + "\n")
    sys.stdout.flush()


def main() -> None:
    signal.signal(signal.SIGINT, signal.SIG_DFL) # quietly, whatever it is about
    try:
        correcteur, version = charge()
    except ImportError as faute:
        ecris({"contrat": 1, "moteur": "grammalecte", "absent": str(faute)})
        return
    ecris({"contrat": 1, "moteur": "grammalecte", "version": version})
    for ligne in sys.stdin:
        demande = json.loads(ligne)
        try:
            remarques = examine(correcteur, demande["texte"], donne_pays(demande["langues"]))
            ecris({"id": demande["id"], "remarques": remarques})
        except Exception as faute:  # one text that it cannot read must not end it
            ecris({"id": demande["id"], "erreur": f"{type(faute).__name__}: {faute}"})


if __name__ == "__main__":
    main()
