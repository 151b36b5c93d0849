# SPDX-License-Identifier: MPL-2.0
"""What the trial of a rule works with: callers, a place to write, and a notebook of findings."""

from dataclasses import dataclass

from . import textes
from .hote import Cible, Hote, Reponse
from .langue import Bilingue, abrege
from .lecture import Lecture, Zone
from .protocole import PROXY
from .registre import NonEssayee

LETTRES_MIN = 8  # of a zone that serves for trials


class Arret(Exception):
    """A finding after which the rest of the trial would say nothing."""


@dataclass
class Options:
    """What the person lets the suite do, beyond one document."""
    document: str  # the whole identifier
    autre: str | None = None
    lecture_seule: str | None = None
    enregistre: bool = False


class Pose:
    """A caller, and words of the suite's own in a zone of the document: `place("chat")` is where
    one stands now, by what this caller was last given."""

    def __init__(self, hote: Hote, zone: Zone, base: int, texte: str):
        self.hote, self.nom, self.base, self.texte = hote, zone.nom, base, texte
        self.entier = zone.texte

    def place(self, mot: str) -> tuple[int, int]:
        debut, fin = textes.place_de(self.texte, mot)
        return self.base + debut, self.base + fin


class Essai:
    def __init__(self, cible: Cible, options: Options):
        self.cible, self.options, self.journal = cible, options, cible.journal
        self.identifiant = options.document
        self.cle = self.identifiant.split("~", 1)[1]
        self.constats: list[Bilingue] = []
        self._hotes: list[Hote] = []

    # Callers.

    def hote(self) -> Hote:
        """A new one, that has named nothing."""
        self._hotes.append(Hote(self.cible))
        return self._hotes[-1]

    def lie(self, identifiant: str | None = None) -> tuple[Hote, list[Zone]]:
        """A new one that has named the document, and was given its zones."""
        hote = self.hote()
        identifiant = identifiant or self.identifiant
        self.reussit(hote, "InitialiseTexteur", identifiant.split("~", 1)[1])
        return hote, self.zones(hote, identifiant)

    def ferme(self) -> None:
        for hote in self._hotes:
            hote.ferme()

    def autre(self) -> str:
        if not self.options.autre:
            raise NonEssayee("il faut un second document (--autre)",
                             "a second document is needed (--autre)")
        return self.options.autre

    # A place to write.

    def pose(self, texte: str) -> Pose:
        """Puts words of the suite's own into the document, behind its first word that can be
        corrected: what follows then knows the text it works on."""
        hote, zones = self.lie()
        zone = self.zone_de_travail(hote, zones)
        base = textes.joint(zone.texte)
        reponse = hote.appelle("CorrigeDansTexteur", zone.nom, base, base, texte, False)
        return self.relit(Pose(hote, zone, base, texte), reponse,
                          textes.remplace(zone.texte, base, base, texte))

    def relit(self, pose: Pose, reponse: Reponse, attendu: str) -> Pose:
        """The same words for the same caller, with a fresh synchronisation."""
        zone = self.zone(self.zones(pose.hote), pose.nom)
        if reponse.erreur or zone.texte != attendu:
            raise NonEssayee(f"les mots d'essai n'ont pu être écrits : {reponse}",
                             f"the words to try with could not be written: {reponse}")
        pose.entier = zone.texte
        return pose

    def retablis(self, pose: Pose) -> None:
        """The zone as it was when the words were put in, whatever was done to it since."""
        hote, zones = self.lie()
        texte = self.zone(zones, pose.nom).texte
        if texte != pose.entier:
            self.reussit(hote, "CorrigeDansTexteur", pose.nom,
                         *textes.edition(texte, pose.entier), False)
        hote.ferme()

    def second(self, pose: Pose) -> Pose:
        """Another caller, that was given the same words."""
        hote, zones = self.lie()
        return Pose(hote, self.zone(zones, pose.nom), pose.base, pose.texte)

    def zone_de_travail(self, hote: Hote, zones: list[Zone]) -> Zone:
        """The first zone, a plain one if there is any, whose first word may be corrected."""
        bonnes = [z for z in zones if len(z) >= LETTRES_MIN and textes.joint(z.texte) is not None
                  and textes.BOUCHE_TROU not in z.texte]
        for zone in sorted(bonnes, key=lambda z: bool(z.styles))[:100]:
            place = textes.joint(zone.texte)
            if hote.appelle("PeutCorriger", zone.nom, place, place, "").valeur is True:
                return zone
        raise NonEssayee(f"aucune zone de {LETTRES_MIN} lettres qui puisse être corrigée",
                         f"no zone of {LETTRES_MIN} letters that may be corrected")

    # Reading.

    def zones(self, hote: Hote, identifiant: str | None = None) -> list[Zone]:
        return self.lecture(hote, identifiant).zones

    def lecture(self, hote: Hote, identifiant: str | None = None) -> Lecture:
        lue = hote.zones(identifiant or self.identifiant)
        if isinstance(lue, Reponse):
            self.constate(f"{lue.appel} : {lue}", f"{lue.appel}: {lue}")
            raise Arret
        return lue

    def zone(self, zones: list[Zone], nom: str) -> Zone:
        for zone in zones:
            if zone.nom == nom:
                return zone
        self.constate(f"la zone {nom!r} n'est plus là", f"the zone {nom!r} is gone")
        raise Arret

    def texte(self, pose: Pose) -> str:
        """What stands in the zone, read by a caller that has nothing to do with the trial."""
        temoin, zones = self.lie()
        temoin.ferme()
        return self.zone(zones, pose.nom).texte

    # Findings.

    def constate(self, francais: str, anglais: str) -> None:
        self.constats.append(Bilingue(francais, anglais))

    def egal(self, attendu, recu, quoi: str) -> bool:
        if attendu != recu or isinstance(attendu, bool) != isinstance(recu, bool):
            self.constate(f"{quoi} : {abrege(attendu)} attendu, {abrege(recu)} reçu",
                          f"{quoi}: {abrege(attendu)} expected, {abrege(recu)} received")
            return False
        return True

    def reussit(self, hote: Hote, methode: str, *arguments, interface: str = PROXY):
        """The value of a call that must succeed; the trial ends where it does not."""
        reponse = hote.appelle(methode, *arguments, interface=interface)
        if reponse.erreur:
            self.constate(f"{reponse.appel} : erreur {reponse}", f"{reponse.appel}: error {reponse}")
            raise Arret
        if not reponse.est_du_bon_type:
            raise NonEssayee(f"{reponse.appel} : réponse d'un autre type (voir reponse.type)",
                             f"{reponse.appel}: a reply of another type (see reponse.type)")
        return reponse.valeur

    def repond(self, attendu, hote: Hote, methode: str, *arguments) -> bool:
        """The call must reply with that value."""
        reponse = hote.appelle(methode, *arguments)
        return self.egal(attendu, reponse.erreur or reponse.valeur, reponse.appel)

    def refuse(self, erreur: str | tuple[str, ...], hote: Hote, methode: str, *arguments,
               interface: str = PROXY) -> bool:
        """The call must be refused with (one of) that error's name."""
        erreurs = (erreur,) if isinstance(erreur, str) else erreur
        reponse = hote.appelle(methode, *arguments, interface=interface)
        if reponse.erreur in erreurs:
            return True
        voulu = " / ".join(erreurs)
        self.constate(f"{reponse.appel} : l'erreur {voulu} attendue, {reponse} reçu",
                      f"{reponse.appel}: the error {voulu} expected, {reponse} received")
        return False

    def inchange(self, pose: Pose) -> None:
        self.egal(pose.entier, self.texte(pose), pose.nom)

    def inchange_apres(self, pose: Pose, mot: str, par: str) -> None:
        """Of the zone, that one word alone has changed."""
        debut, fin = pose.place(mot)
        self.egal(textes.remplace(pose.entier, debut, fin, par), self.texte(pose), pose.nom)
