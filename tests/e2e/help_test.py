"""The shipped help in its window, opened, read and closed with keys only."""
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
HELP = "Ledgrove Help"
# Each tab with the heading of its topic.
TABS = (("Welcome", "Welcome: a first comparison"), ("Cash Flow", "Cash Flow"), ("More Home", "More Home"),
        ("Affordability", "Affordability"), ("Summary", "Summary"))


def setUpModule():
    # All tests share one desktop, because the accessibility library keeps its first bus.
    HelpTest.desktop = Desktop()
    unittest.addModuleCleanup(HelpTest.desktop.close)


class HelpTest(unittest.TestCase):
    desktop = None

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        for name in ("Ledgrove.ini", "LEDGROVE.HLP"):
            shutil.copy(SOURCE / "data" / name, self.folder)
        self.program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(self.program.close)
        self.program.find_root()
        self.program.wait_focus("Annual Income")

    def help_window(self):
        """The help window in the accessibility tree, or None while it is closed."""
        for index in range(self.program.root.get_child_count()):
            child = self.program.root.get_child_at_index(index)
            if child and child.get_name() == HELP and self.program.showing(child):
                return child
        return None

    def wait_help(self):
        return wait_for(self.help_window, "the help window")

    def wait_closed(self):
        wait_for(lambda: self.help_window() is None, "the help window closed")

    def part(self, role, name=None, description=None):
        def search():
            for node in self.program.all(self.wait_help()):
                if node.get_role_name() == role and name in (None, node.get_name()) \
                        and description in (None, node.get_description()):
                    return node
            return None
        return wait_for(search, f"{role} {name or description}")

    def first_line(self):
        """The line of the text at the top of the window."""
        from gi.repository import Atspi
        node = self.part("label", "Help")
        box = node.get_extents(Atspi.CoordType.SCREEN)
        # Only a point on a character has an offset in the text.
        points = ((box.x + across, box.y + down) for down in range(6, 40, 4) for across in range(10, 70, 6))
        places = (Atspi.Text.get_offset_at_point(node, x, y, Atspi.CoordType.SCREEN) for x, y in points)
        at = next((place for place in places if place >= 0), None)
        if at is None:
            return ""
        whole = Atspi.Text.get_text(node, 0, -1)
        start = whole.rfind("\n", 0, at) + 1
        return whole[start:whole.find("\n", at)].strip()

    def wait_topic(self, heading):
        wait_for(lambda: self.first_line() == heading, f"the topic {heading}; it shows {self.first_line()}")

    def wait_focused(self, name):
        """Waits until a control of the help has the focus."""
        from gi.repository import Atspi

        def has():
            return any(node.get_state_set().contains(Atspi.StateType.FOCUSED) and node.get_name() == name
                       for node in self.program.all(self.wait_help()))
        wait_for(has, f"the focus on {name}")

    def found(self, text):
        wait_for(lambda: self.part("label", description="Matches").get_name() == text, f"{text} matches")

    def choose_tab(self, name):
        self.program.click(self.program.find("page tab", name))
        if name != "Welcome":
            self.program.answer()  # the data check: nothing is entered


class Topics(HelpTest):
    def test_f1_on_each_tab_opens_its_topic(self):
        for tab, heading in TABS:
            if tab != "Welcome":
                self.choose_tab(tab)
            self.desktop.key("F1")
            self.wait_focused("Help")
            self.wait_topic(heading)
            self.desktop.key("Escape")
            self.wait_closed()

    def test_f1_in_a_dialog_opens_its_topic_and_escape_keeps_the_dialog_open(self):
        self.program.click(self.program.find("push button", "Options"))
        self.program.window("Options")
        self.desktop.key("F1")
        self.wait_focused("Help")
        self.wait_topic("Options")
        self.desktop.key("Escape")
        self.wait_closed()
        self.program.window("Options")

    def press(self, button):
        """Presses a button that the help window may cover."""
        from gi.repository import Atspi
        Atspi.Action.do_action(self.program.find("push button", button), 0)

    def test_a_dialog_uses_the_help_that_is_already_open(self):
        from gi.repository import Atspi
        self.desktop.key("F1")
        self.wait_focused("Help")
        self.wait_topic("Welcome: a first comparison")
        place = self.help_window().get_extents(Atspi.CoordType.SCREEN)
        self.press("Options")
        self.program.window("Options")
        self.press("Help")
        self.wait_focused("Help")
        self.wait_topic("Options")
        self.assertEqual(sum(child is not None and child.get_name() == HELP for child in (
            self.program.root.get_child_at_index(i) for i in range(self.program.root.get_child_count()))), 1)
        self.search("Glossary", "2 of 2")  # usable above the modal dialog
        self.press("Cancel")
        self.program.window()
        wait_for(lambda: self.program.find("dialog", "Options", missing_ok=True) is None, "Options closed")
        self.program.click(self.part("label", "Help"))
        self.wait_focused("Help")
        self.search("Glossary", "2 of 2")
        self.desktop.key("alt+Left")
        self.wait_topic("Welcome: a first comparison")
        moved = self.help_window().get_extents(Atspi.CoordType.SCREEN)
        self.assertEqual((moved.x, moved.y, moved.width, moved.height),
                         (place.x, place.y, place.width, place.height))
        self.desktop.key("Escape")
        self.wait_closed()

    def search(self, words, matches):
        self.desktop.key("ctrl+f")
        self.wait_focused("Find in the help")
        self.desktop.type(words)
        self.found(matches)
        self.desktop.key("Escape")
        self.wait_focused("Help")

    def test_an_unusable_help_file_is_reported(self):
        (self.folder / "LEDGROVE.HLP").write_bytes(bytes(range(256)) * 64)
        self.desktop.key("F1")
        self.assertIn("holds no text", self.program.answer()[1])
        self.assertIsNone(self.help_window())


class Reading(HelpTest):
    def setUp(self):
        super().setUp()
        self.desktop.key("F1")
        self.wait_focused("Help")
        self.wait_topic("Welcome: a first comparison")

    def test_contents_links_back_and_forward(self):
        self.desktop.key("alt+Home")
        self.wait_topic("Ledgrove Help")
        self.desktop.key("Tab", "Tab", "Return")  # the second link of the contents
        self.wait_topic("What you enter")
        self.desktop.key("alt+Left")
        self.wait_topic("Ledgrove Help")
        self.desktop.key("alt+Left")
        self.wait_topic("Welcome: a first comparison")
        self.desktop.key("alt+Right", "alt+Right")
        self.wait_topic("What you enter")

    def test_search(self):
        self.desktop.key("ctrl+f")
        self.wait_focused("Find in the help")
        self.desktop.type("Glossary")
        self.found("2 of 2")  # the first match is in the contents, above the current topic
        self.desktop.key("Return")
        self.found("1 of 2")
        self.desktop.key("F3")
        self.found("2 of 2")
        self.desktop.type("x")
        self.found("Not found")
        self.desktop.key("Escape")
        self.wait_focused("Help")
        self.desktop.key("Escape")
        self.wait_closed()

    def test_ctrl_w_closes(self):
        self.desktop.key("ctrl+w")
        self.wait_closed()


if __name__ == "__main__":
    unittest.main()
