# SPDX-License-Identifier: MPL-2.0
"""What the small companion has to say of its documents beyond their text, breaches included."""

from .bureau import Refus
from .methodes import Methodes


class Recit(Methodes):
    def __init__(self, instance, fautes):
        super().__init__(instance, fautes)
        self.refus = {}  # by caller and zone, the error's name

    def PeutCorriger(self, qui, nom, debut, fin, attendu):
        permis = super().PeutCorriger(qui, nom, debut, fin, attendu)
        self.refus[qui, nom] = "" if permis else self._raison(qui, nom, debut, fin)
        return permis

    def _raison(self, qui, nom, debut, fin):
        try:
            document, zone, croyance = self.place(qui, nom)
            self.examine(document, zone)
            self.nouveau(zone, *self.localise(zone, croyance, debut, fin), "")
        except Refus as refus:
            return refus.nom
        return "PlageRefusee"

    def CorrigeDansTexteur(self, qui, nom, *reste):
        try:
            super().CorrigeDansTexteur(qui, nom, *reste)
            self.refus[qui, nom] = ""
        except Refus as refus:
            self.refus[qui, nom] = refus.nom
            raise

    def SynchronisePositions(self, qui, identifiant):
        if self.a("refus-perdu"):
            self.refus.clear()
        return super().SynchronisePositions(qui, identifiant)

    def DonneRefus(self, qui, nom):
        donnees = self.appelant(qui).croyances.values()
        if not any(nom in zones for zones in donnees) and not self.a("refus-de-tous"):
            raise Refus("ZoneInconnue")
        code = self.refus.get((qui, nom), "")
        if self.a("refus-de-tous"):
            code = next((c for (_, zone), c in self.refus.items() if zone == nom and c), "")
        if self.a("refus-tu"):
            code = ""
        return code, "refused" if code and not self.a("refus-sans-phrase") else ""
