# SPDX-License-Identifier: MPL-2.0
"""Documents of every construct go through reading, corrections, saving and undo unharmed."""

import unittest

import banc
from documents.constats import FAUTE
from documents.place import Place
from fabrique import DOCUMENTS, fabrique

CORRECTIONS = 12


def setUpModule():
    global FICHIERS
    FICHIERS = {}
    bus = banc.Bus()
    bureau = banc.Bureau(bus.adresse)
    try:
        for nom in DOCUMENTS:
            FICHIERS[nom] = fabrique(bureau, nom, banc.DOSSIER)
    finally:
        bureau.ferme()
        bus.ferme()
    global PLACE
    PLACE = Place(patience=120, par_bureau=8)
    unittest.addModuleCleanup(PLACE.ferme)


class Constructions(unittest.TestCase):
    def verifie(self, nom):
        for fichier in FICHIERS[nom]:
            with self.subTest(fichier.name):
                bilan = PLACE.essaie(fichier, fichier.name, 1, CORRECTIONS)
                self.assertEqual([c for c in bilan.constats if c.genre == FAUTE], [])
                self.assertGreater(bilan.faites, 0)


def _essai(nom):
    return lambda self: self.verifie(nom)


for _nom in DOCUMENTS:
    setattr(Constructions, f"test_{_nom.replace('.', '_')}", _essai(_nom))
