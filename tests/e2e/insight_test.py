"""The Insight window beside the real main window: a buyer who does not qualify is made to qualify and the entry is taken back,
once with keys alone and once with the mouse alone; a figure of the Summary tab is followed to Ledgrove.ini."""
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
QUESTION = "Do we qualify, and what would help?"


class Insight(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)
        self.program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(self.program.close)
        self.program.find_root()
        self.program.wait_focus("Annual Income")
        for name, text in (("Annual Income", "50000"), ("Monthly Debt", "350"), ("% Down, Down Payment", "10"),
                           ("Sticker Price, Base Home", "200000"), ("Sticker Price, GREENMARK Home", "206000"),
                           ("Annual Utility Cost, Base Home", "2400"), ("Annual Utility Cost, GREENMARK Home", "1700")):
            self.program.click(self.program.field(name))
            self.desktop.type(text)
            self.desktop.key("Return")

    def title_of_front(self):
        return self.desktop.xdotool("getactivewindow", "getwindowname").strip()

    def wait_front(self, title):
        wait_for(lambda: self.title_of_front() == title, f"the window {title} in front")

    def cell(self, beginning):
        """The visible cell of the answer whose spoken text begins so."""
        return wait_for(lambda: next((node for node in self.program.all() if node.get_role_name() == "table cell"
                                      and (node.get_name() or "").startswith(beginning) and self.program.showing(node)), None),
                        f"the cell {beginning}")

    def sentence(self):
        return wait_for(lambda: next((node.get_name() for node in self.program.all() if node.get_role_name() == "label"
                                      and self.program.showing(node) and (node.get_name() or "").startswith("The buyer")), None),
                        "the sentence")

    def income(self):
        return self.program.text("Annual Income")

    def test_keys_alone(self):
        self.desktop.key("ctrl+4")
        while self.program.open_box():
            self.program.answer()
        self.desktop.key("ctrl+i")
        self.wait_front("Insight")
        self.assertIn("does not qualify for the base home", self.sentence())
        # The question of the Affordability tab is asked; Tab leads to the sentence and the table, Enter tries the current cell.
        self.desktop.key("Tab", "Tab", "ctrl+Home", "Down", "Down", "Right", "Right", "Return")
        needed = wait_for(lambda: self.income() if self.income() != "$50,000" else None, "another income")
        self.assertGreater(int(needed.strip("$").replace(",", "")), 50000)
        wait_for(lambda: "qualifies for the GREENMARK home" in self.sentence(), "the buyer qualifies")
        self.desktop.key("Escape")
        wait_for(lambda: "Ledgrove" in self.title_of_front(), "the main window in front")
        self.desktop.key("ctrl+z")
        wait_for(lambda: self.income() == "$50,000", "the income taken back")
        self.desktop.key("ctrl+shift+z")
        wait_for(lambda: self.income() == needed, "the income again")

    def test_the_mouse_alone(self):
        self.program.click(self.program.find("page tab", "Affordability"))
        while self.program.open_box():
            self.program.answer()
        self.program.click(self.program.find("push button", QUESTION))
        self.wait_front("Insight")
        self.program.click(self.cell("Annual income, Base Home: needs"))
        self.program.click(self.program.find("push button", "Try It"))
        wait_for(lambda: self.income() != "$50,000", "another income")
        wait_for(lambda: "qualifies for the base home" in self.sentence(), "the buyer qualifies")

    def test_a_figure_of_the_summary_is_followed_to_the_settings(self):
        self.desktop.key("ctrl+5")
        while self.program.open_box():
            self.program.answer()
        figure = wait_for(lambda: next((node for node in self.program.all() if node.get_role_name() == "label"
                                        and (node.get_description() or "").startswith("Mortgage Payment, Base Home")
                                        and self.program.showing(node)), None), "the payment on the Summary tab")
        self.desktop.xdotool("mousemove", *self.program.centre(figure))
        self.desktop.key("F2")
        self.wait_front("Insight")
        rate = wait_for(lambda: next((node for node in self.program.all() if "ASSUMPTION1" in (node.get_name() or "")
                                      and self.program.showing(node)), None) or self.open_more(), "the tax rate's source")
        self.assertIn("in Ledgrove.ini", rate.get_name())

    def open_more(self):
        """Opens the branch of the current line."""
        self.desktop.key("Tab", "Tab", "Tab", "asterisk")


if __name__ == "__main__":
    unittest.main()
