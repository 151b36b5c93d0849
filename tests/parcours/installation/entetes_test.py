# SPDX-License-Identifier: MPL-2.0
"""The SDK's headers, as an author of connectors meets them."""
import unittest

from commun import lance
from prefixe import CMAKE, PrefixeInstalle


class Entetes(PrefixeInstalle):

    def test_each_stands_alone(self):
        entetes = sorted((self.prefixe / "include/vocalyne").iterdir())
        self.assertGreater(len(entetes), 20)
        seuls = self.dossier / "seuls"
        seuls.mkdir()
        for entete in entetes:
            self.assertEqual(entete.suffix, ".h")
            (seuls / (entete.stem + ".cpp")).write_text(f"#include <{entete.name}>\n")
        (seuls / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(Seuls LANGUAGES CXX)\n"
            "find_package(VocalyneConnecteur REQUIRED)\nfile(GLOB fichiers *.cpp)\n"
            "add_library(seuls OBJECT ${fichiers})\n"
            "target_compile_options(seuls PRIVATE -fsyntax-only)\n"
            "target_link_libraries(seuls PRIVATE Vocalyne::toolkit)\n")
        lance(CMAKE, "-G", "Ninja", "-S", seuls, "-B", self.dossier / "objets",
              f"-DCMAKE_PREFIX_PATH={self.prefixe}", env=self.env)
        lance(CMAKE, "--build", self.dossier / "objets", env=self.env)


if __name__ == "__main__":
    unittest.main()
