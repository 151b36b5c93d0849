# SPDX-License-Identifier: MPL-2.0
"""Measures how alive the office stays while callers have it work; README.md says what each line means.
Started by bench/lance-extension, in a folder with all it needs.

usage: reactivite.py [--essai]
"""
import contextlib
import ctypes
import os
import signal
import statistics
import sys
import threading
import time

import banc
import documents
import ecran
from mesures import ESSAI, GRAND, Greffon, Ligne, passe
from rafale import Rafale

CASES = 60000 if not ESSAI else 100
RAFALE = 20000 if not ESSAI else 50
APPELS = 400 if not ESSAI else 8
TOURS = 5 if not ESSAI else 1


class Sonde:
    """How long whoever needs the office's lock waits for it, while the block runs, in ms: as long as a
    piece of work on the main thread lasts."""

    def __init__(self, document):
        self.document, self.attentes, self.arret = document, [], threading.Event()
        self.fil = threading.Thread(target=self._sonde)

    def _sonde(self):
        while not self.arret.is_set():
            self.attentes.append(passe(self.document.isModified))

    def __enter__(self):
        self.fil.start()
        return self

    def __exit__(self, *_):
        self.arret.set()
        self.fil.join()

    def centile(self, part):
        pieces = sorted(a for a in self.attentes if a > 1) or [0]
        return pieces[min(len(pieces) - 1, int(len(pieces) * part))]


class Bureau:
    """An office on a bus of its own, and the plug-in in a process of its own on what is opened."""

    def __init__(self, pile):
        self.bus = banc.Bus()
        pile.callback(self.bus.ferme)
        self.bureau = banc.Bureau(self.bus.adresse)
        pile.callback(self.bureau.ferme)
        self.pile = pile

    def greffon(self, document):
        client = banc.Client(self.bus)
        greffon = Greffon(client.prends(document), self.bus.adresse)
        self.pile.callback(greffon.ferme)
        return greffon

    def texte(self, nombre):
        chemin = banc.DOSSIER / f"r{nombre}.fodt"
        documents.ecris(chemin, nombre)
        document = self.bureau.ouvre(chemin.as_uri())
        document.refresh()  # laid out to its end
        return document

    def classeur(self, nombre):
        document = self.bureau.ouvre("private:factory/scalc")
        document.Sheets[0].getCellRangeByPosition(0, 0, 9, nombre // 10 - 1).setFormulaArray(
            tuple(tuple(f"case {ligne} {c} et des mots" for c in range(10)) for ligne in range(nombre // 10)))
        return document


def attentes(bureau, document, nombre, quoi):
    """Reading after reading, and meanwhile whoever else needs the office."""
    greffon = bureau.greffon(document)
    greffon.lis(nombre)  # makes the keys
    durees = []
    with Sonde(document) as sonde:
        for _ in range(TOURS):
            durees.append(greffon.lis(nombre))
    lecture = statistics.median(durees)
    yield Ligne(f"longest wait during a reading / the reading, {quoi}", sonde.centile(1), lecture, 0.35)
    yield Ligne(f"  99th percentile of the waits, {quoi}", sonde.centile(0.99), lecture, 0.2)


def equite(bureau, document):
    """One call of another caller, while thousands of one's are there."""
    inonde, patient = banc.Client(bureau.bus), banc.Client(bureau.bus)
    for client in (inonde, patient):
        client.prends(document)
    seul = statistics.median(passe(patient.DonneTitreDocument) for _ in range(21))
    debut = time.perf_counter()
    rafale = Rafale(inonde).envoie("DonneTitreDocument", fois=RAFALE)
    attente = passe(patient.DonneTitreDocument)
    rafale.attends()
    rafale_ms = (time.perf_counter() - debut) * 1000
    yield Ligne(f"another's call amid {RAFALE} of one caller / those", attente, rafale_ms, 0.5)
    yield Ligne("  the same / alone", attente, seul, None, f"{rafale.faits} done, {rafale.refus} refused")


def fermeture(appels, fige):
    """Milliseconds that an office takes to close, with calls waiting."""
    with contextlib.ExitStack() as pile:
        bureau = Bureau(pile)
        document = bureau.texte(200 if not ESSAI else 5)
        rafales = []
        for _ in range(4 if appels else 0):
            client = banc.Client(bureau.bus)
            client.prends(document)
            rafales.append(Rafale(client).envoie("SynchronisePositions", client.id, signature="(s)",
                                                 fois=appels // 4).part())
        if fige:
            os.kill(bureau.bus.processus.pid, signal.SIGSTOP)
            pile.callback(os.kill, bureau.bus.processus.pid, signal.SIGCONT)
        return passe(bureau.bureau.ferme)


class Ecran(ecran.Ecran):
    """A screen whose pixels are looked at, and whose keyboard is pressed, without a process between."""

    def __init__(self):
        super().__init__()
        self.x = ctypes.CDLL("libX11.so.6")
        self.xtst = ctypes.CDLL("libXtst.so.6")
        for fonction in (self.x.XOpenDisplay, self.x.XGetImage):
            fonction.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.d = ctypes.c_void_p(self.x.XOpenDisplay(self.nom.encode()))
        self.racine = ctypes.c_ulong(self.x.XDefaultRootWindow(self.d))
        self.touche_x = self.x.XKeysymToKeycode(self.d, ctypes.c_ulong(ord("x")))

    def regarde(self):
        """The pixels of the text, right of where the caret blinks."""
        x, y, largeur, hauteur = 450, 150, 300, 400
        image = ctypes.c_void_p(self.x.XGetImage(self.d, self.racine, x, y, largeur, hauteur,
                                                 ctypes.c_ulong(0xFFFFFFFF), 2))
        octets = ctypes.string_at(ctypes.c_void_p.from_address(image.value + 16).value, largeur * hauteur * 4)
        self.x.XDestroyImage(image)
        return octets

    def tape(self):
        for appuyee in (1, 0):
            self.xtst.XTestFakeKeyEvent(self.d, self.touche_x, appuyee, 0)
        self.x.XFlush(self.d)

    def tape_et_attends(self):
        """Milliseconds until the letter shows: all behind it on its line moves."""
        avant = self.regarde()
        debut = time.perf_counter()
        self.tape()
        banc.attends(lambda: self.regarde() != avant, "the letter to show")
        return (time.perf_counter() - debut) * 1000

    def calme(self):
        """Waits until nothing moves for a second."""
        vue, depuis = self.regarde(), time.perf_counter()
        while time.perf_counter() - depuis < 1:
            time.sleep(0.05)
            maintenant = self.regarde()
            if maintenant != vue:
                vue, depuis = maintenant, time.perf_counter()


def frappe():
    """A letter typed in a window, alone and while the document is read."""
    with contextlib.ExitStack() as pile:
        vue = Ecran()
        pile.callback(vue.ferme)
        bureau = Bureau.__new__(Bureau)
        bureau.pile, bureau.bus = pile, banc.Bus()
        pile.callback(bureau.bus.ferme)
        bureau.bureau = banc.Bureau(bureau.bus.adresse, options=(), environnement={
            "DISPLAY": vue.nom, "SAL_USE_VCLPLUGIN": "gtk3", "GDK_BACKEND": "x11", "NO_AT_BRIDGE": "1"})
        pile.callback(bureau.bureau.ferme)
        chemin = banc.DOSSIER / "frappe.fodt"
        documents.ecris(chemin, GRAND)
        document = bureau.bureau.ouvre(chemin.as_uri(), banc.pv("OnMainThread", True))
        document.CurrentController.Frame.ContainerWindow.setPosSize(0, 0, 1000, 800, 15)
        greffon = bureau.greffon(document)
        document.refresh()
        vue.touche("Writer", "ctrl+Home")
        vue.calme()
        seule, pendant, lectures = [], [], []
        for _ in range(TOURS):
            greffon.lis(GRAND)
            vue.calme()
            seule.append(vue.tape_et_attends())
            vue.calme()
            fil = threading.Thread(target=lambda: lectures.append(greffon.lis(GRAND)))
            fil.start()
            time.sleep(0.1 if not ESSAI else 0)
            pendant.append(vue.tape_et_attends())
            fil.join()
        yield Ligne(f"a letter typed during a reading / the reading, {GRAND}", max(pendant),
                    statistics.median(lectures), 0.35, f"median {statistics.median(pendant):.0f} ms")
        yield Ligne("  the same / a letter typed at rest", statistics.median(pendant),
                    statistics.median(seule), None)


def lignes():
    with contextlib.ExitStack() as pile:
        bureau = Bureau(pile)
        texte = bureau.texte(GRAND)
        yield from attentes(bureau, texte, GRAND, f"{GRAND} paragraphs")
        yield from attentes(bureau, bureau.classeur(CASES), CASES, f"{CASES} cells")
        yield from equite(bureau, texte)
    repos = fermeture(0, fige=False)
    yield Ligne(f"closing with {APPELS} calls waiting / at rest", fermeture(APPELS, fige=False), repos, 4)
    yield Ligne("  the same on a bus that stands still", fermeture(APPELS, fige=True), repos, 4)
    yield from frappe()


def main() -> int:
    print(f"{'ratio':<66} {'measured':>10} {'reference':>10} {'ratio':>8} {'limit':>7}   (ms)", flush=True)
    manquees = sum(not ligne.imprime() for ligne in lignes())
    if manquees:
        print(f"\n{manquees} limits missed")
    return 1 if manquees else 0


if __name__ == "__main__":
    sys.exit(main())
