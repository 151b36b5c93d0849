# SPDX-License-Identifier: MPL-2.0
"""Calls that are sent without waiting, as a host sends most of its own."""

import gi
gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

import banc  # noqa: E402


class Rafale:
    """Many calls of one connection of its own, sent without waiting; their replies are counted."""

    def __init__(self, client):
        self.client = client
        self.valeurs, self.refus = [], {}
        self.envoyes = 0

    def envoie(self, methode, *arguments, signature=None, fois=1):
        signature = signature or "()"
        for _ in range(fois):
            self.client.bus.call(
                banc.SERVICE + self.client.instance, banc.CHEMIN + self.client.instance, banc.PROXY,
                methode, GLib.Variant(signature, arguments), None, 0, 120000, None, self._recoit,
                None)
        self.envoyes += fois
        return self

    def part(self):
        """All of it has come to the office: this question, behind it, is answered at once there."""
        self.client.DocEstMort("")
        return self

    def _recoit(self, connexion, resultat, _):
        try:
            self.valeurs.extend(connexion.call_finish(resultat).unpack() or [None])
        except GLib.Error as erreur:
            nom = (Gio.DBusError.get_remote_error(erreur) or "?").rsplit(".", 1)[-1]
            self.refus[nom] = self.refus.get(nom, 0) + 1

    @property
    def faits(self):
        return len(self.valeurs)

    @property
    def rendus(self):
        return self.faits + sum(self.refus.values())

    def lis(self):
        """Takes in the replies that are there."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self.rendus

    def attends(self, nombre=None):
        attendus = self.envoyes if nombre is None else nombre
        banc.attends(lambda: self.lis() >= attendus, f"{attendus} replies of {self.envoyes}")
        return self
