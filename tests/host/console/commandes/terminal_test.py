# SPDX-License-Identifier: MPL-2.0
"""The correction on a terminal: what a person sees and types."""
import os
import pty
import re
import select
import subprocess
import time
import unittest

from commun import PATIENCE
from corrige_test import Corrige
from hote import HOTE


class Terminal:
    """A program on a terminal of its own."""

    def __init__(self, *commande: str, env: dict[str, str]):
        self.maitre, esclave = pty.openpty()
        self.programme = subprocess.Popen(commande, env=env, stdin=esclave, stdout=esclave, stderr=esclave,
                                          start_new_session=True)
        os.close(esclave)
        self.lu = ""
        self.octets = b""

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.programme.poll() is None:
            self.programme.kill()
            self.programme.wait()
        os.close(self.maitre)

    def attends(self, motif: str) -> str:
        """Reads until the text appears behind what was waited for before; gives what came up to it."""
        fin = time.monotonic() + PATIENCE
        while motif not in self.lu:
            pret, _, _ = select.select([self.maitre], [], [], max(fin - time.monotonic(), 0))
            if not pret or not self._lis():
                raise AssertionError(f"{motif!r} never came; last: {self.lu[-500:]!r}")
        avant, _, self.lu = self.lu.partition(motif)
        return avant + motif

    def _lis(self) -> bool:
        try:
            octets = os.read(self.maitre, 65536)
        except OSError: # how a terminal says that nobody is at its other side any more
            return False
        self.octets += octets
        self.lu += octets.decode(errors="replace")
        return bool(octets)

    def tape(self, texte: str):
        os.write(self.maitre, texte.encode(errors="surrogateescape"))

    def finis(self) -> tuple[int, str]:
        while self._lis():
            pass
        return self.programme.wait(PATIENCE), self.lu


INVITE = " > "


class SurUnTerminal(Corrige):

    def setUp(self):
        super().setUp()
        self.env |= {"TERM": "xterm", "NO_COLOR": "1"}

    def terminal(self, *options: str) -> Terminal:
        terminal = Terminal(HOTE, "corrige", "i~d", "--langue", "fr", *options, env=self.env)
        self.addCleanup(terminal.__exit__)
        return terminal

    def reponds(self, *reponses: str) -> tuple[int, str]:
        """Each key after its question, a text with its Enter; the exit code and what was shown
        after the last."""
        terminal = self.terminal()
        for reponse in reponses:
            terminal.attends(INVITE)
            terminal.tape(reponse)
        return terminal.finis()

    def test_a_number_takes_that_suggestion(self):
        self.joue(["la maisso noir"])
        code, suite = self.reponds("1")
        self.assertEqual(code, 0)
        self.assertIn("Corrected: 1, refused: 0, left: 0.", suite)
        self.assertEqual(self.zones(), ["la maison noir"])

    def test_the_question_shows_the_mistake_its_suggestions_and_the_answers(self):
        self.joue(["la petite maisso rouge"])
        question = self.terminal().attends(INVITE)
        self.assertIn("    1 la petite [maisso] rouge", question)
        self.assertIn("1 maison", question)
        self.assertIn("1 choose, t correct all, r replace, i ignore, q quit, ? help", question)

    def test_a_text_of_ones_own_takes_the_place_of_the_mistake(self):
        self.joue(["la maisso noir"])
        self.assertEqual(self.reponds("r", "très petite école 😀\n")[0], 0)
        self.assertEqual(self.zones(), ["la très petite école 😀 noir"])

    def test_giving_up_ones_own_text_puts_the_question_again(self):
        self.joue(["la maisso noir"])
        self.reponds("r", "\n", "1")
        self.assertEqual(self.zones(), ["la maison noir"])

    def test_a_text_that_does_not_decode_goes_into_no_document(self):
        self.joue(["la maisso noir"])
        self.reponds("r", "\udce9cole\n", "1")
        self.assertEqual(self.zones(), ["la maison noir"])

    def test_a_mistake_without_suggestions_can_be_replaced(self):
        self.joue(["qzxwvkqzxw"])
        self.reponds("r", "chat\n")
        self.assertEqual(self.zones(), ["chat"])

    def test_ignoring_leaves_one_mistake_and_goes_on(self):
        self.joue(["maisso maisso"])
        _, suite = self.reponds("i", "1")
        self.assertEqual(self.zones(), ["maisso maison"])
        self.assertIn("Corrected: 1, refused: 0, left: 1.", suite)

    def test_ignoring_all_leaves_the_same_word_everywhere(self):
        self.joue(["maisso maisso chyen", "maisso"])
        _, suite = self.reponds("I", "1")
        self.assertEqual(self.zones(), ["maisso maisso chien", "maisso"])
        # What was not asked about again does not count as left.
        self.assertIn("Corrected: 1, refused: 0, left: 1.", suite)

    def test_quitting_keeps_what_was_done_and_counts_what_was_shown(self):
        self.joue(["maisso chyen rouje", "maisso maisso"])
        code, suite = self.reponds("1", "q")
        self.assertEqual(code, 0)
        self.assertIn("Corrected: 1, refused: 0, left: 1.", suite)
        self.assertEqual(self.zones()[0], "maison chyen rouje")

    def test_the_end_of_the_input_quits(self):
        self.joue(["maisso chyen"])
        code, suite = self.reponds("1", "\x04")
        self.assertEqual(code, 0)
        self.assertIn("left: 1", suite)

    def test_an_answer_that_is_none_puts_the_question_again(self):
        self.joue(["maisso"])
        self.reponds("0", "9", "o", "é", "\x1b", "1")
        self.assertEqual(self.zones(), ["maison"])

    def test_a_key_that_means_nothing_shows_what_the_keys_do(self):
        self.joue(["maisso"])
        terminal = self.terminal()
        terminal.attends(INVITE)
        terminal.tape("x")
        self.assertIn("q       end", terminal.attends(INVITE))

    def test_enter_behind_a_key_is_passed_over(self):
        self.joue(["maisso chyen rouje"])
        self.reponds("1\n", "1\n", "1\n")
        self.assertEqual(self.zones(), ["maison chien rouge"])

    def test_one_key_corrects_the_same_mistake_everywhere(self):
        self.joue(["maisso chyen maisso", "maisso"])
        _, suite = self.reponds("t", "i")
        self.assertEqual(self.zones(), ["maison chyen maison", "maison"])
        self.assertIn("Corrected: 3, refused: 0, left: 1.", suite)

    def test_going_back_takes_a_correction_back_and_asks_again(self):
        self.joue(["la maisso noir chyen", "rouje"])
        _, suite = self.reponds("1", "b", "i", "1", "b", "1", "1")
        self.assertEqual(self.zones(), ["la maisso noir chien", "rouge"])
        self.assertIn("Corrected: 2, refused: 0, left: 1.", suite)

    def test_going_back_to_the_zone_before_works_too(self):
        self.joue(["maisso", "chyen"])
        self.reponds("1", "b", "r", "chat noir\n", "1")
        self.assertEqual(self.zones(), ["chat noir", "chien"])

    def test_there_is_nothing_to_go_back_to_before_the_first_mistake(self):
        self.joue(["maisso"])
        self.reponds("b", "1")
        self.assertEqual(self.zones(), ["maison"])

    def test_a_refused_correction_is_told_at_once(self):
        self.joue(["maisso chyen"], [{"op": "PeutCorriger", "appel": 1, "reponse": False}])
        terminal = self.terminal()
        terminal.attends(INVITE)
        terminal.tape("1")
        self.assertIn("refused: maison", terminal.attends(INVITE))
        terminal.tape("1")
        self.assertEqual(terminal.finis()[0], 1)

    def test_mistakes_are_in_colour_on_a_terminal_that_knows_colours(self):
        self.joue(["la maisso noir"])
        self.env["NO_COLOR"] = ""
        question = self.terminal().attends(INVITE)
        self.assertIn("la \x1b[1;31mmaisso\x1b[0m noir", question)

    def test_no_colour_where_the_person_or_the_terminal_wants_none(self):
        self.joue(["la maisso noir"])
        for reglage in ({"NO_COLOR": "1"}, {"NO_COLOR": "", "TERM": "dumb"}):
            with self.subTest(reglage):
                self.env |= reglage
                self.assertNotIn("\x1b", self.terminal().attends(INVITE))

    def test_automatic_asks_nothing_on_a_terminal(self):
        self.joue(["la maisso noir"])
        terminal = self.terminal("--tout")
        code, suite = terminal.finis()
        self.assertEqual((code, INVITE in suite), (0, False))
        self.assertEqual(self.zones(), ["la maison noir"])

    def test_json_asks_nothing_on_a_terminal_and_changes_nothing(self):
        self.joue(["la maisso noir"])
        code, suite = self.terminal("--sortie", "json").finis()
        self.assertEqual((code, INVITE in suite), (0, False))
        self.assertEqual(self.zones(), ["la maisso noir"])

    def test_a_long_work_shows_how_far_it_is_and_takes_that_away(self):
        # Without the wait of a fifth of a second that spares short works the sight of it.
        self.env["VOCALYNE_PROGRESSION_MS"] = "0"
        self.joue(["chat chien maison blanche petite rouge"] * 250)
        terminal = self.terminal("--tout")
        vu = terminal.attends(" of 250")
        self.assertRegex(vu, r"\r\x1b\[KParagraph \d+ of 250")
        _, suite = terminal.finis()
        self.assertTrue(re.search(r"\r\x1b\[KNo mistake\.\r\n$", suite), suite[-80:])


del Corrige # its tests are another script's


if __name__ == "__main__":
    unittest.main()
