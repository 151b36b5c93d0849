#!/usr/bin/env python3
# SPDX-License-Identifier: MPL-2.0
"""What the host binds to, against goldens: exported names, needed libraries, slot order.

VOCALYNE_GOLDENS=write rewrites the goldens from the build; look at the difference before keeping it:
each line is a promise to hosts that are out there.
"""
import os
import pathlib
import re
import subprocess
import unittest

ICI = pathlib.Path(__file__).resolve().parent
DEPOT = ICI.parent.parent
GREFFON = os.environ.get("VOCALYNE_GREFFON", "")
TABLES = os.environ.get("VOCALYNE_TABLES", "")
# What loading, unloading and messages ask of the host's libraries, as those export it.
DEMANDES = {
    "AjouterAuxDomainesDeTraduction(std::function<void ()>)",
    "InitLocaleAvecQRC(std::pair<std::locale*, UniChaine>**, UniChaine const&, eLangue, bool)",
    "InitQApplication()",
    "InitialisationGenerale::InitApresQApp()",
    "InitialisationGenerale::InitLePlusTotPossible(eLangue)",
    "PrefsGeneralesQt::Donne(UniChaine, QVariant, bool) const",
    "PrefsGeneralesQt::PrefsGeneralesQt(UniChaine, ePrefsGenMode, ePrefsGenAcces, QSettings::Format)",
    "StockageReponse::Initialise(DDialogue::eTypStockeur, UniChaine const&, QSettings::Format)",
    "_Tr(std::pair<std::locale*, UniChaine>*, char const*, char const*)",
    "eLangueSelonELangueAffichage(eLangueAffichage)",
    "sdd::ChaineN::LibereConvertisseurPourCodage()",
}
CLASSES = ["AgentEspion", "ConnecteurEspion", "ImplAgentTexteur", "ImplZoneDeTexteTEMP",
           "InterfaceAgentTexteur", "InterfaceTexteur", "InterfaceZoneDeTexte", "ModuleProxyOOo",
           "VocalyneOpenOfficeProxyQDBUS", "ZoneDeTexteOOoProxy", "ZoneEspion"]


def sortie(*commande: str) -> str:
    return subprocess.run(commande, check=True, capture_output=True, text=True).stdout


def demanglees(noms: set[str]) -> dict[str, str]:
    """Each mangled name as it reads in the sources: a thunk tells what it leads to."""
    ordre = sorted(noms)
    lus = subprocess.run(["c++filt"], input="\n".join(ordre), check=True, capture_output=True, text=True)
    return dict(zip(ordre, lus.stdout.splitlines(), strict=True))


def parties(entrees: list[str]) -> list[list[str]]:
    """The places of a class's tables, a table from each type mark on.

    Offsets, which no source speaks of and which differ with the architecture, are left out; a place
    that no function has (an abstract class's destructors) shows as "-" where a used one follows.
    """
    tables = []
    for entree in entrees:
        nom = entree.split(None, 1)[1].removeprefix("(int (*)(...))")
        if nom.startswith("(& _ZTI"):
            tables.append([])
        elif tables:
            # The name of a thunk follows that of the class which needs it.
            tables[-1].append("-" if re.fullmatch(r"-?\d+", nom) else nom[max(nom.find("_ZT"), 0):])
    for table in tables:
        while table[-1] == "-":
            table.pop()
    return tables


def tables(vidage: str) -> str:
    """The functions of each class's virtual tables by their place, the two destructors first."""
    vues = {}
    for classe in CLASSES:
        trouve = re.search(rf"^Vtable for {classe}\n.*\n((?:\d.*\n)+)", vidage, re.M)
        vues[classe] = parties(trouve.group(1).splitlines())
    lisibles = demanglees({nom for classe in vues.values() for table in classe for nom in table
                           if nom.startswith("_Z")})
    lisibles["__cxa_pure_virtual"] = "(pure)"
    lignes = []
    for classe, siennes in vues.items():
        lignes.append(f"class {classe}")
        for table in siennes:
            lignes.append("  table")
            lignes += [f"    {rang:2} {lisibles.get(nom, nom)}" for rang, nom in enumerate(table)]
    return "\n".join(lignes) + "\n"


def sans_contrat(entete: pathlib.Path) -> list[str]:
    """The slots and exports of a header whose comment does not end in a contract of the right form."""
    forme = re.compile(r"\[((host|any); needs [^][]+|as `\w+`)\]\Z")
    sans, commentaire = [], []
    for ligne in entete.read_text().splitlines():
        if ligne.strip().startswith("///"):
            commentaire.append(ligne.strip().removeprefix("///").strip())
            continue
        if re.match(r"\s*(virtual|VOCALYNE_EXPORT) ", ligne) and not forme.search(" ".join(commentaire)):
            sans.append(f"{entete.name}: {ligne.strip()}")
        commentaire = []
    return sans


class Abi(unittest.TestCase):
    maxDiff = None

    def compare(self, nom: str, obtenu: str) -> None:
        reference = ICI / nom
        if os.environ.get("VOCALYNE_GOLDENS") == "write":
            reference.write_text(obtenu)
        self.assertEqual(reference.read_text(), obtenu)

    def test_every_slot_and_export_says_the_state_it_needs_and_its_thread(self):
        entetes = [DEPOT / "toolkit/Exports.h", *(DEPOT / "toolkit").glob("Interface*.h")]
        self.assertEqual(len(entetes), 4)
        self.assertEqual([], [faute for entete in entetes for faute in sans_contrat(entete)])

    def test_the_plug_in_exports_exactly_its_five_functions(self):
        noms = [ligne.split()[-1] for ligne in sortie("nm", "-D", "--defined-only", GREFFON).splitlines()]
        self.compare("symboles.txt", "".join(f"{nom}\n" for nom in sorted(noms)))

    def test_the_plug_in_needs_only_the_libraries_it_is_meant_to_need(self):
        dynamique = sortie("readelf", "-dW", GREFFON)
        noms = re.findall(r"\(NEEDED\).*\[(.*)\]", dynamique)
        # The sanitizers' own, in that build, and the loader where the architecture names it.
        noms = [n for n in noms if not re.match(r"lib(asan|ubsan)\.|ld-linux", n)]
        # Whichever JsonCpp the release has: its number changes with each.
        noms = [re.sub(r"^(libjsoncpp\.so\.)\d+$", r"\1N", n) for n in noms]
        self.compare("dependances.txt", "".join(f"{nom}\n" for nom in sorted(noms)))

    def test_the_plug_in_asks_the_host_s_libraries_by_their_exact_names(self):
        demandes = {ligne.split(None, 1)[1] for ligne in
                    sortie("nm", "-DC", "--undefined-only", GREFFON).splitlines()}
        self.assertEqual(set(), DEMANDES - demandes)

    def test_the_slots_of_the_interfaces_stand_in_their_frozen_order(self):
        self.compare("emplacements.txt", tables(pathlib.Path(TABLES).read_text()))


if __name__ == "__main__":
    unittest.main()
