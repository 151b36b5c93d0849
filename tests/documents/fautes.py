# SPDX-License-Identifier: MPL-2.0
"""Clients that stand between the tool and the extension and do one harm each, by plain UNO."""

import pathlib
import shutil
import threading

import uno
from gi.repository import Gio

import banc


class Fautif(banc.Client):
    """Holds on to the document that it is to harm."""

    bureau = None  # given by the test: the office at work

    def prends(self, document):
        self.document = document
        self.faites = 0
        return super().prends(document)

    def CorrigeDansTexteur(self, *arguments):  # noqa: N802: as on the wire
        self.appelle("CorrigeDansTexteur", *arguments)
        self.faites += 1
        self.apres()

    def apres(self):
        """Called after each correction that was made."""

    def paragraphe(self, rang):
        suite = self.document.Text.createEnumeration()
        for _ in range(rang):
            suite.nextElement()
        return suite.nextElement()


class ZoneTue(Fautif):
    def zones(self):
        return super().zones()[1:]


class ZoneInventee(Fautif):
    def zones(self):
        zones = super().zones()
        zones[0].texte += " inventé"
        return zones


class LectureQuiMarque(Fautif):
    def zones(self):
        if not self.document.Bookmarks.hasByName("trace"):
            signet = self.document.createInstance("com.sun.star.text.Bookmark")
            signet.setName("trace")
            self.document.Text.insertTextContent(self.document.Text.Start, signet, False)
        return super().zones()


class AutreTexte(Fautif):
    def CorrigeDansTexteur(self, zone, debut, fin, texte, automatique):  # noqa: N802
        super().CorrigeDansTexteur(zone, debut, fin, texte + "s", automatique)


class VoisineTouchee(Fautif):
    def apres(self):
        self.document.Text.End.setString("!")


class FormatPerdu(Fautif):
    def apres(self):
        for rang in range(3):
            self.paragraphe(rang).CharWeight = 100.0


class AnnulationPerdue(Fautif):
    def apres(self):
        self.document.UndoManager.clear()


class DeuxEtapes(Fautif):
    def apres(self):
        self.document.UndoManager.enterUndoContext("deux")
        self.paragraphe(0).ParaKeepTogether = self.faites % 2 == 1
        self.document.UndoManager.leaveUndoContext()


class RefusMenteur(Fautif):
    def apres(self):
        raise banc.Appel(Gio.DBusError.new_for_dbus_error("org.essai.Erreur.Protege", "non"))


class NonATort(Fautif):
    def PeutCorriger(self, *_):  # noqa: N802
        return False


class SelectionAilleurs(Fautif):
    def SelectionneIntervalle(self, zone, debut, fin):  # noqa: N802
        self.appelle("SelectionneIntervalle", zone, debut, fin - 1)


class EnregistrementEmpeche(Fautif):
    """Puts a file in the place of the folder that the next save goes to."""

    def apres(self):
        copie = pathlib.Path(uno.fileUrlToSystemPath(self.document.URL))
        if copie.parent.is_dir():
            shutil.rmtree(copie.parent)
            copie.parent.touch()


class Mortel(Fautif):
    def apres(self):
        self.bureau().tue()
        self.document.getTitle()


class SansFin(Fautif):
    def apres(self):
        while True:
            self.document.getTitle()
            threading.Event().wait(0.05)
