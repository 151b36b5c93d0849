# SPDX-License-Identifier: MPL-2.0
"""CorrigeDansTexteur, where it is done."""

from ..protocole import UNITES_REMPLACEMENT_MAX
from ..registre import ACCORD, CONTRAT, ZONES, regle
from ..textes import remplace, unites

MOTS = " Le chat \U0001f600 dort"
LONGUEUR = UNITES_REMPLACEMENT_MAX // 8 * 8  # units


def corrige(e, pose, debut: int, fin: int, par: str, automatique: bool = False) -> None:
    """A correction that must be done, and must read back to the letter."""
    e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, debut, fin, par, automatique)
    attendu = remplace(pose.entier, debut, fin, par)
    recu = e.texte(pose)
    e.egal(attendu, recu, f"CorrigeDansTexteur({debut}, {fin}, {par[:30]!r})")
    pose.entier = recu


@regle("corrige.insere", CONTRAT,
       "Une insertion en tête, au milieu, à la fin de la zone se relit telle quelle.",
       "An insertion at the start, in the middle, at the end of the zone reads back as it is.")
def _(e):
    pose = e.pose(MOTS)
    corrige(e, pose, *[pose.place("chat")[0]] * 2, "beau ")
    corrige(e, pose, *[unites(pose.entier)] * 2, " fin")
    corrige(e, pose, 0, 0, "Or ")


@regle("corrige.remplace", CONTRAT,
       "Un remplacement, plus court, plus long ou pareil, se relit tel quel.",
       "A replacement, shorter, longer or the same, reads back as it is.")
def _(e):
    pose = e.pose(MOTS)
    debut, fin = pose.place("chat")
    for par in ("chatons", "chat", "os", "os"):
        corrige(e, pose, debut, fin, par)
        fin = debut + unites(par)


@regle("corrige.efface", CONTRAT,
       "Un remplacement vide efface la plage, et elle seule.",
       "An empty replacement deletes the range, and nothing else.")
def _(e):
    pose = e.pose(MOTS)
    corrige(e, pose, *pose.place("chat "), "")
    corrige(e, pose, *[pose.base] * 2, "")


@regle("corrige.automatique", CONTRAT,
       "Une correction automatique change le texte comme une autre.",
       "An automatic correction changes the text as any other does.")
def _(e):
    pose = e.pose(MOTS)
    corrige(e, pose, *pose.place("chat"), "chats", automatique=True)


@regle("corrige.positions", ZONES,
       "Devant, derrière et à la place d'un emoji ou d'une marque, les corrections tombent juste.",
       "In front of, behind and in place of an emoji or a mark, corrections fall in the right place.")
def _(e):
    pose = e.pose(" Un \U0001f600 e\u0301le\u0300ve \U0001d11e dort bien")
    corrige(e, pose, *pose.place("bien"), "mal")
    corrige(e, pose, *pose.place("\U0001d11e"), "\U0001f431")
    corrige(e, pose, *pose.place("e\u0301le\u0300ve"), "e\u0301le\u0301phant")
    corrige(e, pose, *pose.place("Un"), "\U0001f431 Une")


@regle("corrige.lettres", CONTRAT,
       "Tabulations, espaces insécables et lettres de toute écriture passent telles quelles.",
       "Tabs, no-break spaces and letters of any script pass as they are.")
def _(e):
    pose = e.pose(MOTS)
    for par in ("a\tb", "«\u00a0œuvre\u202f»", "\ufb01n", "مرحبا", "语言", "\u1112\u1161\u11ab"):
        debut, _ = pose.place("chat")
        corrige(e, pose, debut, debut, par)
        corrige(e, pose, debut, debut + unites(par), "")


@regle("corrige.suite", ACCORD,
       "Sans synchroniser, l'appelant compte avec ses propres corrections, et elles seules.",
       "Without synchronising, the caller counts with its own corrections, and those alone.")
def _(e):
    pose = e.pose(" un deux trois quatre")
    for mot, par in (("deux", "deuxième"), ("quatre", "4"), ("un", "une \U0001f600"), ("trois", "")):
        corrige(e, pose, *pose.place(mot), par)
        pose.texte = pose.texte.replace(mot, par, 1)
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, *pose.place("deuxième"), "deuxième")


@regle("corrige.ordre", CONTRAT,
       "Des corrections envoyées sans attendre sont faites dans l'ordre de leur envoi.",
       "Corrections that are sent without waiting are done in the order they were sent.")
def _(e):
    pose = e.pose(MOTS)
    attendu = pose.entier
    place, _ = pose.place("chat")
    for mot in ("a", "bc", "def", "", "ghij"):
        pose.hote.lance("CorrigeDansTexteur", pose.nom, place, place, mot, True)
        attendu = remplace(attendu, place, place, mot)
        place += unites(mot)
    lue = e.zone(e.zones(pose.hote), pose.nom)
    e.egal(attendu, lue.texte, "CorrigeDansTexteur x 5")


@regle("corrige.longue", CONTRAT,
       f"Un texte de {LONGUEUR} unités fait l'aller et le retour.",
       f"A text of {LONGUEUR} units makes the way there and back.")
def _(e):
    pose = e.pose(MOTS)
    long = "\U0001f600é mot " * (LONGUEUR // 8)
    debut, fin = pose.place("chat")
    corrige(e, pose, debut, fin, long)
    corrige(e, pose, debut, debut + unites(long), "chat")


@regle("corrige.trop-grand", ACCORD,
       f"Un texte de plus de {UNITES_REMPLACEMENT_MAX} unités reçoit TropGrand, où que ce soit.",
       f"A text of more than {UNITES_REMPLACEMENT_MAX} units gets TropGrand, wherever it is to go.")
def _(e):
    pose = e.pose(MOTS)
    enorme = "a" * (UNITES_REMPLACEMENT_MAX + 1)
    debut, fin = pose.place("chat")
    e.refuse("ZoneInconnue", pose.hote, "CorrigeDansTexteur", "?", debut, fin, enorme, False)
    for texte in (enorme, enorme[1:] + "\r", "\U0001f600" * (UNITES_REMPLACEMENT_MAX // 2 + 1)):
        hote, _ = e.lie()
        e.refuse("TropGrand", hote, "CorrigeDansTexteur", pose.nom, fin, debut, texte, False)
        e.inchange(pose)
    hote, _ = e.lie()
    e.reussit(hote, "SelectionneIntervalle", pose.nom, debut, fin)
    e.refuse("TropGrand", hote, "RemplaceEtReselectionne", enorme)
    e.inchange(pose)
