"""What the window says about its settings at the start: a save that was interrupted, and lines that cannot be used."""
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import PATIENCE, Desktop, Program, wait_for

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
QUESTION = "The last save was interrupted. Your settings are in Pennaro2.INI. Restore them?"


def setUpModule():
    # All tests share one desktop, because the accessibility library keeps its first bus.
    RestoreTest.desktop = Desktop()
    unittest.addModuleCleanup(RestoreTest.desktop.close)


class RestoreTest(unittest.TestCase):
    desktop = None

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.settings = self.folder / "Ledgrove.ini"
        self.saved = (SOURCE / "data/Ledgrove.ini").read_bytes()

    def start(self, name):
        (self.folder / name).write_bytes(self.saved)
        program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(program.close)
        return program.find_root()

    def names(self):
        return sorted(path.name for path in self.folder.iterdir())

    def test_yes_restores_and_continues(self):
        program = self.start("Pennaro2.INI")
        self.assertEqual(program.answer("Yes"), ("Ledgrove", QUESTION))
        program.wait_focus("Annual Income")
        self.assertEqual(self.names(), ["Ledgrove.ini"])
        self.assertEqual(self.settings.read_bytes(), self.saved)

    def test_no_ends_and_does_not_move_the_settings(self):
        program = self.start("Pennaro2.INI")
        self.assertEqual(program.box()[1], QUESTION)
        program.click(program.find("push button", "No"))
        wait_for(lambda: program.box()[1] != QUESTION, "the message after the question")
        _, text = program.answer("OK")
        self.assertIn(str(self.folder / "Pennaro2.INI"), text)
        self.assertIn('Rename that file to "Ledgrove.ini"', text)
        self.assertEqual(program.process.wait(PATIENCE), 1)
        self.assertEqual(self.names(), ["Pennaro2.INI"])
        self.assertEqual((self.folder / "Pennaro2.INI").read_bytes(), self.saved)

    def test_the_keyboard_answers(self):
        program = self.start("Pennaro2.INI")
        wait_for(program.open_box, "the question")
        self.desktop.key("alt+y")
        program.wait_focus("Annual Income")
        self.assertEqual(self.names(), ["Ledgrove.ini"])

    def test_lines_that_cannot_be_used_are_named_once_at_the_start(self):
        self.saved = self.saved.replace(b"LOGOOPTION=0", b"LOGOOPTION=x").replace(b"PVSAVINGS_FLAG=FALSE", b"PVSAVINGS_FLAG=no")
        program = self.start("Ledgrove.ini")
        self.assertEqual(program.answer("OK"), (
            "Ledgrove",
            'Line 3 of Ledgrove.ini, "LOGOOPTION=x", cannot be used: it is not 0, 1 or 2. 0 (no logo) is in force instead.\n\n'
            'Line 17 of Ledgrove.ini, "PVSAVINGS_FLAG=no", cannot be used: it is neither TRUE nor FALSE. '
            "FALSE is in force instead."))
        program.wait_focus("Annual Income")
        self.assertIsNone(program.open_box())
        self.assertEqual(self.settings.read_bytes(), self.saved)

    def test_no_question_while_the_settings_exist(self):
        (self.folder / "Pennaro2.INI").write_bytes(b"half a save")
        program = self.start("Ledgrove.ini")
        program.wait_focus("Annual Income")
        self.assertIsNone(program.open_box())
        self.assertEqual(self.settings.read_bytes(), self.saved)


if __name__ == "__main__":
    unittest.main()
