# SPDX-License-Identifier: MPL-2.0
"""The test bench: a private bus, a real LibreOffice on it, and a client that speaks as a host does."""

import base64
import json
import os
import pathlib
import signal
import subprocess
import threading
import time
import unittest

import gi
gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

import uno  # noqa: E402
import unohelper  # noqa: E402
from com.sun.star.awt import XCallback  # noqa: E402
from com.sun.star.beans import PropertyValue  # noqa: E402
from com.sun.star.connection import NoConnectException  # noqa: E402
from com.sun.star.lang import DisposedException  # noqa: E402
from com.sun.star.util import CloseVetoException  # noqa: E402

SERVICE = "com.ombrel.vocalyne.texteurs.OpenOffice."
CHEMIN = "/com/ombrel/vocalyne/texteurs/OpenOffice/"
PROXY = "com.ombrel.vocalyne.texteurs.openoffice.proxy.interface"
DOCUMENTS = "com.ombrel.vocalyne.texteurs.openoffice.documents.interface"
DOSSIER = pathlib.Path.cwd()
PATIENCE = 60  # seconds, for what must come; never waited out when it comes


def attends(condition, quoi, patience=PATIENCE):
    """The first true value of the condition; fails when none comes."""
    fin = time.monotonic() + patience
    while True:
        valeur = condition()
        if valeur:
            return valeur
        if time.monotonic() > fin:
            raise AssertionError(f"waited {patience} s in vain for {quoi}")
        time.sleep(0.01)


def pv(nom, valeur):
    propriete = PropertyValue()
    propriete.Name, propriete.Value = nom, valeur
    return propriete


def arrete(processus, patience=20):
    """Ends a process that the bench started, by its own id."""
    if processus.poll() is None:
        processus.terminate()
        try:
            processus.wait(patience)
        except subprocess.TimeoutExpired:
            processus.kill()
            processus.wait()


class Bus:
    """A session bus of the test's own."""

    def __init__(self, adresse=None):
        commande = ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"]
        if adresse:
            commande.append(f"--address={adresse}")
        self.processus = subprocess.Popen(commande, stdout=subprocess.PIPE, text=True)
        self.adresse = self.processus.stdout.readline().strip()
        assert self.adresse, "the bus did not start"

    def connexion(self):
        drapeaux = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                    | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        return Gio.DBusConnection.new_for_address_sync(self.adresse, drapeaux, None, None)

    def ferme(self):
        arrete(self.processus)
        self.processus.stdout.close()


class Bureau:
    """One running office. Its profile outlives it, so that it can be started again."""

    numero = 0

    def __init__(self, adresse_du_bus, profil="profil", instance=None, delai_ms=None,
                 options=("--headless",), environnement=None):
        Bureau.numero += 1
        self.tuyau = f"vocalyne{os.getpid()}_{Bureau.numero}"
        self.profil = f"-env:UserInstallation=file://{DOSSIER}/{profil}"
        self.env = dict(os.environ, **(environnement or {}))
        if adresse_du_bus:
            self.env["DBUS_SESSION_BUS_ADDRESS"] = adresse_du_bus
        if instance:
            self.env["VOCALYNE_BUREAU_INSTANCE"] = instance
        if delai_ms:
            self.env["VOCALYNE_BUREAU_DELAI_MS"] = str(delai_ms)
        self.options = options
        if not (DOSSIER / profil / "vocalyne").exists():
            self.unopkg("add", "--suppress-license", str(DOSSIER / "vocalyne-libreoffice.oxt"))
            (DOSSIER / profil / "vocalyne").touch()
        self.journal = DOSSIER / f"{self.tuyau}.log"
        with open(self.journal, "wb") as journal:
            self.processus = subprocess.Popen(
                ["soffice", *options, "--norestore", "--nologo", "--nodefault",
                 f"--accept=pipe,name={self.tuyau};urp;", self.profil],
                env=self.env, stdout=journal, stderr=subprocess.STDOUT, start_new_session=True)
        self.contexte = attends(self._connecte, "the office's pipe")
        self.bureau = self.cree("com.sun.star.frame.Desktop")

    def unopkg(self, *arguments):
        return subprocess.run(["unopkg", *arguments, self.profil], env=self.env, check=True,
                              capture_output=True, text=True).stdout

    def _connecte(self):
        assert self.processus.poll() is None, "the office ended: " + self.dit()
        local = uno.getComponentContext()
        resolveur = local.ServiceManager.createInstanceWithContext(
            "com.sun.star.bridge.UnoUrlResolver", local)
        try:
            return resolveur.resolve(
                f"uno:pipe,name={self.tuyau};urp;StarOffice.ComponentContext")
        except NoConnectException:
            return None

    def dit(self):
        """What the office wrote to its terminal."""
        return self.journal.read_text(encoding="utf-8")

    def cree(self, service):
        return self.contexte.ServiceManager.createInstanceWithContext(service, self.contexte)

    def ouvre(self, url="private:factory/swriter", *proprietes):
        document = self.bureau.loadComponentFromURL(url, "_blank", 0, proprietes)
        assert document is not None, f"the office did not open {url}"
        return document

    def sur_le_fil_principal(self, action):
        """Does it as a person's click would; the office comes back for it on that thread."""
        fini = threading.Event()
        resultats, erreurs = [], []

        class Rappel(unohelper.Base, XCallback):
            def notify(self, _):
                try:
                    resultats.append(action())
                except Exception as erreur:  # for the waiting thread, whatever it is
                    erreurs.append(erreur)
                fini.set()

        self.cree("com.sun.star.awt.AsyncCallback").addCallback(Rappel(), None)
        assert fini.wait(PATIENCE), "the office's main thread is not free"
        if erreurs:
            raise erreurs[0]
        return resultats[0]

    def commande(self, document, url, *proprietes):
        """What a menu entry does."""
        self.cree("com.sun.star.frame.DispatchHelper").executeDispatch(
            document.CurrentController.Frame, url, "", 0, proprietes)

    def ferme(self):
        if self.processus.poll() is None:
            try:
                for document in list(self.bureau.Components):
                    document.close(True)
                self.bureau.terminate()
            except (DisposedException, AttributeError):
                pass  # it went while answering
            except CloseVetoException:
                self.tue()
                raise AssertionError("a document cannot be closed: " + self.dit()) from None
            try:
                self.processus.wait(PATIENCE)
            except subprocess.TimeoutExpired:
                self.tue()
                raise AssertionError("the office did not end: " + self.dit()) from None

    def tue(self):
        """As a crash would end it: the launcher and the office it started are one session."""
        os.killpg(self.processus.pid, signal.SIGKILL)
        self.processus.wait()


def bus_et_bureau():
    """A bus and an office on it, for the module whose setUpModule asks; they end with it."""
    bus = Bus()
    unittest.addModuleCleanup(bus.ferme)
    bureau = Bureau(bus.adresse)
    unittest.addModuleCleanup(bureau.ferme)
    return bus, bureau


def document_et_client(essai, bus, bureau, url="private:factory/swriter", *proprietes):
    """A document of the test's own, closed at its end, and a client that has named it."""
    document = bureau.ouvre(url, *proprietes)
    essai.addCleanup(lambda: document.close(True))
    client = Client(bus)
    client.prends(document)
    return document, client


class Appel(Exception):
    """An error reply."""

    def __init__(self, erreur):
        super().__init__(erreur.message)
        self.nom = (Gio.DBusError.get_remote_error(erreur) or "").rsplit(".", 1)[-1]


class Zone:
    def __init__(self, brute):
        self.nom = base64.b64decode(brute["Nom"]).decode()
        self.texte = base64.b64decode(brute["Texte"]).decode()
        self.selection = (brute.get("DebutSel", 0), brute.get("FinSel", 0))
        self.styles = [(s["Debut"], s["Fin"], s["Style"]) for s in brute.get("InfosStyle", [])]

    def __repr__(self):
        return f"Zone({self.texte!r}, {self.selection}, {self.styles})"


def unites(texte):
    """Length in UTF-16 units."""
    return len(texte.encode("utf-16-le")) // 2


class Client:
    """A caller with a connection of its own, as each host has."""

    def __init__(self, bus, instance=None):
        self.bus = bus.connexion()
        self.instance = instance or attends(self._instance, "an office's name on the bus")

    def _instance(self):
        for nom in self.noms():
            if nom.startswith(SERVICE):
                return nom[len(SERVICE):]
        return None

    def noms(self):
        return self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                  "org.freedesktop.DBus", "ListNames", None, None, 0, 5000,
                                  None).unpack()[0]

    def pid(self):
        """The office's process."""
        return self.bus.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
            "GetConnectionUnixProcessID", GLib.Variant("(s)", (SERVICE + self.instance,)), None, 0,
            5000, None).unpack()[0]

    def processeur(self):
        """Seconds of processor that the office's main thread has taken: whatever else the machine
        does counts for nothing in it."""
        pid = self.pid()
        return int(pathlib.Path(f"/proc/{pid}/task/{pid}/schedstat").read_text().split()[0]) / 1e9

    def appelle(self, methode, *arguments, signature=None, interface=PROXY, patience=60000):
        signature = signature or "(" + "".join(
            "b" if isinstance(a, bool) else "i" if isinstance(a, int) else "s"
            for a in arguments) + ")"
        try:
            reponse = self.bus.call_sync(
                SERVICE + self.instance, CHEMIN + self.instance, interface, methode,
                GLib.Variant(signature, arguments), None, 0, patience, None).unpack()
        except GLib.Error as erreur:
            raise Appel(erreur) from None
        return reponse if len(reponse) > 1 else reponse[0] if reponse else None

    def __getattr__(self, methode):
        return lambda *arguments, **options: self.appelle(methode, *arguments, **options)

    def noms_de_zones(self):
        """What a person would call the zones that it was given, in their order."""
        zones = self.zones()
        noms = json.loads(self.appelle("DonneNomsDeZones", self.id, interface=DOCUMENTS))
        return [noms.get(zone.nom) for zone in zones]

    def rapport(self):
        return json.loads(self.appelle("DonneRapport", self.id, interface=DOCUMENTS))

    def refus(self, zone):
        """The code and the sentence of its last refusal there."""
        return self.appelle("DonneRefus", zone.nom, interface=DOCUMENTS)

    def documents(self):
        return json.loads(self.appelle("DonneDocuments", interface=DOCUMENTS))

    def prends(self, document):
        """Names that open document, found by its own title; its whole identifier."""
        titres = [d["id"] for d in self.documents() if d["titre"] == document.getTitle()]
        assert len(titres) == 1, (titres, document.getTitle())
        self.id = titres[0]
        self.InitialiseTexteur(self.id.split("~")[1])
        return self.id

    def zones(self):
        brut = self.SynchronisePositions(self.id)
        assert brut.isascii()
        return [Zone(z) for z in json.loads(brut)["Zones"]]

    def textes(self):
        return [z.texte for z in self.zones()]

    def corrige(self, zone, cherche, remplace):
        """Corrects the first occurrence of a text in the zone, as the host sees it."""
        debut = unites(zone.texte[:zone.texte.index(cherche)])
        self.CorrigeDansTexteur(zone.nom, debut, debut + unites(cherche), remplace, False)
        zone.texte = zone.texte.replace(cherche, remplace, 1)

    def peut(self, zone, cherche):
        debut = unites(zone.texte[:zone.texte.index(cherche)])
        return self.PeutCorriger(zone.nom, debut, debut + unites(cherche), cherche)
