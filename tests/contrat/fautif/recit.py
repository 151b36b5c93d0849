# SPDX-License-Identifier: MPL-2.0
"""What the small companion has to say of its documents beyond their text, breaches included."""

import json

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

    def ouvert(self, identifiant):
        document = self.par_identifiant(identifiant)
        if document is None:
            raise Refus("DocumentInconnu")
        return document

    def DonneNomsDeZones(self, qui, identifiant):
        document = self.ouvert(identifiant)
        if self.a("noms-nomment"):
            self.appelant(qui).document = document.cle
        donnees = self.appelant(qui).croyances.get(document.cle, {})
        if self.a("noms-pour-tous"):
            donnees = [zone.nom for zone in document.zones]
        return json.dumps({nom: "" if self.a("noms-vides") else f"line {rang}"
                           for rang, nom in enumerate(donnees, 1)})

    def DonneRapport(self, _qui, identifiant):
        if self.a("rapport-par-defaut") and self.par_identifiant(identifiant) is None:
            identifiant = f"{self.instance}~{self.documents[0].cle}"
        document = self.ouvert(identifiant)
        protegees = sum(zone.protegee for zone in document.zones)
        return json.dumps({
            "genre": "texte", "zones": len(document.zones) + self.a("rapport-faux-compte"),
            "lectureSeule": document.lecture_seule,
            "laisses": [{"code": "protege", "nombre": protegees,
                         "phrase": "" if self.a("rapport-muet") else f"{protegees} protected"}]
            if protegees else []})

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
