# SPDX-License-Identifier: MPL-2.0
"""A copy of a document, open in the office."""

import pathlib
import shutil
import tempfile

import uno
from com.sun.star.document import UndoFailedException

import banc
from .fichier.sauvegarde import Sauvegarde

FILTRES = (("com.sun.star.text.GlobalDocument", "writerglobal8", ".odm"),
           ("com.sun.star.text.WebDocument", "writer8", ".odt"),
           ("com.sun.star.text.TextDocument", "writer8", ".odt"),
           ("com.sun.star.sheet.SpreadsheetDocument", "calc8", ".ods"),
           ("com.sun.star.presentation.PresentationDocument", "impress8", ".odp"),
           ("com.sun.star.drawing.DrawingDocument", "draw8", ".odg"))


class PasOuvert(Exception):
    """The office cannot open it without a person, or it is of a kind that nobody corrects."""


class PasEnregistre(Exception):
    """The office cannot save it."""


class PasAnnule(Exception):
    """The office cannot undo a step."""


class Ouvert:
    """In a folder of its own: a lock file left by a copy beside it would keep the office from it."""

    def __init__(self, bureau: banc.Bureau, fichier: pathlib.Path):
        self._bureau = bureau
        self.dossier = pathlib.Path(tempfile.mkdtemp(dir=banc.DOSSIER))
        copie = self.dossier / fichier.name
        shutil.copyfile(fichier, copie)
        self._numero = 0
        self.modele = self._ouvre(copie)
        self._filtre = next(((nom, suffixe) for service, nom, suffixe in FILTRES
                             if self.modele.supportsService(service)), None)
        if not self._filtre:
            self.ferme()
            raise PasOuvert("not a text, spreadsheet, presentation or drawing")

    def _ouvre(self, copie: pathlib.Path):
        try:
            modele = self._bureau.bureau.loadComponentFromURL(
                uno.systemPathToFileUrl(str(copie)), "_blank", 0,
                (banc.pv("MacroExecutionMode", 0), banc.pv("UpdateDocMode", 0),
                 banc.pv("AsTemplate", False)))
        except banc.DisposedException:
            raise
        except Exception as erreur:  # whatever the office's filter throws
            raise PasOuvert(f"{type(erreur).__name__}: {erreur}") from None
        if modele is None:
            raise PasOuvert("the office opens nothing")
        return modele

    def enregistre(self) -> Sauvegarde:
        """Saves a copy as ODF; the document stays as it is, its undo list too."""
        self._numero += 1
        self._montre_les_pages()
        filtre, suffixe = self._filtre
        chemin = self.dossier / f"sauvegarde{self._numero}{suffixe}"
        try:
            self.modele.storeToURL(uno.systemPathToFileUrl(str(chemin)),
                                   (banc.pv("FilterName", filtre),))
        except banc.DisposedException:
            raise
        except Exception as erreur:  # whatever the office's filter throws
            raise PasEnregistre(f"{type(erreur).__name__}: {erreur}") from None
        return Sauvegarde(chemin)

    def _montre_les_pages(self) -> None:
        """A slide is laid out when it is looked at: tables grow, animations get their list."""
        if self._filtre[0] in ("impress8", "draw8"):
            pages, vue = self.modele.DrawPages, self.modele.CurrentController
            for rang in range(pages.Count):
                self._bureau.sur_le_fil_principal(
                    lambda r=rang: vue.setCurrentPage(pages.getByIndex(r)))

    def etapes(self) -> int:
        return len(self.modele.UndoManager.getAllUndoActionTitles())

    def annule(self, jusqua: int) -> None:
        """Undoes until so many steps are left, on the thread where a person would: from another one
        slides are not drawn anew as they should."""
        pile = self.modele.UndoManager
        while self.etapes() > jusqua and pile.isUndoPossible():
            titre = pile.getCurrentUndoActionTitle()
            try:
                self._bureau.sur_le_fil_principal(pile.undo)
            except UndoFailedException as erreur:
                raise PasAnnule(f"{titre}: {erreur.Message}") from None

    def ferme(self) -> None:
        if self.modele is not None:
            modele, self.modele = self.modele, None
            modele.close(True)
            shutil.rmtree(self.dossier, ignore_errors=True)
