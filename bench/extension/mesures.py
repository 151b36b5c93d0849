# SPDX-License-Identifier: MPL-2.0
"""Measures the extension in a running LibreOffice, through the plug-in; README.md says what each line
means. Started by bench/lance-extension, in a folder with all it needs.

usage: mesures.py [--essai]
"""
import contextlib
import dataclasses
import os
import pathlib
import statistics
import subprocess
import sys
import time

import banc
import documents
from com.sun.star.beans import NamedValue

PETIT, MOYEN, GRAND = 100, 1000, 10000
ESSAI = "--essai" in sys.argv
if ESSAI:
    PETIT, MOYEN, GRAND = 3, 10, 30


@dataclasses.dataclass
class Ligne:
    nom: str
    mesure: float  # ms
    reference: float  # ms
    limite: float | None
    remarque: str = ""

    def imprime(self) -> bool:
        rapport = self.mesure / self.reference
        tenue = ESSAI or self.limite is None or rapport <= self.limite
        verdict = "-" if ESSAI or self.limite is None else "kept" if tenue else "MISSED"
        limite = "" if self.limite is None else f"{self.limite:.3f}"
        print(f"{self.nom:<66} {self.mesure:10.2f} {self.reference:10.2f} {rapport:8.3f} {limite:>7}  "
              f"{verdict:<6} {self.remarque}".rstrip(), flush=True)
        return tenue


class Greffon:
    """The plug-in's agent on one document, in a process of its own: vocalyne-banc --bureau."""

    def __init__(self, identifiant, adresse_du_bus):
        env = dict(os.environ, DBUS_SESSION_BUS_ADDRESS=adresse_du_bus, QT_QPA_PLATFORM="offscreen",
                   LD_LIBRARY_PATH=str(banc.DOSSIER / "prefixe/lib"))
        self.processus = subprocess.Popen([banc.DOSSIER / "vocalyne-banc", "--bureau", identifiant], env=env,
                                          text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def demande(self, ligne):
        self.processus.stdin.write(ligne + "\n")
        self.processus.stdin.flush()
        return [float(nombre) for nombre in self.processus.stdout.readline().split()]

    def lis(self, attendues):
        duree, nombre = self.demande("lis")
        assert nombre == attendues, f"{nombre} zones instead of {attendues}"
        return duree / 1000

    def corrige(self, zone):
        return self.demande(f"corrige {zone}")[0] / 1000

    def ferme(self):
        self.processus.stdin.close()
        self.processus.wait(banc.PATIENCE)
        self.processus.stdout.close()


class Salle:
    """The office with the extension and the witness, and what is opened in it."""

    def __init__(self):
        self.bus = banc.Bus()
        preparation = banc.Bureau(self.bus.adresse)
        preparation.ferme()
        preparation.unopkg("add", str(banc.DOSSIER / "temoin.oxt"))
        self.bureau = banc.Bureau(self.bus.adresse)
        self.temoin = self.bureau.cree("com.ombrel.vocalyne.banc.Temoin")
        self.pid = banc.attends(self._pid, "the office's process")

    def _pid(self):
        """The launcher's session holds the office itself."""
        for dossier in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                nom, reste = (dossier / "stat").read_text().split("(", 1)[1].rsplit(") ", 1)
            except OSError:
                continue
            if nom == "soffice.bin" and int(reste.split()[3]) == self.bureau.processus.pid:
                return int(dossier.name)
        return None

    def occupe(self):
        """Milliseconds of processor that the office's main thread has taken."""
        return int(pathlib.Path(f"/proc/{self.pid}/task/{self.pid}/schedstat").read_text().split()[0]) / 1e6

    @contextlib.contextmanager
    def coeur_reserve(self, autres):
        """Gives the office's main thread a core of its own: once it has replied it goes on with work
        of the office's, and on its core the reply's delivery would wait for the end of that."""
        coeurs = sorted(os.sched_getaffinity(0))
        fils = {int(fil.name) for fil in pathlib.Path(f"/proc/{self.pid}/task").iterdir()}
        reste = (fils | {self.bus.processus.pid, *autres}) - {self.pid}

        def places(principal, autres_fils):
            for fil in reste:
                with contextlib.suppress(ProcessLookupError):  # a thread of the office's has ended
                    os.sched_setaffinity(fil, autres_fils)
            os.sched_setaffinity(self.pid, principal)

        if len(coeurs) > 1:
            places(coeurs[:1], coeurs[1:])
        yield
        places(coeurs, coeurs)

    def calme(self):
        """Waits until the office has nothing to do: its own work after an edit is not ours."""
        tranquille = 0
        avant = self.occupe()
        while tranquille < 3:
            time.sleep(0.02)
            maintenant = self.occupe()
            tranquille = tranquille + 1 if maintenant - avant < 1 else 0
            avant = maintenant

    def ouvre(self, nombre, nom):
        chemin = banc.DOSSIER / f"{nom}.fodt"
        documents.ecris(chemin, nombre)
        return self.bureau.ouvre(chemin.as_uri())

    def greffon(self, nom):
        client = banc.Client(self.bus)
        [identifiant] = banc.attends(
            lambda: [d["id"] for d in client.documents() if d["chemin"].endswith(f"/{nom}.fodt")], nom)
        return Greffon(identifiant, self.bus.adresse)

    def lis_dedans(self, document, un_a_un=False):
        arguments = (NamedValue("document", document), NamedValue("unAUn", un_a_un))
        return self.temoin.execute(arguments) / 1000

    @staticmethod
    def lis_dehors(document):
        """The text alone, paragraph by paragraph, as a script outside of the office reads it."""
        debut = time.perf_counter()
        paragraphes = document.Text.createEnumeration()
        while paragraphes.hasMoreElements():
            paragraphes.nextElement().getString()
        return (time.perf_counter() - debut) * 1000

    def ferme(self):
        self.bureau.ferme()
        self.bus.ferme()


def passe(travail):
    debut = time.perf_counter()
    travail()
    return (time.perf_counter() - debut) * 1000


class Lecture:
    """The readings of one document, taken in turn: what slows one down slows all."""

    def __init__(self, salle, nombre, tours, tours_dehors):
        nom = f"d{nombre}"
        self.nombre = nombre
        self.document = salle.ouvre(nombre, nom)
        self.greffon = salle.greffon(nom)
        self.premiere = self.greffon.lis(nombre)
        self.document.refresh()
        self.lectures, self.occupe, self.ensemble, self.un_a_un = [], [], [], []
        self.occupe_temoin, self.dehors = [], []
        for tour in range(2 if ESSAI else tours):
            salle.calme()
            avant = salle.occupe()
            self.lectures.append(self.greffon.lis(nombre))
            salle.calme()
            milieu = salle.occupe()
            self.ensemble.append(salle.lis_dedans(self.document))
            salle.calme()
            self.occupe.append(milieu - avant)
            self.occupe_temoin.append(salle.occupe() - milieu)
            self.un_a_un.append(salle.lis_dedans(self.document, un_a_un=True))
            if tour < tours_dehors:
                self.dehors.append(salle.lis_dehors(self.document))

    def mediane(self, quoi):
        return statistics.median(getattr(self, quoi))


def corrections(salle, petite, grande, tours):
    """One correction at a time, as a person makes them, in both documents in turn."""
    durees = {petite: [], grande: []}
    with salle.coeur_reserve([lecture.greffon.processus.pid for lecture in durees]):
        for tour in range(2 if ESSAI else tours):
            for lecture, prises in durees.items():
                salle.calme()
                prises.append(lecture.greffon.corrige((tour * 37 + 5) % lecture.nombre))
    return [statistics.median(prises) for prises in durees.values()]


def premiere_du_temoin(salle, nombre):
    """The same first reading of a fresh document, by the witness: what waiting is the office's own."""
    document = salle.ouvre(nombre, "frais")
    duree = passe(lambda: salle.lis_dedans(document))
    document.close(True)
    return duree


def lignes(salle):
    petite = Lecture(salle, PETIT, 11, 0)
    moyenne = Lecture(salle, MOYEN, 11, 3)
    grande = Lecture(salle, GRAND, 7, 2)
    for lecture, limite in ((moyenne, 1 / 15), (grande, 1 / 20)):
        yield Ligne(f"SynchronisePositions / from outside by PyUNO, text alone, {lecture.nombre}",
                    lecture.mediane("lectures"), lecture.mediane("dehors"), limite)
    for lecture in (moyenne, grande):
        yield Ligne(f"SynchronisePositions / in process, property by property, {lecture.nombre}",
                    lecture.mediane("lectures"), lecture.mediane("un_a_un"), 1.3)
        yield Ligne(f"  the same / in process, all properties at once, {lecture.nombre}",
                    lecture.mediane("lectures"), lecture.mediane("ensemble"), None,
                    "the least that reading takes")
        yield Ligne(f"  office's main thread for it / for that reading, {lecture.nombre}",
                    lecture.mediane("occupe"), lecture.mediane("occupe_temoin"), 1.3, "processor time")
    yield Ligne(f"SynchronisePositions, {GRAND} paragraphs / {MOYEN}", grande.mediane("lectures"),
                moyenne.mediane("lectures"), 12)
    yield Ligne(f"  reading in process alone, {GRAND} / {MOYEN}", grande.mediane("ensemble"),
                moyenne.mediane("ensemble"), None)
    mesure, reference = corrections(salle, petite, grande, 41)[::-1]
    yield Ligne(f"one correction, {GRAND} paragraphs / {PETIT}", mesure, reference, 1.3)
    yield Ligne(f"first SynchronisePositions once open / later ones, {GRAND}", grande.premiere,
                grande.mediane("lectures"), None, "may wait for the office's first layout")
    yield Ligne(f"  the same for the witness's reading, {GRAND}", premiere_du_temoin(salle, GRAND),
                grande.mediane("ensemble"), None)
    for lecture in (petite, moyenne, grande):
        lecture.greffon.ferme()


def main() -> int:
    salle = Salle()
    try:
        print(f"{'ratio':<66} {'measured':>10} {'reference':>10} {'ratio':>8} {'limit':>7}   (ms)", flush=True)
        manquees = sum(not ligne.imprime() for ligne in lignes(salle))
    finally:
        salle.ferme()
    if manquees:
        print(f"\n{manquees} limits missed")
    return 1 if manquees else 0


if __name__ == "__main__":
    sys.exit(main())
