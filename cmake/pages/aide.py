# SPDX-License-Identifier: MPL-2.0
"""What a program says with --help, taken apart: the one source of its manual and completions."""
import dataclasses
import os
import re
import subprocess

TERME = re.compile(r"^  (\S.*?)(?:  +(\S.*))?$")
SORTIE = re.compile(r"^(?:Exit codes?|Codes? de sortie) ?:\s*(.*)$")
OPTION = re.compile(r"(--[a-z][a-z-]*)(?: ([^\s\]]+))?")


@dataclasses.dataclass
class Entree:
    """An option, a command or a code, and what is said of it."""
    terme: str
    texte: str


@dataclasses.dataclass
class Commande:
    """One way to call the program: options with their values ("a|b", "FILE", none), and plain words."""
    nom: str
    options: dict[str, str | None]
    mots: list[str]
    arguments: list[str]


class Aide:
    """`corps` holds paragraphs (str), lists (of Entree) and None, where the exit codes begin."""

    def __init__(self, texte: str, programme: str):
        self.programme = programme
        lignes = re.sub(r"^Usage ?: ", "", texte).splitlines()
        fin = next(i for i, ligne in enumerate(lignes) if i and not ligne.startswith("       "))
        self.synopsis: list[str] = []
        for ligne in (l.strip() for l in lignes[:fin]):
            if ligne.startswith(programme):
                self.synopsis.append(ligne)
            else:
                self.synopsis[-1] += " " + ligne
        self.corps = self._decoupe(lignes[fin:])

    @staticmethod
    def _decoupe(lignes: list[str]) -> list:
        corps = []
        ouvert = False  # whether the next line goes on with what was said last
        for ligne in lignes:
            terme, sortie = TERME.match(ligne), SORTIE.match(ligne)
            if not ligne.strip():
                ouvert = False
            elif sortie:
                corps += [None, sortie.group(1)] if sortie.group(1) else [None]
                ouvert = bool(sortie.group(1))
            elif terme:
                if not (ouvert and isinstance(corps[-1], list)):
                    corps.append([])
                corps[-1].append(Entree(terme.group(1), terme.group(2) or ""))
                ouvert = True
            elif ouvert and isinstance(corps[-1], list):
                corps[-1][-1].texte += " " + ligne.strip()
            elif ouvert:
                corps[-1] += " " + ligne.strip()
            else:
                corps.append(ligne.strip())
                ouvert = True
        return corps

    def resume(self) -> str:
        """The first sentence, without its end."""
        phrase = next(e for e in self.corps if isinstance(e, str))
        return re.split(r"\.(?:\s|$)", phrase)[0]

    def entrees(self) -> list[Entree]:
        return [e for liste in self.corps if isinstance(liste, list) for e in liste]

    def commandes(self) -> list[Commande]:
        """What may be called; the program itself where it has no commands, under an empty name."""
        trouvees = {}
        for ligne in self.synopsis:
            mots = ligne.split()[1:]
            nom = mots[0] if mots and re.fullmatch(r"[a-z]+", mots[0]) else ""
            options = {o: v or None for o, v in OPTION.findall(ligne)}
            reste = OPTION.sub("", ligne.split(" ", 2 if nom else 1)[-1])
            commande = trouvees.setdefault(nom, Commande(nom, {}, [], []))
            commande.options |= {o: v for o, v in options.items() if v != "|"} | dict.fromkeys(
                (o for o, v in options.items() if v == "|"))
            commande.mots += [m for m in re.findall(r"[a-z]+", reste) if nom]
            commande.arguments += re.findall(r"\b[A-Z]+\b", reste)
        for entree in self.entrees():
            if "OPTION" in trouvees.get("", Commande("", {}, [], [])).arguments and entree.terme.startswith("-"):
                trouvees[""].options |= {o: v or None for o, v in OPTION.findall(entree.terme)}
        return list(trouvees.values())


def demande(programme: str, langue: str) -> Aide:
    """Asks the program for its help in a language, in a home where nobody has chosen another one."""
    env = os.environ | {"LC_ALL": langue, "HOME": "/nonexistent", "QT_QPA_PLATFORM": "offscreen"}
    texte = subprocess.run([programme, "--help"], env=env, check=True, capture_output=True).stdout.decode()
    return Aide(texte, os.path.basename(programme))
