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
GREFFON = os.environ.get("VOCALYNE_GREFFON", "")
TABLES = os.environ.get("VOCALYNE_TABLES", "")
CLASSES = ["InterfaceTexteur", "InterfaceAgentTexteur", "InterfaceZoneDeTexte", "ImplAgentTexteur",
           "ImplZoneDeTexteTEMP", "ModuleProxyOOo", "ZoneDeTexteOOoProxy"]


def sortie(*commande: str) -> str:
    return subprocess.run(commande, check=True, capture_output=True, text=True).stdout


def fonction(entree: str) -> str:
    """The function of one line of a class dump, thunks told from what they lead to."""
    if "__cxa_pure_virtual" in entree:
        return "(pure)"
    if entree.endswith(")0"):
        return "(none: abstract)"
    # A thunk: its mangled name holds an offset that depends on the architecture.
    thunk = re.search(r"::_ZT(?:v0_n|hn)\d+_N(\w+)$", entree)
    if thunk:
        noms, reste = [], thunk.group(1)
        while reste and reste[0].isdigit():
            longueur = re.match(r"\d+", reste).group()
            reste = reste[len(longueur):]
            noms.append(reste[:int(longueur)])
            reste = reste[int(longueur):]
        if reste.startswith("D"):
            noms.append("~" + noms[-1])
        return "thunk to " + "::".join(noms)
    return re.sub(r"^.*\(\.\.\.\)\)", "", entree)


def tables(vidage: str) -> str:
    """The functions of each class's virtual tables, in slot order, a table after each type mark.

    Where a class is abstract, its destructors have no entry of their own.
    """
    lignes = []
    for classe in CLASSES:
        trouve = re.search(rf"^Vtable for {classe}\n.*\n((?:\d.*\n)+)", vidage, re.M)
        lignes.append(f"class {classe}")
        entrees = [ligne.split(None, 1)[1] for ligne in trouve.group(1).splitlines()]
        for entree, suivante in zip(entrees, entrees[1:] + [""]):
            if "_ZTI" in entree:
                lignes.append("  table")
                rang = 0
            # What stands before a type mark is a distance, the rest without a cast are offsets.
            elif "(*)(...))" in entree and "_ZTI" not in suivante:
                lignes.append(f"    {rang:2} {fonction(entree)}")
                rang += 1
    return "\n".join(lignes) + "\n"


class Abi(unittest.TestCase):
    maxDiff = None

    def compare(self, nom: str, obtenu: str) -> None:
        reference = ICI / nom
        if os.environ.get("VOCALYNE_GOLDENS") == "write":
            reference.write_text(obtenu)
        self.assertEqual(reference.read_text(), obtenu)

    def test_the_plug_in_exports_exactly_its_five_functions(self):
        noms = [ligne.split()[-1] for ligne in sortie("nm", "-D", "--defined-only", GREFFON).splitlines()]
        self.compare("symboles.txt", "".join(f"{nom}\n" for nom in sorted(noms)))

    def test_the_plug_in_needs_only_the_libraries_it_is_meant_to_need(self):
        dynamique = sortie("readelf", "-dW", GREFFON)
        noms = re.findall(r"\(NEEDED\).*\[(.*)\]", dynamique)
        # The sanitizers' own, in that build, and the loader where the architecture names it.
        noms = [n for n in noms if not re.match(r"lib(asan|ubsan)\.|ld-linux", n)]
        self.compare("dependances.txt", "".join(f"{nom}\n" for nom in sorted(noms)))

    def test_the_slots_of_the_interfaces_stand_in_their_frozen_order(self):
        self.compare("emplacements.txt", tables(pathlib.Path(TABLES).read_text()))


if __name__ == "__main__":
    unittest.main()
