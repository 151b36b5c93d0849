# SPDX-License-Identifier: MPL-2.0
"""The documents that the bench measures on: flat ODF, ordinary prose, formats in every paragraph."""

import random

TETE = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.text">
<office:automatic-styles>
<style:style style:name="G" style:family="text"><style:text-properties fo:font-weight="bold"/></style:style>
<style:style style:name="I" style:family="text"><style:text-properties fo:font-style="italic"/></style:style>
</office:automatic-styles><office:body><office:text>
"""
PIED = "</office:text></office:body></office:document>\n"
MOTS = ("le la les un une des et ou mais donc car il elle nous vous avec pour dans sur sous entre maison "
        "jardin fenêtre élève école rivière montagne cahier lettre réponse travail journée soirée lumière "
        "porte chemin voyage ville village forêt oiseau cheval chien chat arbre fleur pierre sable").split()


def paragraphe(hasard):
    """Eighty words, some bold, some italic: five portions."""
    mots = hasard.choices(MOTS, k=80)
    gras, italique = hasard.randrange(5, 30), hasard.randrange(45, 70)
    mots[gras] = f'<text:span text:style-name="G">{mots[gras]} {mots[gras + 1]}</text:span>'
    mots[italique] = f'<text:span text:style-name="I">{mots[italique]} {mots[italique + 1]}</text:span>'
    return "<text:p>" + " ".join(mots) + ".</text:p>\n"


def ecris(chemin, nombre):
    hasard = random.Random(nombre)
    with open(chemin, "w", encoding="utf-8") as fichier:
        fichier.write(TETE)
        fichier.writelines(paragraphe(hasard) for _ in range(nombre))
        fichier.write(PIED)
