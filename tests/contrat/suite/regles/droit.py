# SPDX-License-Identifier: MPL-2.0
"""PeutCorriger: may this be corrected?"""

from ..registre import ACCORD, NonEssayee, regle
from ..textes import coupe_paire, joint, tranche, unites

MOTS = " Le chat \U0001f600 dort"
ENTIER_MIN, ENTIER_MAX = -2**31, 2**31 - 1


def plages_fausses(texte: str) -> list[tuple[int, int]]:
    """Ranges that no text of this length has."""
    taille = unites(texte)
    return [(-1, 1), (0, taille + 1), (taille + 1, taille + 1), (2, 1), (-2, -1),
            (ENTIER_MIN, ENTIER_MAX), (ENTIER_MAX, ENTIER_MIN), (ENTIER_MAX, ENTIER_MAX),
            (ENTIER_MIN, ENTIER_MIN), (0, ENTIER_MAX), (ENTIER_MIN, 0)]


def moities(pose) -> list[tuple[int, int]]:
    """Ranges with a bound inside of the emoji among the words."""
    debut, fin = pose.place("\U0001f600")
    return [(debut, debut + 1), (debut + 1, fin), (debut + 1, debut + 1), (debut - 1, debut + 1)]


def zones_inconnues(pose) -> list[str]:
    return ["", "?", pose.nom + " ", " " + pose.nom, pose.nom + "0", "é\U0001f600", "x" * 100000]


@regle("peut.texte", ACCORD,
       "PeutCorriger est vrai là où se trouve la graphie attendue, faux où le texte diffère.",
       "PeutCorriger is true where the expected spelling stands, false where the text differs.")
def _(e):
    pose = e.pose(MOTS)
    debut, fin = pose.place("chat")
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, debut, fin, "chat")
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, debut, debut, "")
    for autre in ("Chat", "chats", "cha", "", "chát"):
        e.repond(False, pose.hote, "PeutCorriger", pose.nom, debut, fin, autre)
    e.repond(False, pose.hote, "PeutCorriger", pose.nom, debut + 1, fin + 1, "chat")
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, debut, fin, "chat")
    e.inchange(pose)


@regle("peut.plage", ACCORD,
       "PeutCorriger est faux, sans erreur, pour une plage hors du texte, inversée ou qui coupe une "
       "paire.",
       "PeutCorriger is false, and no error, for a range out of the text, reversed, or that parts a "
       "pair.")
def _(e):
    pose = e.pose(MOTS)
    for debut, fin in plages_fausses(pose.entier) + moities(pose):
        e.repond(False, pose.hote, "PeutCorriger", pose.nom, debut, fin, "")
        e.repond(False, pose.hote, "PeutCorriger", pose.nom, debut, fin, "chat")


@regle("peut.zone", ACCORD,
       "PeutCorriger est faux, sans erreur, pour une zone inconnue ou jamais donnée à l'appelant.",
       "PeutCorriger is false, and no error, for a zone that is unknown or was never given to the "
       "caller.")
def _(e):
    pose = e.pose(MOTS)
    for nom in zones_inconnues(pose):
        e.repond(False, pose.hote, "PeutCorriger", nom, 0, 0, "")
    intrus = e.hote()
    e.repond(False, intrus, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")
    e.reussit(intrus, "InitialiseTexteur", e.cle)
    e.repond(False, intrus, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")


@regle("peut.accord", ACCORD,
       "PeutCorriger dit d'une plage ce que CorrigeDansTexteur en fait.",
       "PeutCorriger says of a range what CorrigeDansTexteur does with it.")
def _(e):
    pose = e.pose(MOTS)
    longueur = unites(pose.entier)
    plages = [pose.place(mot) for mot in (MOTS, "chat", "\U0001f600", "dort")] + moities(pose)
    plages += [(0, 0), (longueur, longueur), (1, longueur + 1), (2, 1)]
    for debut, fin in plages:
        hote, _ = e.lie()  # a refusal would be remembered
        _compare(e, hote, pose.nom, pose.entier, debut, fin)
        e.retablis(pose)


def _compare(e, hote, nom: str, texte: str, debut: int, fin: int) -> None:
    valable = 0 <= debut <= fin <= unites(texte)
    attendu = tranche(texte, debut, fin) if valable else ""
    coupe = valable and (coupe_paire(texte, debut) or coupe_paire(texte, fin))
    permis = hote.appelle("PeutCorriger", nom, debut, fin, "" if coupe else attendu).valeur
    faite = hote.appelle("CorrigeDansTexteur", nom, debut, fin, "x", False)
    if (permis is True) != (not faite.erreur):
        e.constate(f"PeutCorriger : {permis} ; {faite.appel} : {faite}",
                   f"PeutCorriger: {permis}; {faite.appel}: {faite}")


@regle("peut.interdit", ACCORD,
       "Où PeutCorriger refuse même une lettre de plus, CorrigeDansTexteur refuse, et rien ne change.",
       "Where PeutCorriger refuses even one more letter, CorrigeDansTexteur refuses, and nothing "
       "changes.")
def _(e):
    hote, zones = e.lie()
    refusees = []
    for zone in zones[:500]:
        place = joint(zone.texte)
        if place is not None and not e.reussit(hote, "PeutCorriger", zone.nom, place, place, ""):
            refusees.append((zone, place))
    if not refusees:
        raise NonEssayee("toutes les zones peuvent être corrigées", "every zone may be corrected")
    for zone, place in refusees[:5]:
        e.refuse(("LectureSeule", "Protege", "Frappe", "DialogueOuvert", "ChampDetruit"),
                 hote, "CorrigeDansTexteur", zone.nom, place, place, "x", False)
    e.egal([z.texte for z in zones], [z.texte for z in e.zones(hote)], "SynchronisePositions")
