# SPDX-License-Identifier: MPL-2.0
"""Pictures the window beside a letter in Writer: the README's image, from a real run.

    lance.py --hote BUILD --programme OXT image_fenetre.py FILE.png

FILE must be where the office's user may write.
"""

import os
import pathlib
import struct
import subprocess
import sys
import zlib

import banc
import hote

from com.sun.star.lang import Locale

LARGEUR, HAUTEUR = 1270, 760
LETTRE = ("Dear Sir or Madam,",
          "I am writing to you about the order that we placed on 3 March at your shop in Leeds. "
          "The goods that were delivered are not the ones we had choosen, and the the invoice "
          "contains several mistakes.",
          "We had to borrow tables from our neighbours to recieve our customers, which is very "
          "embarassing. Your salesman had told us that they would arrive before the end of "
          "Febuary.",
          "We would be grateful if you could correct the invoice , and refund the difference "
          "within two weeks.",
          "Yours faithfully,")


def lis_ecran(memoire: pathlib.Path):
    """The screen's rows, RGB. Xvfb keeps it in a file as `xwd` writes it."""
    octets = memoire.read_bytes()
    entete = struct.unpack(">25I", octets[:100])
    debut, pas = entete[0] + entete[19] * 12, entete[12]
    for y in range(HAUTEUR):
        ligne = octets[debut + y * pas:debut + y * pas + LARGEUR * 4]
        rvb = bytearray(3 * LARGEUR)
        for canal in range(3):
            # Sixteen levels are enough to read by, and a third of the file.
            rvb[canal::3] = bytes(min(255, (o + 8) // 17 * 17) for o in ligne[2 - canal::4])
        yield bytes(rvb)


def ecris_png(lignes, fichier: pathlib.Path):
    def bloc(genre, contenu):
        somme = zlib.crc32(genre + contenu)
        return struct.pack(">I", len(contenu)) + genre + contenu + struct.pack(">I", somme)
    image = zlib.compress(b"".join(b"\0" + ligne for ligne in lignes), 9)
    fichier.write_bytes(b"\x89PNG\r\n\x1a\n"
                        + bloc(b"IHDR", struct.pack(">IIBBBBB", LARGEUR, HAUTEUR, 8, 2, 0, 0, 0))
                        + bloc(b"IDAT", image) + bloc(b"IEND", b""))


def ouvre_lettre(bureau):
    doc = bureau.ouvre("private:factory/swriter", banc.pv("OnMainThread", True))
    doc.CurrentController.Frame.ContainerWindow.setPosSize(0, 0, 840, HAUTEUR, 15)
    style = doc.StyleFamilies.getByName("ParagraphStyles").getByName("Standard")
    style.CharLocale = Locale("en", "GB", "")
    curseur = doc.Text.createTextCursor()
    for rang, ligne in enumerate(LETTRE):
        if rang:
            doc.Text.insertControlCharacter(curseur, 0, False)
        doc.Text.insertString(curseur, ligne, False)
    doc.CurrentController.ViewCursor.gotoStart(False)
    return doc


def main():
    lecture, ecriture = os.pipe()
    ecran = subprocess.Popen(["Xvfb", "-displayfd", str(ecriture), "-screen", "0",
                              f"{LARGEUR}x{HAUTEUR}x24", "-fbdir", str(banc.DOSSIER), "-nolisten",
                              "tcp"], pass_fds=[ecriture], stderr=subprocess.DEVNULL)
    os.close(ecriture)
    with os.fdopen(lecture) as numero:
        env = dict(os.environ, DISPLAY=":" + numero.readline().strip(), LANG="en_GB.UTF-8",
                   SAL_USE_VCLPLUGIN="gtk3", GDK_BACKEND="x11", NO_AT_BRIDGE="1")
    gestionnaire = subprocess.Popen(["openbox"], env=env, stderr=subprocess.DEVNULL)
    bus = banc.Bus()
    bureau = banc.Bureau(bus.adresse, options=(), environnement=env)
    doc = ouvre_lettre(bureau)
    [document] = banc.attends(hote.Hote(bus.adresse).documents, "the letter to be listed")
    fenetre = subprocess.Popen([hote.PROGRAMME, "fenetre", document["id"]],
                               env=dict(env, DBUS_SESSION_BUS_ADDRESS=bus.adresse))
    # The first remark selects its words in the document.
    banc.attends(lambda: doc.CurrentSelection.getByIndex(0).String, "the first remark")
    memoire, avant = banc.DOSSIER / "Xvfb_screen0", []

    def dessine():
        avant.append(zlib.crc32(memoire.read_bytes()))
        return len(avant) > 200 and len(set(avant[-200:])) == 1
    banc.attends(dessine, "the screen to be drawn")
    ecris_png(lis_ecran(memoire), pathlib.Path(sys.argv[1]))
    banc.arrete(fenetre)
    doc.setModified(False)
    bureau.ferme()
    bus.ferme()
    banc.arrete(gestionnaire)
    banc.arrete(ecran)


if __name__ == "__main__":
    main()
