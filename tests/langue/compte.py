# SPDX-License-Identifier: MPL-2.0
"""How many mistakes the host finds in sentences where each is marked: {as it stands|as it should be}.

    compte.py HOST CONNECTOR [-v]

-v shows what was missed and what was flagged in vain. HOST is vocalyne-hote, CONNECTOR the scripted plug-in of the tests, whose zones are the sentences."""
import dataclasses
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ICI = pathlib.Path(__file__).resolve().parent
TEXTES = {"fr": ICI / "francais.txt", "en": ICI / "anglais.txt"}
MARQUE = re.compile(r"\{([^{}|]*)\|([^{}|]*)\}")
PATIENCE_S = 600


def unites(texte: str) -> int:
    return len(texte.encode("utf-16-le")) // 2


@dataclasses.dataclass
class Phrase:
    texte: str                    # as it stands
    fautes: list[tuple[int, int]] # ranges in UTF-16 units
    possibles: set[str]           # as it may become: each mistake mended, or not


def lis_phrase(ligne: str) -> Phrase:
    texte, possibles, fautes, fin = "", {""}, [], 0
    for marque in MARQUE.finditer(ligne):
        avant, faux, juste = ligne[fin:marque.start()], marque.group(1), marque.group(2)
        texte += avant
        fautes.append((unites(texte), unites(texte + faux)))
        texte += faux
        possibles = {p + avant + suite for p in possibles for suite in (faux, juste)}
        fin = marque.end()
    return Phrase(texte + ligne[fin:], fautes, {p + ligne[fin:] for p in possibles})


def lis(langue: str) -> list[Phrase]:
    return [lis_phrase(ligne) for ligne in TEXTES[langue].read_text(encoding="utf-8").splitlines()
            if ligne and not ligne.startswith("#")]


def corrige(hote: str, connecteur: str, phrases: list[Phrase], langue: str, env: dict[str, str],
            *options: str) -> tuple[list[dict], list[str], str]:
    """(the mistakes that the host tells, the sentences behind it, what it said on standard error)"""
    with tempfile.TemporaryDirectory() as dossier:
        script, journal = pathlib.Path(dossier, "s.json"), pathlib.Path(dossier, "j.json")
        script.write_text(json.dumps({"titre": "Phrases", "journal": str(journal), "evenements": [],
                                      "zones": [{"texte": p.texte} for p in phrases]}))
        fini = subprocess.run([hote, "corrige", "i~d", "--langue", langue, "--sortie", "json", *options],
                              env=env | {"VOCALYNE_GREFFON": connecteur,
                                         "VOCALYNE_GREFFON_FAUX": str(script)},
                              capture_output=True, text=True, timeout=PATIENCE_S, check=True)
        return (json.loads(fini.stdout)["fautes"], json.loads(journal.read_text())["zones"],
                fini.stderr)


@dataclasses.dataclass
class Compte:
    fautes: int = 0
    trouvees: int = 0
    propres: int = 0
    alarmes: int = 0
    manquees: list[str] = dataclasses.field(default_factory=list)
    fausses: list[str] = dataclasses.field(default_factory=list)
    moteurs: dict[str, int] = dataclasses.field(default_factory=dict)

    @property
    def rappel(self) -> float:
        return self.trouvees / self.fautes

    @property
    def alarmes_pour_cent(self) -> float:
        return 100 * self.alarmes / self.propres


def compte(phrases: list[Phrase], remarques: list[dict]) -> Compte:
    bilan = Compte()
    for rang, phrase in enumerate(phrases):
        ici = [r for r in remarques if r["zone"] == rang]
        bilan.propres += not phrase.fautes
        for debut, fin in phrase.fautes:
            bilan.fautes += 1
            touche = [r for r in ici if r["debut"] < fin and debut < r["fin"]]
            if touche:
                bilan.trouvees += 1
                moteur = touche[0]["moteur"]
                bilan.moteurs[moteur] = bilan.moteurs.get(moteur, 0) + 1
            else:
                bilan.manquees.append(phrase.texte)
        if not phrase.fautes:
            bilan.alarmes += len(ici)
            bilan.fausses += [f"{phrase.texte} [{r['mot']}: {r['moteur']}/{r['regle']}]" for r in ici]
    return bilan


def compte_les_degats(phrases: list[Phrase], zones: list[str]) -> list[str]:
    """Sentences that say something else than with some of their mistakes mended."""
    return [f"{phrase.texte} -> {zone}" for phrase, zone in zip(phrases, zones)
            if zone not in phrase.possibles]


def environnement() -> dict[str, str]:
    """The person's, without the settings that would change what is found."""
    return {nom: valeur for nom, valeur in os.environ.items() if not nom.startswith(("VOCALYNE_", "DBUS_"))}


def main() -> None:
    hote, connecteur = sys.argv[1:3]
    env = environnement()
    moteurs = json.loads(subprocess.run([hote, "moteurs", "--sortie", "json"], env=env, check=True,
                                        capture_output=True, text=True).stdout)
    print(", ".join(f"{m['nom']} {m['version']}".strip() for m in moteurs if m["etat"] == "pret"))
    for langue in TEXTES:
        phrases = lis(langue)
        bilan = compte(phrases, corrige(hote, connecteur, phrases, langue, env)[0])
        _, zones, _ = corrige(hote, connecteur, phrases, langue, env, "--automatique")
        degats = compte_les_degats(phrases, zones)
        changees = sum(p.texte != z for p, z in zip(phrases, zones))
        print(f"{langue}: {bilan.trouvees} of {bilan.fautes} mistakes found ({bilan.rappel:.2f}), "
              f"{bilan.alarmes} alarms on {bilan.propres} clean sentences; "
              + ", ".join(f"{n} by {m}" for m, n in sorted(bilan.moteurs.items()))
              + f"; --automatique changed {changees} sentences, {len(degats)} of them wrongly")
        if "-v" in sys.argv:
            print("\n".join(["missed:", *bilan.manquees, "false:", *bilan.fausses, "harmed:", *degats]))


if __name__ == "__main__":
    main()
