# SPDX-License-Identifier: MPL-2.0
"""What protocol/ fixes, read from its own files: names, signatures, errors, and where they stand."""

import pathlib
import re
import xml.etree.ElementTree as arbre

SERVICE = "com.ombrel.vocalyne.texteurs.OpenOffice."
CHEMIN = "/com/ombrel/vocalyne/texteurs/OpenOffice/"
PROXY = "com.ombrel.vocalyne.texteurs.openoffice.proxy.interface"
DOCUMENTS = "com.ombrel.vocalyne.texteurs.openoffice.documents.interface"
LIMITE_REPONSE = (128 << 20) - (64 << 10)  # bytes of a zone document
UNITES_REMPLACEMENT_MAX = 8 << 10  # of a new text
BITS_DE_STYLE = 0xFF7F  # the high byte is the number of a language

ERREUR = "com.ombrel.vocalyne.texteurs.Erreur."
ERREURS = (  # where several hold, the first is answered
    "Fermeture", "Occupe", "DocumentInconnu", "AucunDocument", "DocumentFerme", "ZoneInconnue",
    "LectureSeule", "DialogueOuvert", "SelectionImpossible", "Protege", "Frappe", "PlageRefusee",
    "FinDeLigne", "TropGrand", "ChampDetruit", "Enregistrement", "Bureau", "Interne")

DOSSIER = pathlib.Path(__file__).resolve().parent / "../../../protocol"


def est_instance(nom: str) -> bool:
    """May this be an instance: an element of a bus name, and of an object path?"""
    return bool(re.fullmatch(r"[A-Za-z_][A-Za-z0-9_]*", nom)) and len(SERVICE + nom) <= 255


class Protocole:
    """The two interfaces: `methodes[interface][method]` is (types in, types out)."""

    def __init__(self, dossier: pathlib.Path = DOSSIER):
        self.lisezmoi = dossier / "README.md"
        self.methodes: dict[str, dict[str, tuple[str, str]]] = {}
        for interface in (PROXY, DOCUMENTS):
            racine = arbre.parse(dossier / f"{interface}.xml").getroot()
            self.methodes[interface] = signatures(racine.find("interface"))

    def entrees(self, interface: str, methode: str) -> str:
        return "(" + self.methodes[interface][methode][0] + ")"

    def sorties(self, interface: str, methode: str) -> str:
        return "(" + self.methodes[interface][methode][1] + ")"

    def lieu(self, section: str) -> str:
        """Where to read about a section: the file, its line where the file is at hand, the title."""
        if self.lisezmoi.is_file():
            for numero, ligne in enumerate(self.lisezmoi.read_text("utf-8").splitlines(), 1):
                if re.fullmatch(rf"#+ {re.escape(section)}", ligne):
                    return f"protocol/README.md:{numero} ({section})"
        return f"protocol/README.md ({section})"


def signatures(interface: arbre.Element | None) -> dict[str, tuple[str, str]]:
    """The methods of an <interface>: the types of what goes in, of what comes out."""
    trouvees = {}
    for methode in interface.findall("method") if interface is not None else ():
        sens = {"in": "", "out": ""}
        for argument in methode.findall("arg"):
            sens[argument.get("direction", "in")] += argument.get("type", "")
        trouvees[methode.get("name", "")] = (sens["in"], sens["out"])
    return trouvees
