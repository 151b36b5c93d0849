# SPDX-License-Identifier: MPL-2.0
"""What each method of the contract does in the small companion, breaches included."""

import base64
import json

from .bureau import Bureau, Croyance, Refus, coupe, en_texte, en_unites


def b64(texte: str) -> str:
    return base64.b64encode(texte.encode("utf-8", "surrogatepass")).decode()


class Methodes(Bureau):
    # Naming.

    def InitialiseTexteur(self, qui, cle):
        if self.par_cle(cle) is None:
            if self.a("erreur-denomme"):
                self.appelant(qui).document = ""
            if not self.a("document-par-defaut"):
                raise Refus("DocumentInconnu")
            cle = self.documents[0].cle
        self.appelant(qui).document = cle

    def DocEstMort(self, _qui, cle):
        if self.a("mort-erreur") and self.par_cle(cle) is None:
            raise Refus("DocumentInconnu")
        return self.par_cle(cle) is None

    def DonneTitreDocument(self, qui):
        return self.courant(qui).titre

    def DonneCheminDocument(self, qui):
        return "/essai/" + self.courant(qui).titre

    def ActivePourCorrecteur(self, qui):
        document = self.courant(qui)
        if not self.a("devant-fige"):
            self.documents.remove(document)
            self.documents.insert(0, document)

    ActivePourOutils = ActivePourCorrecteur

    def InitialisePourCorrecteur(self, qui):
        document = self.courant(qui)
        self.appelant(qui).dite = None
        if self.a("prepare-espace") or self.a("prepare-et-protege"):
            document.zones[0].texte += " "
            document.zones[0].protegee = self.a("prepare-et-protege")

    def InitialisePourOutils(self, qui, _dico):
        self.courant(qui)
        self.appelant(qui).dite = None

    def PermetsRetourDeCharriot(self, qui):
        self.courant(qui)
        return False

    def DonneDocuments(self, _qui):
        suffixe = "!" if self.a("titre-autre") else ""
        return json.dumps([{"id": f"{self.instance}~{d.cle}", "titre": d.titre + suffixe,
                            "chemin": "/essai/" + d.titre,
                            "genre": "tableau" if self.a("genre-libre") else "texte",
                            "langue": "français" if self.a("langue-en-mots") else "fr-FR"}
                           for d in self.documents])

    def Enregistre(self, _qui, identifiant):
        document = self.par_identifiant(identifiant)
        if document is None:
            raise Refus("DocumentInconnu")
        ecrit = not document.est_enregistre or self.a("enregistre-menteur")
        document.est_enregistre = True
        return ecrit

    # Letting go.

    def Suspends(self, qui):
        if self.a("suspends-oublie"):
            self.appelants.pop(qui, None)

    def RompsLienCorrecteur(self, qui):
        if self.a("lien-erreur"):
            self.courant(qui)
        appelant = self.appelant(qui)
        if not self.a("correcteur-garde"):
            appelant.croyances.pop(appelant.document, None)
        if self.a("lien-total"):
            appelant.croyances.clear()

    def RompsLienTexteur(self, qui):
        self.RompsLienCorrecteur(qui)
        if not self.a("texteur-garde"):
            self.appelant(qui).document = ""

    # Zones.

    def SynchronisePositions(self, qui, identifiant):
        document = self.par_identifiant(identifiant)
        if document is None:
            raise Refus("DocumentInconnu")
        appelant = self.appelant(qui)
        if not self.a("synchronise-sans-nommer"):
            appelant.document = document.cle
        self.compte += 1
        if self.a("cles-neuves"):
            for zone in document.zones:
                zone.nom = f"n{self.compte}{zone.nom[-1]}"
        if self.a("une-synchronisation"):
            appelant.croyances.clear()
        appelant.croyances[document.cle] = {
            zone.nom: Croyance(zone.texte, len(zone.texte)) for zone in document.zones}
        racine = {"Zones": [self._zone(document, rang) for rang in range(len(document.zones))]}
        if self.a("zones-datees"):
            racine["Compte"] = self.compte
        return json.dumps(racine | ({"Titre": "été"} if self.a("zones-accents") else {}),
                          ensure_ascii=not self.a("zones-accents"))

    def _zone(self, document, rang):
        zone = document.zones[rang]
        choisie, debut, fin = document.selection
        texte = b64(en_texte(zone.texte))
        if self.a("base64-coupe"):
            texte = texte[:8] + "\n" + texte[8:]
        if self.a("base64-nu"):
            texte = texte.rstrip("=")
        ecrite = {"Nom": b64(zone.nom), "Texte": texte}
        if rang == choisie or self.a("selection-partout"):
            ecrite |= {"DebutSel": debut, "FinSel": fin}
        if self.a("selection-texte"):
            ecrite |= {"DebutSel": "0"}
        plages = zone.styles[:]
        if plages and self.a("styles-coupes"):
            plages = [(3, 5, 1), (5, 7, 1)]
        if plages and self.a("styles-en-desordre"):
            plages.reverse()
        if plages and self.a("styles-dehors"):
            plages.append((12, 999, 2))
        if plages and self.a("styles-inconnus"):
            plages.append((12, 14, 128))
        return ecrite | {"InfosStyle": [{"Debut": d, "Fin": f, "Style": s} for d, f, s in plages]}

    # Corrections.

    def PeutCorriger(self, qui, nom, debut, fin, attendu):
        if self.a("peut-toujours"):
            return True
        try:
            document, zone, croyance = self.place(qui, nom)
        except Refus:
            if self.a("peut-zone-erreur"):
                raise
            return False
        try:
            self.examine(document, zone)
            debut, fin = self.localise(zone, croyance, debut, fin)
            self.nouveau(zone, debut, fin, "")
        except Refus:
            if self.a("peut-plage-erreur"):
                raise
            return False
        return zone.texte[debut:fin] == en_unites(attendu) or self.a("peut-sans-lire")

    def CorrigeDansTexteur(self, qui, nom, debut, fin, texte, automatique):
        document, zone, croyance = self.place(qui, nom)
        try:
            self.mesure(texte)
            if not self.a("protege-perce"):
                self.examine(document, zone)
            if self.a("lettres-avant-plage"):
                self.nouveau(zone, 0, 0, en_unites(texte))
            place = self.localise(zone, croyance, debut, fin)
            nouveau = self.nouveau(zone, *place, en_unites(texte))
        except Refus:
            if not self.a("refus-oublie"):
                croyance.borne = min(croyance.borne, max(0, min(debut, fin)))
            raise
        if automatique and self.a("automatique-ignore"):
            return
        debut_, fin_ = place
        if nouveau and fin_ > debut_ and self.a("remplace-et-espace"):
            nouveau += " "
        if not nouveau and self.a("efface-une-de-plus"):
            fin_ += fin_ > debut_
        if debut_ == fin_ == len(zone.texte) and self.a("insere-avant-la-fin"):
            debut_ = fin_ = debut_ - 1
        self._ecris(document, zone, debut_, fin_, nouveau)
        if self.a("ecrit-deux-fois"):
            document.zones[-1].texte += " "
        if not self.a("croyance-figee"):
            vue, taille = croyance.texte, fin - debut
            croyance.texte = vue[:debut] + en_unites(texte) + vue[fin:]
            croyance.borne += len(en_unites(texte)) - taille

    def _ecris(self, document, zone, debut, fin, texte):
        zone.texte = zone.texte[:debut] + texte + zone.texte[fin:]
        document.est_enregistre = False

    # The selection.

    def SelectionneIntervalle(self, qui, nom, debut, fin):
        document, zone, croyance = self.place(qui, nom)
        if self.a("selection-rognee"):
            debut, fin = max(0, debut), min(fin, len(zone.texte))
        debut, fin = self.localise(zone, croyance, debut, fin)
        if debut == fin and self.a("curseur-refuse"):
            raise Refus("PlageRefusee")
        decalage = 1 if self.a("selection-decalee") else 0
        document.selection = (document.zones.index(zone), debut, fin + decalage)
        self.appelant(qui).dite = self._vue(document)

    def _vue(self, document):
        rang, debut, fin = document.selection
        return rang, debut, fin, document.zones[rang].texte

    def _dis(self, qui):
        document = self.courant(qui)
        self.appelant(qui).dite = self._vue(document)
        return self.appelant(qui).dite

    def _en_reponse(self, unites):
        if unites.startswith("\ufeff") and not self.a("marque-d-ordre"):
            unites = "\a" + unites[1:]
        return en_texte(unites)

    def DonneContenuSelection(self, qui):
        _, debut, fin, texte = self._dis(qui)
        return self._en_reponse(texte[debut:fin])

    def DonneContexteSelection(self, qui):
        texte = self._dis(qui)[3]
        return self._en_reponse(texte[2:] if self.a("contexte-coupe") else texte)

    def DonneDebutSelection(self, qui):
        return self._dis(qui)[1]

    def DonneFinSelection(self, qui):
        return self._dis(qui)[2]

    DonneDebutSelectionDansSonContexte = DonneDebutSelection
    DonneFinSelectionDansSonContexte = DonneFinSelection

    def AjusteSelectionPourOutils(self, qui, delta_debut, delta_fin):
        document = self.courant(qui)
        rang, debut, fin = document.selection
        texte = document.zones[rang].texte
        debut, fin = debut + delta_debut, fin + (0 if self.a("ajuste-debut-seul") else delta_fin)
        if self.a("ajuste-rogne"):
            debut = max(0, min(debut, len(texte)))
            fin = max(debut, min(fin, len(texte)))
        if not 0 <= debut <= fin <= len(texte) or coupe(texte, debut) or coupe(texte, fin):
            raise Refus("SelectionImpossible")
        document.selection = (rang, debut, fin)
        self.appelant(qui).dite = self._vue(document)

    def RemplaceEtReselectionne(self, qui, mot):
        document = self.courant(qui)
        self.mesure(mot)
        rang, debut, fin, _ = self._vue(document)
        zone = document.zones[rang]
        self.examine(document, zone)
        dite = self.appelant(qui).dite
        if dite is None and self.a("remplace-dite-seule"):
            raise Refus("PlageRefusee")
        if self.a("remplace-texte-change") and dite is not None:
            dite = (*dite[:3], zone.texte)
        if dite is not None and dite != self._vue(document) and not self.a("remplace-aveugle"):
            raise Refus("PlageRefusee")
        nouveau = self.nouveau(zone, debut, fin, en_unites(mot))
        self._ecris(document, zone, debut, fin, nouveau)
        choisie = 0 if self.a("remplace-sans-choisir") else len(nouveau)
        document.selection = (rang, debut, debut + choisie)
        self.appelant(qui).dite = self._vue(document)
