# SPDX-License-Identifier: MPL-2.0
"""What the tools (dictionaries, guides) do with the selection."""

from ..registre import ACCORD, CONTRAT, ERREURS, regle
from ..textes import remplace, unites
from .droit import ENTIER_MAX, ENTIER_MIN, MOTS
from .selection import selectionne, vue


@regle("ajuste.decale", CONTRAT,
       "AjusteSelectionPourOutils déplace le début et la fin, chacun du sien.",
       "AjusteSelectionPourOutils moves the start and the end, each by its own shift.")
def _(e):
    pose = e.pose(MOTS)
    selectionne(e, pose, "chat")
    debut, fin = pose.place("chat")
    for (a, b), mot in (((-3, 0), "Le chat"), ((0, 3), "Le chat \U0001f600"),
                        ((3, -3), "chat"), ((0, 0), "chat"), ((4, 0), "")):
        e.reussit(pose.hote, "AjusteSelectionPourOutils", a, b)
        debut, fin = (pose.place(mot) if mot else (pose.place("chat")[1],) * 2)
        e.egal((mot, debut, fin), vue(e, pose.hote), f"AjusteSelectionPourOutils({a}, {b})")


@regle("ajuste.refuse", ACCORD,
       "Un décalage hors du texte, qui croise les bornes ou coupe une paire reçoit "
       "SelectionImpossible ; rien ne bouge.",
       "A shift out of the text, that crosses the bounds or parts a pair gets SelectionImpossible; "
       "nothing moves.")
def _(e):
    pose = e.pose(MOTS)
    attendu = selectionne(e, pose, "chat")
    _, debut, fin = attendu
    reste = unites(pose.entier) - fin
    for a, b in ((-debut - 1, 0), (0, reste + 1), (5, 0), (0, -5), (0, 2), (6, 2),
                 (ENTIER_MIN, 0), (0, ENTIER_MAX), (ENTIER_MIN, ENTIER_MAX),
                 (ENTIER_MAX, ENTIER_MIN), (ENTIER_MAX, ENTIER_MAX), (ENTIER_MIN, ENTIER_MIN)):
        e.refuse("SelectionImpossible", pose.hote, "AjusteSelectionPourOutils", a, b)
        e.egal(attendu, vue(e, pose.hote), f"AjusteSelectionPourOutils({a}, {b})")


@regle("remplace.reselectionne", CONTRAT,
       "RemplaceEtReselectionne met le mot à la place de la sélection, et le sélectionne.",
       "RemplaceEtReselectionne puts the word in place of the selection, and selects it.")
def _(e):
    pose = e.pose(MOTS)
    selectionne(e, pose, "chat")
    debut, fin = pose.place("chat")
    texte = pose.entier
    for mot in ("chiens", "\U0001f431e\u0301", "os", ""):
        e.reussit(pose.hote, "RemplaceEtReselectionne", mot)
        texte = remplace(texte, debut, fin, mot)
        fin = debut + unites(mot)
        e.egal((mot, debut, fin), vue(e, pose.hote), f"RemplaceEtReselectionne({mot!r})")
        e.egal(texte, e.texte(pose), f"RemplaceEtReselectionne({mot!r})")


@regle("remplace.fin-de-ligne", ERREURS,
       "Un retour chariot dans le mot reçoit FinDeLigne ; ni texte ni sélection ne changent.",
       "A carriage return in the word gets FinDeLigne; neither text nor selection changes.")
def _(e):
    pose = e.pose(MOTS)
    attendu = selectionne(e, pose, "chat")
    for mot in ("a\rb", "\r\n"):
        e.refuse("FinDeLigne", pose.hote, "RemplaceEtReselectionne", mot)
    e.egal(attendu, vue(e, pose.hote), "RemplaceEtReselectionne")
    e.inchange(pose)


@regle("remplace.autre-selection", ACCORD,
       "Si la sélection n'est plus celle que l'appelant connaît, PlageRefusee, et rien ne change.",
       "Where the selection is not the one that the caller knows any more: PlageRefusee, nothing "
       "changes.")
def _(e):
    pose = e.pose(MOTS)
    selectionne(e, pose, "chat")
    vue(e, pose.hote)
    autre = e.second(pose)
    attendu = selectionne(e, autre, "dort")
    e.refuse("PlageRefusee", pose.hote, "RemplaceEtReselectionne", "x")
    e.inchange(pose)
    e.egal(attendu, vue(e, pose.hote), "DonneContenuSelection")
    e.reussit(pose.hote, "RemplaceEtReselectionne", "dors")  # it has been told now
    e.egal(pose.entier.replace(" dort", " dors", 1), e.texte(pose), "RemplaceEtReselectionne")


@regle("remplace.texte-change", ACCORD,
       "Si le paragraphe a changé depuis que l'appelant connaît la sélection, PlageRefusee, ou "
       "SelectionImpossible si elle n'y est plus.",
       "Where the paragraph has changed since the caller knows the selection: PlageRefusee, or "
       "SelectionImpossible if it is there no more.")
def _(e):
    pose = e.pose(MOTS)
    selectionne(e, pose, "chat")
    autre = e.second(pose)
    e.reussit(autre.hote, "CorrigeDansTexteur", pose.nom, *pose.place("dort"), "mord", False)
    e.refuse(("PlageRefusee", "SelectionImpossible"), pose.hote, "RemplaceEtReselectionne", "x")
    e.inchange_apres(pose, "dort", "mord")
    e.zones(pose.hote)
    selectionne(e, pose, "chat")
    e.reussit(pose.hote, "RemplaceEtReselectionne", "chat")
    e.inchange_apres(pose, "dort", "mord")


@regle("remplace.non-dite", ACCORD,
       "Un appelant à qui la sélection n'a pas été dite remplace celle qui est là.",
       "A caller that was not told the selection replaces the one that is there.")
def _(e):
    pose = e.pose(MOTS)
    selectionne(e, pose, "chat")
    for methode, arguments in (("InitialiseTexteur", (e.cle,)), ("InitialisePourOutils", (True,)),
                               ("InitialisePourCorrecteur", ())):
        hote = e.hote()
        e.reussit(hote, "InitialiseTexteur", e.cle)
        e.reussit(hote, methode, *arguments)
        e.reussit(hote, "RemplaceEtReselectionne", "chat")
    e.inchange(pose)
