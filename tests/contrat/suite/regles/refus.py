# SPDX-License-Identifier: MPL-2.0
"""CorrigeDansTexteur, where it must be refused: the right name, and nothing changed."""

from ..registre import ACCORD, ERREURS, NonEssayee, regle
from ..textes import BOUCHE_TROU, remplace, tranche, unites
from .droit import MOTS, moities, plages_fausses, zones_inconnues


@regle("refus.plage", ERREURS,
       "Une plage hors du texte, négative ou inversée reçoit PlageRefusee.",
       "A range out of the text, negative or reversed gets PlageRefusee.")
def _(e):
    pose = e.pose(MOTS)
    for debut, fin in plages_fausses(pose.entier):
        e.refuse("PlageRefusee", pose.hote, "CorrigeDansTexteur", pose.nom, debut, fin, "x", False)
    e.inchange(pose)


@regle("refus.paire", ERREURS,
       "Une plage qui coupe un emoji en deux reçoit PlageRefusee.",
       "A range that parts an emoji in two gets PlageRefusee.")
def _(e):
    pose = e.pose(MOTS)
    for debut, fin in moities(pose):
        hote, _ = e.lie()
        e.refuse("PlageRefusee", hote, "CorrigeDansTexteur", pose.nom, debut, fin, "x", False)
    e.inchange(pose)


@regle("refus.zone-inconnue", ERREURS,
       "Une zone qui n'existe pas reçoit ZoneInconnue.",
       "A zone that does not exist gets ZoneInconnue.")
def _(e):
    pose = e.pose(MOTS)
    for nom in zones_inconnues(pose):
        e.refuse("ZoneInconnue", pose.hote, "CorrigeDansTexteur", nom, 0, 0, "x", False)
    e.inchange(pose)


@regle("refus.zone-non-donnee", ERREURS,
       "Une zone que seul un autre appelant a reçue donne ZoneInconnue.",
       "A zone that only another caller was given gets ZoneInconnue.")
def _(e):
    pose = e.pose(MOTS)
    intrus = e.hote()
    for _ in range(2):
        e.refuse("ZoneInconnue", intrus, "CorrigeDansTexteur", pose.nom, *pose.place("chat"), "x",
                 False)
        e.reussit(intrus, "InitialiseTexteur", e.cle)
    e.inchange(pose)


@regle("refus.retour-chariot", ERREURS,
       "Un retour chariot dans le nouveau texte reçoit FinDeLigne.",
       "A carriage return in the new text gets FinDeLigne.")
def _(e):
    pose = e.pose(MOTS)
    for par in ("a\rb", "\r", "a\r\nb", "fin\r"):
        hote, _ = e.lie()
        e.refuse("FinDeLigne", hote, "CorrigeDansTexteur", pose.nom, *pose.place("chat"), par, False)
        e.inchange(pose)


@regle("refus.fin-de-ligne", ERREURS,
       "Une fin de ligne reçoit FinDeLigne, ou se relit telle quelle si PermetsRetourDeCharriot est "
       "vrai.",
       "A line end gets FinDeLigne, or reads back as it is where PermetsRetourDeCharriot is true.")
def _(e):
    pose = e.pose(MOTS)
    debut, fin = pose.place("chat")
    e.reussit(pose.hote, "SelectionneIntervalle", pose.nom, debut, fin)
    if e.reussit(pose.hote, "PermetsRetourDeCharriot"):
        e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, debut, fin, "a\nb", False)
        e.egal(remplace(pose.entier, debut, fin, "a\nb"), e.texte(pose), "CorrigeDansTexteur")
    else:
        e.refuse("FinDeLigne", pose.hote, "CorrigeDansTexteur", pose.nom, debut, fin, "a\nb", False)
        e.inchange(pose)


@regle("refus.controle", ERREURS,
       "Un caractère de commande reçoit FinDeLigne, ou se relit tel quel.",
       "A control character gets FinDeLigne, or reads back as it is.")
def _(e):
    pose = e.pose(MOTS)
    debut, fin = pose.place("chat")
    for lettre in ("\a", "\x01", "\x0b", "\x0c", "\x1f", "\x7f", "\u0085"):
        hote, _ = e.lie()
        reponse = hote.appelle("CorrigeDansTexteur", pose.nom, debut, fin, f"a{lettre}b", False)
        if reponse.erreur:
            e.egal("FinDeLigne", reponse.erreur, reponse.appel)
            e.inchange(pose)
        else:
            e.egal(remplace(pose.entier, debut, fin, f"a{lettre}b"), e.texte(pose), reponse.appel)
            e.retablis(pose)


@regle("refus.priorite", ERREURS,
       "De plusieurs raisons de refuser, la première de la liste est répondue.",
       "Of several reasons to refuse, the first of the list is answered.")
def _(e):
    pose = e.pose(MOTS)
    debut, fin = moities(pose)[0]
    e.refuse("ZoneInconnue", pose.hote, "CorrigeDansTexteur", "?", 2, 1, "a\rb", False)
    e.refuse("PlageRefusee", pose.hote, "CorrigeDansTexteur", pose.nom, debut, fin, "a\rb", False)
    e.inchange(pose)


@regle("refus.suite", ACCORD,
       "Après un refus, l'appelant synchronise avant de corriger plus loin dans la zone.",
       "After a refusal, the caller synchronises before it corrects further on in the zone.")
def _(e):
    pose = e.pose(" un deux trois")
    un, deux, trois = (pose.place(mot) for mot in ("un", "deux", "trois"))
    e.refuse("PlageRefusee", pose.hote, "CorrigeDansTexteur", pose.nom, deux[0],
             unites(pose.entier) + 1, "x", False)
    e.repond(False, pose.hote, "PeutCorriger", pose.nom, *trois, "trois")
    e.refuse("PlageRefusee", pose.hote, "CorrigeDansTexteur", pose.nom, *trois, "3", False)
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, *un, "un")
    e.inchange(pose)
    e.zones(pose.hote)
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, *trois, "trois")


@regle("refus.champ", ERREURS,
       "Ce qui détruirait un champ, une ancre ou une image est refusé, et PeutCorriger l'annonce.",
       "What would destroy a field, an anchor or an image is refused, and PeutCorriger says so.")
def _(e):
    hote, zones = e.lie()
    for zone in zones:
        if BOUCHE_TROU not in zone.texte:
            continue
        debut = unites(zone.texte[:zone.texte.index(BOUCHE_TROU)])
        assert tranche(zone.texte, debut, debut + 1) == BOUCHE_TROU
        if e.reussit(hote, "PeutCorriger", zone.nom, debut, debut + 1, BOUCHE_TROU):
            continue  # a letter like others to this companion
        e.refuse(("ChampDetruit", "Protege", "LectureSeule"), hote, "CorrigeDansTexteur", zone.nom,
                 debut, debut + 1, "x", False)
        e.egal(zone.texte, e.zone(e.zones(hote), zone.nom).texte, zone.nom)
        return
    raise NonEssayee("ce document n'a ni champ, ni ancre, ni image dans le texte",
                     "this document has no field, anchor or image in its text")


@regle("refus.lecture-seule", ERREURS,
       "Un document en lecture seule reçoit LectureSeule, et PeutCorriger y est faux.",
       "A read-only document gets LectureSeule, and PeutCorriger is false in it.")
def _(e):
    identifiant = e.options.lecture_seule
    if not identifiant:
        raise NonEssayee("il faut un document en lecture seule (--lecture-seule)",
                         "a read-only document is needed (--lecture-seule)")
    hote, zones = e.lie(identifiant)
    zone = max(zones, key=len)
    e.repond(False, hote, "PeutCorriger", zone.nom, 0, len(zone), zone.texte)
    e.refuse("LectureSeule", hote, "CorrigeDansTexteur", zone.nom, 0, 0, "x", False)
    e.refuse("LectureSeule", hote, "CorrigeDansTexteur", zone.nom, 1, 0, "\r", False)
    e.zones(hote, identifiant)
    e.reussit(hote, "SelectionneIntervalle", zone.nom, 0, len(zone))
    e.repond(zone.texte, hote, "DonneContenuSelection")
    e.refuse("LectureSeule", hote, "RemplaceEtReselectionne", "x")
    e.egal([z.texte for z in zones], [z.texte for z in e.zones(hote, identifiant)], identifiant)
