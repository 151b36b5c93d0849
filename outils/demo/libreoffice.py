#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""Runs one LibreOffice with the extension on copies of documents, for ./demo.

usage: libreoffice.py FOLDER FILE...

The folder is the run's own, with vocalyne-libreoffice.oxt in it: profile, home and all else stand there.
Prints "open" once all files are. SIGUSR1 saves, shows (FOLDER/N.avant.txt, .apres.txt, .avant.pdf,
.apres.pdf for the Nth file, read again from the disk) and ends; SIGTERM saves and ends.
VOCALYNE_DEMO_PATIENCE: the seconds that any one step may take.
"""
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import threading
import time
import xml.etree.ElementTree as xml

import uno
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.lang import DisposedException

PATIENCE = float(os.environ.get("VOCALYNE_DEMO_PATIENCE") or 120)
TEXTE = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"
BUREAU = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
DESSIN = "{urn:oasis:names:tc:opendocument:xmlns:drawing:1.0}"


class Echec(Exception):
    """What the person is told."""

    def __init__(self, francais: str, anglais: str):
        langue = os.environ.get("LC_ALL") or os.environ.get("LC_MESSAGES") or os.environ.get("LANG") or ""
        super().__init__(francais if langue[:2] == "fr" else anglais)


class Ordre(Exception):
    """A signal: the end, with a show or without."""


def sur_signal(numero, _):
    raise Ordre(numero)


def borne(travail, quoi: tuple[str, str]):
    """Does what the office may never answer, for so long and no longer."""
    recu = []

    def fais():
        try:
            recu.append((travail(), None))
        except Exception as erreur:  # whatever it is, the waiting thread gets it
            recu.append((None, erreur))
    fil = threading.Thread(target=fais, daemon=True)
    fil.start()
    fil.join(PATIENCE)
    if not recu:
        raise Echec(f"LibreOffice ne répond pas ({quoi[0]}, {PATIENCE:g} s).",
                    f"LibreOffice does not answer ({quoi[1]}, {PATIENCE:g} s).")
    if recu[0][1]:
        raise recu[0][1]
    return recu[0][0]


def propriete(nom: str, valeur):
    une = PropertyValue()
    une.Name, une.Value = nom, valeur
    return une


def texte_de(element) -> str:
    """A paragraph's own letters; what hangs on it (notes, comments, frames) is read after it."""
    lu = element.text or ""
    for enfant in element:
        if enfant.tag == TEXTE + "s":
            lu += " " * int(enfant.get(TEXTE + "c", "1"))
        elif enfant.tag in (TEXTE + "tab", TEXTE + "line-break"):
            lu += " "
        elif enfant.tag not in (TEXTE + "note", BUREAU + "annotation") and not enfant.tag.startswith(DESSIN):
            lu += texte_de(enfant)
        lu += enfant.tail or ""
    return lu


def paragraphes(element):
    """All paragraphs of a flat ODF document's body, in its order."""
    for enfant in element:
        if enfant.tag in (TEXTE + "p", TEXTE + "h"):
            yield texte_de(enfant)
        if enfant.tag != TEXTE + "tracked-changes":
            yield from paragraphes(enfant)


class Bureau:
    """The office's process, its profile, and the way into it."""

    def __init__(self, dossier: pathlib.Path):
        self.dossier = dossier
        self.profil = f"-env:UserInstallation={(dossier / 'profil').as_uri()}"
        self.tuyau = "vocalyne_" + os.urandom(8).hex()
        self.processus = self.contexte = None

    def installe(self):
        try:
            subprocess.run(["unopkg", "add", "--suppress-license", str(self.dossier / "vocalyne-libreoffice.oxt"),
                            self.profil], check=True, capture_output=True, text=True, timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            raise Echec(f"unopkg n'a pas fini en {PATIENCE:g} s.", f"unopkg did not end within {PATIENCE:g} s.") from None
        except subprocess.CalledProcessError as erreur:
            raise Echec(f"L'extension ne s'installe pas :\n{erreur.stderr}",
                        f"The extension cannot be installed:\n{erreur.stderr}") from None

    def demarre(self):
        journal = open(self.dossier / "soffice.log", "wb")
        self.processus = subprocess.Popen(
            ["soffice", "--headless", "--norestore", "--nologo", "--nodefault",
             f"--accept=pipe,name={self.tuyau};urp;", self.profil],
            stdin=subprocess.DEVNULL, stdout=journal, stderr=journal, start_new_session=True)
        fin = time.monotonic() + PATIENCE
        while not self.contexte:
            if self.processus.poll() is not None:
                raise self.mort()
            if time.monotonic() > fin:
                raise Echec(f"LibreOffice n'a pas démarré en {PATIENCE:g} s.\n{self.dit()}",
                            f"LibreOffice did not come up within {PATIENCE:g} s.\n{self.dit()}")
            time.sleep(0.1)
            self.contexte = borne(self.connecte, ("démarrage", "start"))
        self.bureau = self.contexte.ServiceManager.createInstanceWithContext(
            "com.sun.star.frame.Desktop", self.contexte)

    def connecte(self):
        local = uno.getComponentContext()
        resolveur = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
        try:
            return resolveur.resolve(f"uno:pipe,name={self.tuyau};urp;StarOffice.ComponentContext")
        except NoConnectException:
            return None

    def dit(self) -> str:
        return (self.dossier / "soffice.log").read_text(encoding="utf-8", errors="replace").strip()

    def mort(self) -> Echec:
        return Echec(f"LibreOffice a pris fin.\n{self.dit()}", f"LibreOffice ended.\n{self.dit()}")

    def ouvre(self, fichier: pathlib.Path, **proprietes):
        try:
            document = self.bureau.loadComponentFromURL(
                fichier.as_uri(), "_blank", 0, tuple(propriete(n, v) for n, v in proprietes.items()))
        except DisposedException:
            raise self.mort() from None
        except Exception as erreur:
            raise Echec(f"{fichier.name} : LibreOffice ne l'ouvre pas : {erreur}",
                        f"{fichier.name}: LibreOffice does not open it: {erreur}") from None
        if document is None or not document.supportsService("com.sun.star.text.TextDocument"):
            if document is not None:
                document.close(True)
            raise Echec(f"{fichier.name} : LibreOffice n'en fait pas un document Writer (format, mot de passe ?).",
                        f"{fichier.name}: LibreOffice makes no Writer document of it (format, password?).")
        return document

    def montre(self, fichier: pathlib.Path, vers: str):
        """What stands in the file: its paragraphs, each with an empty line after it, and its pages."""
        document = self.ouvre(fichier, Hidden=True, ReadOnly=True)
        try:
            plat = self.dossier / (vers + ".fodt")
            document.storeToURL(plat.as_uri(), (propriete("FilterName", "OpenDocument Text Flat XML"),))
            document.storeToURL((self.dossier / (vers + ".pdf")).as_uri(), (propriete("FilterName", "writer_pdf_Export"),))
        finally:
            document.close(True)
        corps = xml.parse(plat).getroot().find(BUREAU + "body")
        lignes = (" ".join(p.split()) for p in paragraphes(corps))
        (self.dossier / (vers + ".txt")).write_text("".join(l + "\n\n" for l in lignes if l), encoding="utf-8")

    def termine(self):
        """Ends the process in order, or by force: nothing stays behind."""
        if self.processus and self.processus.poll() is None:
            try:
                borne(self.bureau.terminate, ("fin", "end"))
                self.processus.wait(PATIENCE)
            except Exception:  # it went while answering, or hangs: either way its end is what counts
                pass
            if self.processus.poll() is None:
                os.killpg(self.processus.pid, signal.SIGKILL)
                self.processus.wait()
                for reste in pathlib.Path("/tmp").glob(f"OSL_PIPE_{os.getuid()}_{self.tuyau}"):
                    reste.unlink(missing_ok=True)


def enregistre(documents):
    for document in documents:
        if document.isModified():
            document.store()
        document.close(True)


def sers(bureau: Bureau, fichiers: list[pathlib.Path]):
    avant = []
    for rang, fichier in enumerate(fichiers):
        avant.append(bureau.dossier / f"{rang}.original{fichier.suffix}")
        shutil.copyfile(fichier, avant[-1])
    bureau.installe()
    bureau.demarre()
    documents = [borne(lambda f=f: bureau.ouvre(f), (f.name, f.name)) for f in fichiers]
    print("open", flush=True)
    ordre = None
    try:
        bureau.processus.wait()  # until it dies, or an order comes
        raise bureau.mort()
    except Ordre as recu:
        ordre = recu.args[0]
    borne(lambda: enregistre(documents), ("enregistrement", "saving"))
    if ordre == signal.SIGUSR1:
        for rang, fichier in enumerate(fichiers):
            borne(lambda r=rang: bureau.montre(avant[r], f"{r}.avant"), (fichier.name, fichier.name))
            borne(lambda r=rang, f=fichier: bureau.montre(f, f"{r}.apres"), (fichier.name, fichier.name))


def main() -> int:
    if len(sys.argv) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    bureau = Bureau(pathlib.Path(sys.argv[1]))
    signal.signal(signal.SIGTERM, sur_signal)
    signal.signal(signal.SIGUSR1, sur_signal)
    statut = 1
    try:
        sers(bureau, [pathlib.Path(f) for f in sys.argv[2:]])
        statut = 0
    except Echec as echec:
        print(echec, file=sys.stderr)
    except Ordre:
        statut = 0  # ended before anything was open
    finally:
        signal.signal(signal.SIGTERM, signal.SIG_IGN)
        bureau.termine()
    return statut


if __name__ == "__main__":
    fini = main()
    sys.stdout.flush()
    sys.stderr.flush()
    os._exit(fini)  # a thread that waits for the office forever would keep the process
