# SPDX-License-Identifier: MPL-2.0
"""An office that is kept busy for as long as a test wants it."""

import threading

import unohelper
from com.sun.star.io import XOutputStream

import banc


class Barrage(unohelper.Base, XOutputStream):
    """A file that takes no byte until it is opened: the office waits on it, its lock held."""

    def __init__(self):
        self.atteint = threading.Event()
        self.ouvert = threading.Event()

    def writeBytes(self, octets):
        self.atteint.set()
        self.ouvert.wait(banc.PATIENCE)

    def flush(self):
        pass

    def closeOutput(self):
        pass


class Occupe:
    """An office whose main thread is kept busy while the block runs."""

    def __init__(self, doc):
        self.barrage = Barrage()
        self.fil = threading.Thread(target=lambda: doc.storeToURL(
            "private:stream", (banc.pv("OutputStream", self.barrage),
                               banc.pv("FilterName", "writer8"))))

    def __enter__(self):
        self.fil.start()
        assert self.barrage.atteint.wait(banc.PATIENCE)
        return self

    def __exit__(self, *_):
        self.barrage.ouvert.set()
        self.fil.join()
