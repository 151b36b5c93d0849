# SPDX-License-Identifier: MPL-2.0
"""What can be found, in words for people; the worst first."""

from suite.langue import Bilingue

NATURES = {
    "mort": Bilingue("le bureau est tombé", "the office crashed"),
    "bloque": Bilingue("le bureau ne répond plus : arrêté", "the office hung: it was ended"),
    "enregistrement": Bilingue("ne s'enregistre pas", "cannot be saved"),
    "correction.voisine": Bilingue("une autre zone a changé", "another zone changed"),
    "correction.texte": Bilingue("la zone ne contient pas le texte voulu",
                                 "the zone does not hold the text that was asked for"),
    "refus.change": Bilingue("refusée, la correction a changé quelque chose",
                             "a refused correction changed something"),
    "annulation.echec": Bilingue("une étape ne s'annule pas", "a step cannot be undone"),
    "annulation.texte": Bilingue("annuler ne rend pas les mots", "undo does not give the words back"),
    "mots.enregistres": Bilingue("le fichier et les zones ne disent pas la même chose",
                                 "file and zones do not say the same"),
    "lecture.change": Bilingue("lire a changé le document", "reading changed the document"),
    "structure": Bilingue("corriger a changé plus que des lettres",
                          "correcting changed more than letters"),
    "annulation": Bilingue("annuler ne rend pas le fichier", "undo does not give the file back"),
    "annulation.pas": Bilingue("une correction n'est pas une étape d'annulation",
                               "a correction is not one undo step"),
    "mots.absents": Bilingue("mots du fichier qui ne sont pas lus", "words of the file that are not read"),
    "mots.en-trop": Bilingue("mots lus qui ne sont pas à corriger",
                             "words read that are not for correcting"),
    "peut": Bilingue("PeutCorriger a dit non à ce qui s'est fait",
                     "PeutCorriger said no to what was done"),
    "correction.echec": Bilingue("une correction a échoué", "a correction failed"),
    "reponse": Bilingue("un appel a échoué", "a call failed"),
    "selection": Bilingue("la sélection se relit autrement", "the selection reads otherwise"),
    "cles": Bilingue("enregistrer a remplacé des paragraphes : leurs clés sont autres",
                     "saving replaced paragraphs: their keys are others"),
    "ouverture": Bilingue("ne s'ouvre pas", "does not open"),
    "essai": Bilingue("l'essai lui-même a échoué", "the trial itself failed"),
}
