# SPDX-License-Identifier: MPL-2.0
"""python3 -m fautif INSTANCE [BREACH...]: serves three documents on the session bus; says "ready"."""

import os
import re
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from suite.protocole import CHEMIN, DOCUMENTS, DOSSIER, ERREUR, PROXY, SERVICE  # noqa: E402

from .bureau import Refus  # noqa: E402
from .recit import Recit  # noqa: E402


class Publie:
    def __init__(self, instance: str, fautes: set[str]):
        self.bureau = Recit(instance, fautes)
        self.connexion = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        for interface in (PROXY, DOCUMENTS):
            if interface == DOCUMENTS and self.bureau.a("sans-documents"):
                continue
            xml = (DOSSIER / f"{interface}.xml").read_text(encoding="utf-8")
            if self.bureau.a("sans-suspends"):
                xml = re.sub(r'<method name="Suspends"/>', "", xml)
            if self.bureau.a("repond-a-tout"):
                xml = xml.replace("<method", '<method name="NImporteQuoi"/><method', 1)
            if self.bureau.a("entier-en-texte"):
                xml = re.sub(r'name="leDebut" type="i" direction="out"',
                             'name="leDebut" type="s" direction="out"', xml)
            self.connexion.register_object(
                CHEMIN + instance, Gio.DBusNodeInfo.new_for_xml(xml).interfaces[0], self.sers,
                None, None)
        self.connexion.signal_subscribe(
            "org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged",
            "/org/freedesktop/DBus", None, Gio.DBusSignalFlags.NONE,
            lambda *signal: signal[5][2] or self.bureau.part(signal[5][0]))
        self.connexion.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                 "org.freedesktop.DBus", "RequestName",
                                 GLib.Variant("(su)", (SERVICE + instance, 4)), None, 0, -1, None)

    def sers(self, _connexion, qui, _chemin, _interface, methode, arguments, invocation):
        if methode == "Suspends" and self.bureau.a("muet"):
            return
        if methode == "RompsLienCorrecteur" and self.bureau.a("meurt"):
            os._exit(0)
        sans_reponse = (invocation.get_message().get_flags()
                        & Gio.DBusMessageFlags.NO_REPLY_EXPECTED)
        if sans_reponse and self.bureau.a("desordre"):
            GLib.timeout_add(200, self.reponds, qui, methode, arguments, invocation)
        else:
            self.reponds(qui, methode, arguments, invocation)

    def reponds(self, qui, methode, arguments, invocation):
        try:
            valeur = getattr(self.bureau, methode, lambda _: None)(qui, *arguments)
        except Refus as refus:
            prefixe = "org.example.Erreur." if self.bureau.a("erreur-etrangere") else ERREUR
            invocation.return_dbus_error(prefixe + refus.nom,
                                         "" if self.bureau.a("erreur-muette") else str(refus))
            return False
        sortie = invocation.get_method_info().out_args
        if not sortie:
            invocation.return_value(None)
        else:
            types = [argument.signature for argument in sortie]
            valeurs = valeur if isinstance(valeur, tuple) else (valeur,)
            invocation.return_value(GLib.Variant(
                f"({''.join(types)})",
                tuple(str(v) if t == "s" else v for t, v in zip(types, valeurs))))
        return False


if __name__ == "__main__":
    Publie(sys.argv[1], set(sys.argv[2:]))
    print("ready", flush=True)
    GLib.MainLoop().run()
