# SPDX-License-Identifier: MPL-2.0
"""One caller: a connection to the bus of its own, as each host has, and what it was answered."""

from dataclasses import dataclass, field

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from . import lecture  # noqa: E402
from .langue import Bilingue, abrege  # noqa: E402
from .protocole import CHEMIN, DOCUMENTS, ERREUR, ERREURS, PROXY, SERVICE, Protocole  # noqa: E402

MUETS = ("org.freedesktop.DBus.Error.NoReply", "org.freedesktop.DBus.Error.Timeout",
         "org.freedesktop.DBus.Error.ServiceUnknown", "org.freedesktop.DBus.Error.NameHasNoOwner",
         "org.freedesktop.DBus.Error.Disconnected")
MUETS_MAX = 3  # calls without an answer before the suite gives up on the companion


class Perdu(Exception):
    """The companion has left the bus, or answers no more."""


@dataclass
class Reponse:
    """A reply (several values: a tuple), or an error of that name (without the contract's prefix)."""
    appel: str
    valeur: object = None
    erreur: str = ""
    message: str = ""
    est_du_bon_type: bool = True

    def __str__(self) -> str:
        return f"{self.erreur} ({self.message[:200]})" if self.erreur else abrege(self.valeur)


@dataclass
class Journal:
    """What was wrong with any reply of the whole run, whichever rule asked."""
    types: list[Bilingue] = field(default_factory=list)
    erreurs: list[Bilingue] = field(default_factory=list)
    messages: list[Bilingue] = field(default_factory=list)
    muets: list[Bilingue] = field(default_factory=list)
    servies: set[str] = field(default_factory=set)  # the methods that replied as they should


@dataclass
class Cible:
    """The companion under trial."""
    instance: str
    protocole: Protocole
    adresse: str
    patience: int = 60000  # ms
    journal: Journal = field(default_factory=Journal)
    perdu: bool = False  # it has left the bus, or answers no more: it is not called again

    @property
    def service(self) -> str:
        return SERVICE + self.instance

    def connecte(self) -> Gio.DBusConnection:
        return Gio.DBusConnection.new_for_address_sync(
            self.adresse, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)


class Hote:
    def __init__(self, cible: Cible):
        self.cible = cible
        self.bus = cible.connecte()

    def ferme(self) -> None:
        if not self.bus.is_closed():
            self.bus.close_sync(None)

    def est_la(self) -> bool:
        """Does anybody own the companion's name?"""
        return self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                  "org.freedesktop.DBus", "NameHasOwner",
                                  GLib.Variant("(s)", (self.cible.service,)), None, 0, -1,
                                  None).unpack()[0]

    def introspection(self) -> str:
        return self._appelle("org.freedesktop.DBus.Introspectable", "Introspect", None).unpack()[0]

    def appelle(self, methode: str, *arguments, interface: str = PROXY) -> Reponse:
        """A call as the contract has it; the reply is held to it too."""
        protocole, journal = self.cible.protocole, self.cible.journal
        appel = f"{methode}({', '.join(abrege(a) for a in arguments)})"
        try:
            brute = self._appelle(interface, methode, GLib.Variant(
                protocole.entrees(interface, methode), arguments))
        except GLib.Error as erreur:
            return self._erreur(appel, erreur)
        attendu, recu = protocole.sorties(interface, methode), brute.get_type_string()
        if attendu != recu:
            journal.types.append(Bilingue(f"{appel} : type {attendu} attendu, {recu} reçu",
                                          f"{appel}: type {attendu} expected, {recu} received"))
            return Reponse(appel, est_du_bon_type=False)
        journal.servies.add(methode)
        valeurs = brute.unpack()
        return Reponse(appel, valeurs if len(valeurs) > 1 else next(iter(valeurs), None))

    def appelle_mal(self, methode: str, arguments: GLib.Variant | None) -> str:
        """A call against the contract: the name of the error that comes, empty when none does."""
        try:
            self._appelle(PROXY, methode, arguments)
        except GLib.Error as erreur:
            reponse = self._erreur(methode, erreur, attendue=True)
            return reponse.erreur
        return ""

    def lance(self, methode: str, *arguments, attend: bool = False) -> None:
        """Sends a call and goes on, as a host does for most; `attend`: the companion is told that a
        reply is waited for, which nobody will read."""
        arguments = GLib.Variant(self.cible.protocole.entrees(PROXY, methode), arguments)
        self.bus.call(self.cible.service, CHEMIN + self.cible.instance, PROXY, methode, arguments,
                      None, Gio.DBusCallFlags.NO_AUTO_START, self.cible.patience, None,
                      (lambda *_: None) if attend else None)

    def zones(self, identifiant: str) -> lecture.Lecture | Reponse:
        """What SynchronisePositions gives; the reply itself where it is an error."""
        reponse = self.appelle("SynchronisePositions", identifiant)
        if reponse.erreur or not reponse.est_du_bon_type:
            return reponse
        return lecture.lis(reponse.valeur)

    def documents(self) -> Reponse:
        return self.appelle("DonneDocuments", interface=DOCUMENTS)

    def _appelle(self, interface: str, methode: str, arguments: GLib.Variant | None) -> GLib.Variant:
        if self.cible.perdu:
            raise Perdu(methode)
        return self.bus.call_sync(self.cible.service, CHEMIN + self.cible.instance, interface,
                                  methode, arguments, None, Gio.DBusCallFlags.NO_AUTO_START,
                                  self.cible.patience, None)

    def _erreur(self, appel: str, erreur: GLib.Error, attendue: bool = False) -> Reponse:
        journal = self.cible.journal
        nom = Gio.DBusError.get_remote_error(erreur) or ""
        message = erreur.message.removeprefix(f"GDBus.Error:{nom}: ")
        if nom in MUETS or not nom:
            journal.muets.append(Bilingue(f"{appel} : pas de réponse ({message})",
                                          f"{appel}: no reply ({message})"))
            if len(journal.muets) >= MUETS_MAX or not self.est_la():
                self.cible.perdu = True
                raise Perdu(appel)
            return Reponse(appel, erreur=nom or "?", message=message)
        court = nom.removeprefix(ERREUR)
        inconnue = nom == "org.freedesktop.DBus.Error.UnknownMethod"
        if not attendue and not inconnue and (court == nom or court not in ERREURS):
            journal.erreurs.append(Bilingue(f"{appel} : {nom}", f"{appel}: {nom}"))
        if not message.strip():
            journal.messages.append(Bilingue(f"{appel} : {nom}, sans message",
                                             f"{appel}: {nom}, without a message"))
        return Reponse(appel, erreur=court, message=message)
