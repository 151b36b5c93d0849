# SPDX-License-Identifier: MPL-2.0
"""The zone document."""

from ..registre import ACCORD, STYLES, ZONES, NonEssayee, regle


@regle("zones.forme", ZONES,
       "Le document de zones est du JSON en ASCII ; noms et textes sont en Base64 d'UTF-8.",
       "The zone document is JSON in ASCII; names and texts are Base64 of UTF-8.")
def _(e):
    hote, _ = e.lie()
    e.constats += e.lecture(hote).fautes


@regle("zones.cles", ZONES,
       "Chaque zone a une clé à elle, la même pour tous les appelants et après une correction.",
       "Each zone has a key of its own, the same for all callers and after a correction.")
def _(e):
    pose = e.pose(" Le chat dort")
    noms = [zone.nom for zone in e.zones(pose.hote)]
    if "" in noms or len(set(noms)) != len(noms):
        e.constate("une clé est vide ou sert deux fois", "a key is empty, or used twice")
    debut, fin = pose.place("chat")
    e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, debut, fin, "chien", False)
    e.egal(noms, [zone.nom for zone in e.zones(pose.hote)], "SynchronisePositions")
    e.egal(noms, [zone.nom for zone in e.lie()[1]], "SynchronisePositions")


@regle("zones.deux-fois", ZONES,
       "Sans changement entre elles, deux synchronisations donnent la même chose.",
       "With no change in between, two synchronisations give the same.")
def _(e):
    hote, _ = e.lie()
    premiere = e.reussit(hote, "SynchronisePositions", e.identifiant)
    e.egal(premiere, e.reussit(hote, "SynchronisePositions", e.identifiant), "SynchronisePositions")


@regle("zones.selection", ZONES,
       "La sélection est à sa place dans sa zone, et dans aucune autre.",
       "The selection stands at its place in its zone, and in no other.")
def _(e):
    pose = e.pose(" Un \U0001f600 gris dort")
    place = pose.place("\U0001f600 gris")
    e.reussit(pose.hote, "SelectionneIntervalle", pose.nom, *place)
    lecture = e.lecture(pose.hote)
    e.constats += lecture.bornes
    vues = {zone.nom: zone.selection for zone in lecture.zones if zone.selection != (0, 0)}
    e.egal({pose.nom: place}, vues, "DebutSel, FinSel")


@regle("zones.styles", STYLES,
       "Les plages de style sont en ordre, dans leur texte, fusionnées, sans bit inconnu.",
       "Style runs are in order, inside their text, merged, without an unknown bit.")
def _(e):
    hote, _ = e.lie()
    lecture = e.lecture(hote)
    if not lecture.plages and not any(zone.styles for zone in lecture.zones):
        raise NonEssayee("ce document n'a pas de style", "this document has no style")
    e.constats += lecture.plages


@regle("zones.positions", ZONES,
       "Les positions comptent en unités UTF-16 : un emoji en vaut deux, une marque combinante une.",
       "Positions count UTF-16 units: an emoji takes two, a combining mark one.")
def _(e):
    pose = e.pose(" Un \U0001f600 e\u0301le\u0300ve \U0001d11e dort")
    for mot in ("Un", "\U0001f600", "e\u0301le\u0300ve", "\U0001d11e", "dort"):
        debut, fin = pose.place(mot)
        e.repond(True, pose.hote, "PeutCorriger", pose.nom, debut, fin, mot)
        e.reussit(pose.hote, "SelectionneIntervalle", pose.nom, debut, fin)
        e.repond(mot, pose.hote, "DonneContenuSelection")


@regle("zones.autres", ACCORD,
       "Une correction ne change aucune autre zone.",
       "A correction changes no other zone.")
def _(e):
    hote, avant = e.lie()
    if len(avant) < 2:
        raise NonEssayee("ce document n'a qu'une zone", "this document has one zone only")
    pose = e.pose(" Le chat dort")
    zones = e.zones(pose.hote)
    e.egal([z.texte for z in avant if z.nom != pose.nom],
           [z.texte for z in zones if z.nom != pose.nom], "SynchronisePositions")
