# SPDX-License-Identifier: MPL-2.0
"""What one document goes through: read, selected in, corrected, saved, undone, and saved again."""

from collections import Counter

import banc
from .choix import Choix, Essai, en_texte, en_unites
from .constats import BUREAU, FAUTE, Bilan
from .controle import Controle
from .fichier.mots import Lecture, mots
from .fichier.ossature import Ossature
from .ouvert import Ouvert, PasAnnule, PasEnregistre

SELECTIONS = 5
AUTRE = "§"


def _compte(zones) -> Counter:
    return Counter(mot for zone in zones for mot in mots(zone.texte))


def _dis(essai: Essai) -> str:
    return (f"{essai.genre}: zone {essai.zone} [{essai.debut},{essai.fin}[ "
            f"{essai.original!r} -> {essai.ajout!r} in {essai.avant[:120]!r}")


class Epreuve:
    # What happens there is the office's own affair.
    SANS_EXTENSION = ("opening", "first save", "the same without the extension")

    def __init__(self, bureau: banc.Bureau, fais_client, bus: banc.Bus, fichier, bilan: Bilan,
                 corrections: int):
        self._bureau, self._bus, self._fichier, self._bilan = bureau, bus, fichier, bilan
        self._fais_client, self._client = fais_client, None
        self._choix = Choix(f"{bilan.graine}:{bilan.document}", corrections)
        self._faits: list[Essai] = []
        self._vues: dict[str, list[str]] = {}
        self.etape = "opening"

    def deroule(self) -> None:
        """All of it. Throws what the office throws when it goes away."""
        ouvert = Ouvert(self._bureau, self._fichier)
        try:
            self._essaie(ouvert)
        except PasEnregistre as erreur:
            self._note("enregistrement", f"{self.etape}: {erreur}")
        except banc.Appel as erreur:
            self._note("reponse", f"{self.etape}: {erreur.nom}: {erreur}")
        finally:
            for nature, exemples in self._vues.items():
                self._bilan.note(nature, FAUTE, exemples)
            if self._bureau.processus.poll() is None:
                ouvert.ferme()

    def _note(self, nature: str, exemple: str) -> None:
        self._vues.setdefault(nature, []).append(exemple)

    def _essaie(self, ouvert: Ouvert) -> None:
        try:
            self.etape = "first save"
            avant = ouvert.enregistre()
        except PasEnregistre as erreur:
            # Nobody has asked the extension for anything yet.
            self._bilan.note("enregistrement", BUREAU, [str(erreur)])
            return
        pas = ouvert.etapes()
        self.etape = "reading"
        self._client = self._fais_client(self._bus)
        self._client.prends(ouvert.modele)
        zones = self._client.zones()
        self._bilan.zones = len(zones)
        lecture = Lecture(avant)
        manques, surplus = self._mots(lecture, zones)
        self.etape = "selections"
        self._selectionne(zones)
        self.etape = "save after reading"
        lu = ouvert.enregistre()
        controle = Controle(self._bureau, self._fichier, self._bilan)
        controle.compare("lecture.change", Ossature(avant, True), Ossature(lu, True))
        zones = self._relis(zones)
        self.etape = "corrections"
        self._corrige(ouvert, zones)
        self.etape = "save after corrections"
        corrige = ouvert.enregistre()
        self._mots_corriges(corrige, manques, surplus, lecture.douteux)
        self.etape = "undo"
        try:
            ouvert.annule(pas)
        except PasAnnule as erreur:
            self._note("annulation.echec", str(erreur))
        controle.autrement = self._autrement(zones)
        self.etape = "save after undo"
        annule = ouvert.enregistre()
        # The read state is what corrections began with: what reading changed was told above.
        controle.faits = self._faits
        controle.compare_corriges(Ossature(lu, False), Ossature(corrige, False))
        controle.compare_annules(Ossature(lu, True), Ossature(annule, True))
        self.etape = "the same without the extension"
        ouvert.ferme()
        controle.juge()

    def _relis(self, zones) -> list:
        """A save may put other paragraphs in the place of those that were read."""
        relues = self._client.zones()
        if [z.texte for z in relues] != [z.texte for z in zones]:
            self._note("lecture.change", "the zones read otherwise after a save")
        self._bilan.note("cles", BUREAU, [
            avant.texte for avant, apres in zip(zones, relues) if avant.nom != apres.nom])
        return relues

    def _mots(self, lecture: Lecture, zones) -> tuple[Counter, Counter]:
        self._bilan.ecartes = {raison: sum(siens.values())
                               for raison, siens in sorted(lecture.ecartes.items())}
        lus = _compte(zones)
        manques = lecture.lus - lus
        surplus = lus - lecture.lus - lecture.douteux
        for mot in manques:
            self._note("mots.absents", f"{mot}: {lecture.ou[mot]}")
        for mot in surplus:
            raisons = [raison for raison, siens in lecture.ecartes.items() if mot in siens]
            self._note("mots.en-trop", f"{mot} ({', '.join(raisons) or 'not in the file'})")
        return manques, surplus

    def _mots_corriges(self, sauvegarde, manques: Counter, surplus: Counter, avant: Counter) -> None:
        """What the zones hold now stands in the file, but for what was told before. `avant`: words of
        which the file did not say then whether they are to be read; such a one may have made up for
        another that is not."""
        lecture, lus = Lecture(sauvegarde), _compte(self._client.zones())
        douteux = lecture.douteux | avant
        for mot in lecture.lus - lus - douteux - manques:
            self._note("mots.enregistres", f"{mot}: in the file, not in the zones")
        for mot in lus - lecture.lus - douteux - surplus:
            self._note("mots.enregistres", f"{mot}: in the zones, not in the file")

    def _selectionne(self, zones) -> None:
        for _ in range(SELECTIONS):
            choix = self._choix.selection(zones)
            if choix is None:
                return
            rang, debut, fin = choix
            zone = zones[rang]
            voulu = en_texte(en_unites(zone.texte)[debut:fin])
            try:
                self._client.SelectionneIntervalle(zone.nom, debut, fin)
            except banc.Appel:
                self._bilan.selections_refusees += 1
                continue
            lu = (self._client.DonneContenuSelection(), self._client.DonneDebutSelection(),
                  self._client.DonneFinSelection())
            if lu == (voulu, debut, fin):
                self._bilan.selections += 1
            else:
                self._note("selection", f"{(voulu, debut, fin)} reads {lu} in {zone.texte[:80]!r}")

    def _corrige(self, ouvert: Ouvert, zones) -> None:
        while essai := self._choix.suivant(zones):
            pas = ouvert.etapes()
            refus = self._demande(ouvert, zones[essai.zone], essai)
            lues = self._client.zones()
            if refus:
                self._bilan.refusees += 1
                self._bilan.refus[refus] = self._bilan.refus.get(refus, 0) + 1
                if self._ecarts(zones, lues) or ouvert.etapes() != pas:
                    self._note("refus.change", f"{refus}: {_dis(essai)}")
            else:
                self._bilan.faites += 1
                self._faits.append(essai)
                self._verifie(essai, zones, lues)
                # The office keeps a hundred steps.
                if ouvert.etapes() != pas + 1 and pas < 99:
                    self._note("annulation.pas", f"{ouvert.etapes() - pas} steps: {_dis(essai)}")
            zones = lues

    def _demande(self, ouvert: Ouvert, zone, essai: Essai) -> str:
        """Asks whether it may, then for it. Why not, or nothing."""
        peut = self._client.PeutCorriger(zone.nom, essai.debut, essai.fin, essai.original) or \
            self._se_refuse(ouvert, zone, essai)
        try:
            self._client.CorrigeDansTexteur(zone.nom, essai.debut, essai.fin, essai.ajout, False)
        except banc.Appel as erreur:
            if erreur.nom in ("Bureau", "Interne", "NoReply"):
                self._note("correction.echec", f"{erreur.nom}: {erreur}: {_dis(essai)}")
            return erreur.nom
        # One with all the old letters in it takes none away.
        if not peut and essai.original not in essai.ajout:
            self._note("peut", f"answered no, and it was done: {_dis(essai)}")
        return ""

    def _se_refuse(self, ouvert: Ouvert, zone, essai: Essai) -> bool:
        """"No" says that not every text may stand there: here is one of other letters, and more."""
        pas = ouvert.etapes()
        try:
            self._client.CorrigeDansTexteur(zone.nom, essai.debut, essai.fin,
                                            AUTRE * (essai.fin - essai.debut + 1), False)
        except banc.Appel:
            refusee = True
        else:
            refusee = False
            ouvert.annule(pas)
        self._client.zones()
        return refusee

    @staticmethod
    def _ecarts(avant, apres, sauf: str = "") -> list[str]:
        """Keys of zones that are not as they were, but for one."""
        vues = {zone.nom: (zone.texte, zone.styles) for zone in apres}
        gardees = {zone.nom: (zone.texte, zone.styles) for zone in avant}
        return [nom for nom in vues.keys() | gardees.keys()
                if nom != sauf and vues.get(nom) != gardees.get(nom)]

    def _verifie(self, essai: Essai, avant, apres) -> None:
        nom = avant[essai.zone].nom
        sienne = next((zone for zone in apres if zone.nom == nom), None)
        texte = sienne.texte if sienne else ""  # without a letter a cell is no zone
        if texte != essai.apres:
            self._note("correction.texte", f"{_dis(essai)} reads {texte!r}")
        for autre in self._ecarts(avant, apres, nom):
            textes = [next((z for z in zones if z.nom == autre), None) for zones in (avant, apres)]
            self._note("correction.voisine", f"{_dis(essai)}: {textes[0]} became {textes[1]}")

    def _autrement(self, zones) -> list[str]:
        """What the zones say otherwise than these."""
        voulus, lus = [z.texte for z in zones], [z.texte for z in self._client.zones()]
        dits = [f"{len(lus)} zones, were {len(voulus)}"] if len(lus) != len(voulus) else []
        return dits + [f"{voulu!r} is {lu!r}" for voulu, lu in zip(voulus, lus) if lu != voulu]
