#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""Draws curves as SVG and puts them into a page: cost against size, ours and the reference's.

Reads from standard input what `vocalyne-banc --courbes` prints.
"""

import argparse
import html
import json
import pathlib
import sys

import matplotlib
matplotlib.use("svg")
import matplotlib.pyplot as plt  # noqa: E402


def dessine(courbe, fichier):
    tailles, nous, reference = zip(*courbe["points"])
    figure, axes = plt.subplots(figsize=(7, 4.2))
    axes.loglog(tailles, [v / 1000 for v in nous], "o-", label=courbe["mesure"])
    axes.loglog(tailles, [v / 1000 for v in reference], "s--", label=courbe["reference"])
    axes.set_xlabel("zones of 904 bytes")
    axes.set_ylabel("milliseconds")
    axes.set_title(courbe["nom"])
    axes.grid(True, which="both", alpha=0.3)
    axes.legend()
    figure.tight_layout()
    figure.savefig(fichier, metadata={"Date": None})
    plt.close(figure)


def tableau(courbe):
    lignes = "".join(
        f"<tr><td>{taille}</td><td>{nous / 1000:.2f}</td><td>{autre / 1000:.2f}</td>"
        f"<td>{nous / autre:.2f}</td></tr>\n" for taille, nous, autre in courbe["points"])
    return (f"<table>\n<tr><th>zones</th><th>{html.escape(courbe['mesure'])}, ms</th>"
            f"<th>{html.escape(courbe['reference'])}, ms</th><th>ratio</th></tr>\n{lignes}</table>\n")


def main():
    analyse = argparse.ArgumentParser(description=__doc__)
    analyse.add_argument("dossier", type=pathlib.Path, help="where the page and its pictures go")
    analyse.add_argument("--machine", default="", help="what the curves were taken on")
    voulu = analyse.parse_args()
    courbes = [json.loads(ligne) for ligne in sys.stdin if ligne.strip()]
    if not courbes:
        print("no curve on standard input", file=sys.stderr)
        return 1
    voulu.dossier.mkdir(parents=True, exist_ok=True)
    corps = ""
    for rang, courbe in enumerate(courbes, 1):
        image = f"courbe{rang}.svg"
        dessine(courbe, voulu.dossier / image)
        corps += (f"<h2>{html.escape(courbe['nom'])}</h2>\n"
                  f"<p><img src=\"{image}\" alt=\"{html.escape(courbe['nom'])}\"></p>\n"
                  + tableau(courbe))
    (voulu.dossier / "index.html").write_text(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n<title>Costs</title>\n"
        "<style>body{font-family:sans-serif;max-width:50em;margin:2em auto}"
        "td,th{padding:.2em .8em;text-align:right}</style>\n"
        f"<h1>What the plug-in costs</h1>\n<pre>{html.escape(voulu.machine)}</pre>\n{corps}</html>\n",
        encoding="utf-8")
    print(voulu.dossier / "index.html")
    return 0


if __name__ == "__main__":
    sys.exit(main())
