"""Prints the report from the real window, with a separate print server and without one. The tests read the server's records
and the printed documents."""
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from desktop import SCREEN, Desktop, Program, wait_for
from print_server import PrintServer, free_port

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
SCREEN_WIDTH = int(SCREEN.split("x")[0])
SELECTION, HEADER, PREVIEW = "Report Selection", "Print Options", "Summary Report"
SAMPLE = (("Annual Income", "72000"), ("Monthly Debt", "350"), ("% Down, Down Payment", "10"),
          ("Sticker Price, Base Home", "200000"), ("Sticker Price, GREENMARK Home", "206000"),
          ("Annual Utility Cost, Base Home", "2400"), ("Annual Utility Cost, GREENMARK Home", "1700"))
GENERIC_PDF = "lsb/usr/cupsfilters/Generic-PDF_Printer-PDF.ppd"
SECTIONS = ("Cash Flow", "More Home", "Affordability", "Summary", "Financial Assumptions")


def setUpModule():
    # All tests share one desktop, because the accessibility library keeps its first bus.
    PrintTest.desktop = Desktop()
    unittest.addModuleCleanup(PrintTest.desktop.close)


def pdf_text(pdf):
    return subprocess.run(["pdftotext", "-layout", pdf, "-"], check=True, capture_output=True, text=True).stdout


def pdf_pages(pdf):
    """The size of each page in points, width by height."""
    info = subprocess.run(["pdfinfo", "-f", "1", "-l", "-1", pdf], check=True, capture_output=True, text=True).stdout
    return [(round(float(width)), round(float(height)))
            for width, height in re.findall(r"^Page +\d+ size: +([\d.]+) x ([\d.]+) pts", info, re.M)]


class PrintTest(unittest.TestCase):
    desktop = None

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        for name in ("Ledgrove.ini", "LedgroveEmblem.png", "GenericHouseLogo.bmp"):
            shutil.copy(SOURCE / "data" / name, self.folder)

    def start(self, server):
        """Starts the program with this print server and types the sample."""
        self.desktop.environment["CUPS_SERVER"] = server
        self.program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(self.program.close)
        self.program.find_root()
        self.program.wait_focus("Annual Income")
        for name, text in SAMPLE:
            self.program.click(self.program.field(name))
            self.program.wait_focus(name)
            self.desktop.type(text)
            self.desktop.key("Return")
        self.press("Print Reports")
        self.program.window(SELECTION)

    def press(self, button):
        self.program.click(self.program.find("push button", button))

    def tick(self, sections):
        """Ticks these sections and no others; the dialog begins with those of the last preview."""
        from gi.repository import Atspi
        for section in SECTIONS:
            box = self.program.find("check box", section)

            def is_right(box=box, wanted=section in sections):
                return box.get_state_set().contains(Atspi.StateType.CHECKED) == wanted
            if not is_right():
                self.program.click(box)
                wait_for(is_right, f"{section} as wanted")

    def preview(self, sections=()):
        self.tick(sections)
        self.press("Preview")
        self.program.window(PREVIEW)

    def chosen(self, description):
        return self.program.find("combo box", description=description).get_name()

    def choose(self, description, key, item):
        """Chooses an item by its first letter, in the list that Alt and `key` select."""
        self.desktop.key("alt+" + key)
        self.program.wait_focus(description)
        self.desktop.type(item[0])
        wait_for(lambda: self.chosen(description) == item, f"{description} on {item}")

    def status(self):
        return self.program.find("label", description="Printer details").get_name().splitlines()

    def enter_copies(self, text):
        self.program.click(self.program.field("Copies"))
        self.program.wait_focus("Copies")
        self.desktop.type(text)


class WithServer(PrintTest):
    """Office is the default printer, on letter; Lab prints on A4."""

    @classmethod
    def setUpClass(cls):
        cls.server = PrintServer()
        cls.addClassCleanup(cls.server.close)
        cls.server.add_printer("Office", GENERIC_PDF)
        cls.server.add_printer("Lab", "drv:///sample.drv/generpcl.ppd", "-o", "PageSize=A4")
        cls.server.run("lpadmin", "-d", "Office")

    def start(self):
        super().start(self.server.address)
        self.jobs_before = len(self.server.completed())

    def print(self):
        """Presses "Print" and waits for the job; returns its printer and number."""
        self.press("Print")
        return self.server.wait_job(self.jobs_before + 1)

    def test_the_report_goes_to_the_default_printer(self):
        self.start()
        self.preview(SECTIONS)
        self.assertEqual(self.chosen("Printer"), "Office")
        status = self.status()
        self.assertEqual(status[0], "DPI:  600")
        self.assertTrue(status[1].startswith("Port: /") or status[1].startswith("Port: file:"), status)
        self.assertTrue(status[1].endswith("/Office"), status)
        self.assertTrue(status[2].startswith("Driver: Generic PDF"), status)
        self.program.find("label", "Page 1 of 2")
        self.enter_copies("2")
        printer, job = self.print()
        self.assertEqual(printer, "Office")
        self.assertEqual(self.server.attribute(job, "copies"), "2")
        self.assertEqual(self.server.attribute(job, "job-name"), "Summary Report")
        document = self.server.document(job)
        self.assertEqual(pdf_pages(document), [(612, 792)] * 2)  # letter: 8.5 and 11 times 72
        self.assertTrue(self.server.printed_pages(job)[-1].endswith("total 4"))  # two pages twice
        text = pdf_text(document)
        for part in ("Summary Report for Ledgrove", "Home Buyer Financial Information", "$206,000", "Conventional",
                     "GREENMARK - More Value For Less Cost", "Buy More Home", "Finished basement",
                     "GREENMARK Qualified Homes are Affordable", "Net Monthly Payment", "Front End Ratio", "Page 2"):
            self.assertIn(part, text)
        # The preview stays open for more printing.
        wait_for(lambda: self.program.focused() and self.program.focused().get_name() == "Print", "Print again")

    def test_copies_are_collated(self):
        self.start()
        self.preview(SECTIONS)
        self.program.find("label", "Page 1 of 2")
        self.enter_copies("2")
        printer, _ = self.print()
        # "Page 1" and "Page 2" are the pages' footers.
        printed = re.findall(r"\bPage (\d+)$", pdf_text(self.server.output(printer)), re.M)
        self.assertEqual(printed, ["1", "2", "1", "2"])

    def test_landscape_on_a4_at_the_other_printer(self):
        self.start()
        self.preview()
        self.choose("Printer", "r", "Lab")
        self.assertEqual(self.status()[0], "DPI:  300")
        self.program.find("label", "8.3x11.7")
        self.choose("Orientation", "o", "Landscape")
        self.program.find("label", "11.7x8.3")
        printer, job = self.print()
        self.assertEqual(printer, "Lab")
        self.assertEqual(pdf_pages(self.server.document(job)), [(842, 595)])  # 297 mm and 210 mm
        self.assertEqual(self.server.attribute(job, "copies"), "1")
        self.assertEqual(len(pdf_text(self.server.document(job)).split("Home Buyer Financial Information")), 2)

    def test_the_header_is_printed(self):
        self.start()
        self.press("Report Header")
        self.program.window(HEADER)
        self.desktop.type("Acme Homes")
        self.desktop.key("Return")
        self.desktop.type("Kim Park")
        self.choose("Additional Report Logo", "a", "Generic House Logo")
        self.press("OK")
        self.program.window(SELECTION)
        self.preview()
        _, job = self.print()
        text = pdf_text(self.server.document(job))
        self.assertRegex(text, r"Prepared By: +Acme Homes")
        self.assertRegex(text, r"Prepared For: +Kim Park")
        images = subprocess.run(["pdfimages", "-list", self.server.document(job)], check=True, capture_output=True,
                                text=True).stdout
        self.assertEqual([line.split()[2] for line in images.splitlines()[2:]].count("image"), 2,
                         images)  # the emblem and the logo
        self.assertIn(b"LOGOOPTION=1\r\n", (self.folder / "Ledgrove.ini").read_bytes())

    def test_refused_copies_print_nothing(self):
        self.start()
        self.preview()
        self.enter_copies("two")
        self.press("Print")
        self.assertEqual(self.program.answer(), ("Ledgrove", "You must enter a number here."))
        self.program.wait_focus("Copies")
        self.assertEqual(self.program.selection("Copies"), "two")
        self.desktop.type("1")
        self.print()
        self.assertEqual(len(self.server.completed()), self.jobs_before + 1)

    def test_a_removed_printer_is_reported(self):
        self.server.add_printer("Attic", GENERIC_PDF)
        self.start()
        self.preview()
        self.choose("Printer", "r", "Attic")
        self.server.remove_printer("Attic")
        self.press("Print")
        self.assertEqual(self.program.answer(), ("Ledgrove", 'The report was not printed: the printer "Attic" is no '
                                                 "longer there. Choose another printer."))
        self.choose("Printer", "r", "Office")
        self.assertEqual(self.print()[0], "Office")

    def test_the_opening_list_knows_a_new_printer(self):
        self.addCleanup(self.server.remove_printer, "Attic")
        self.start()
        self.preview()
        self.server.add_printer("Attic", GENERIC_PDF)
        self.desktop.key("alt+r")
        self.program.wait_focus("Printer")
        self.desktop.key("alt+Down")
        time.sleep(0.3)  # the open list takes the keys
        self.assertEqual(self.chosen("Printer"), "Office")
        self.desktop.key("Home", "Return")
        wait_for(lambda: self.chosen("Printer") == "Attic", "the new printer")
        self.assertEqual(self.print()[0], "Attic")

    def test_a_paused_printer_is_asked_about(self):
        self.addCleanup(self.server.resume, "Office")
        self.start()
        self.preview()
        self.server.pause("Office")
        self.press("Print")
        self.assertEqual(self.program.answer("No"), ("Ledgrove", 'The printer "Office" is paused. The report waits there '
                                                     "until someone resumes the printer. Print it anyway?"))
        self.assertEqual(self.server.run("lpstat", "-o", "Office"), "")
        self.server.resume("Office")
        self.server.pause("Office", "-r", "Toner is empty.")
        self.press("Print")
        self.assertIn('"Office" is paused (Toner is empty). The report', self.program.answer("Yes")[1])
        wait_for(lambda: self.server.run("lpstat", "-o", "Office").startswith("Office-"), "the job in the queue")
        self.server.resume("Office")
        self.assertEqual(self.server.wait_job(self.jobs_before + 1)[0], "Office")

    def test_a_printer_that_refuses_jobs_is_reported(self):
        self.addCleanup(self.server.accept, "Office")
        self.start()
        self.preview()
        self.server.refuse("Office", "Being moved")
        self.press("Print")
        title, text = self.program.answer()
        self.assertEqual(title, "Ledgrove")
        self.assertTrue(text.startswith('The report was not printed: the printer "Office" does not accept jobs now '
                                        "(Being moved)."), text)
        self.server.accept("Office")
        self.assertEqual(self.print()[0], "Office")


class ServerEnds(PrintTest):
    def test_the_ended_print_service_is_reported(self):
        server = PrintServer()
        self.addCleanup(server.close)
        server.add_printer("Office", GENERIC_PDF)
        self.start(server.address)
        self.preview()
        self.assertEqual(self.chosen("Printer"), "Office")
        server.stop()
        self.press("Print")
        title, text = self.program.answer()
        self.assertEqual(title, "Ledgrove")
        self.assertTrue(text.startswith('The report was not printed: the printer "Office" cannot be reached, because the '
                                        "print service is not running"), text)
        self.assertTrue(text.endswith('"Print to PDF" works without it.'), text)


class WithoutServer(PrintTest):
    def start(self):
        super().start(f"127.0.0.1:{free_port()}")

    def test_only_pdf_is_offered(self):
        self.start()
        self.preview()
        self.assertEqual(self.chosen("Printer"), "Print to PDF")
        self.assertEqual(self.status(), ["DPI:  1440", "Port: FILE:", "Driver: Ledgrove PDF"])
        self.press("Print")
        self.program.window("Print to PDF")
        self.desktop.key("ctrl+a")
        self.desktop.type(str(self.folder / "Kim Park"))
        self.desktop.key("Return")
        self.program.window(PREVIEW)
        pdf = self.folder / "Kim Park.pdf"
        wait_for(pdf.exists, "the PDF")
        self.assertEqual(pdf_pages(pdf), [(612, 792)])
        self.assertIn("Home Buyer Financial Information", pdf_text(pdf))

    def test_pages_and_zoom_by_keyboard(self):
        self.start()
        self.preview(SECTIONS)
        self.program.find("label", "Page 1 of 2")
        self.desktop.key("Page_Down")
        self.program.find("label", "Page 2 of 2")
        self.program.find("push button", "Page 1")
        self.desktop.key("Home")
        self.program.find("label", "Page 1 of 2")
        self.assertEqual(self.chosen("Zoom in percent"), "60")
        self.desktop.key("ctrl+plus")
        wait_for(lambda: self.chosen("Zoom in percent") == "65", "65 percent")
        self.desktop.key("ctrl+minus", "ctrl+minus")
        wait_for(lambda: self.chosen("Zoom in percent") == "50", "50 percent")
        self.press("Maximize")
        self.program.find("push button", "Minimize")
        self.desktop.key("Escape")
        self.program.window(SELECTION)
        wait_for(lambda: self.program.find("check box", "Summary") is not None, "the selection again")

    def window_number(self):
        return self.desktop.xdotool("search", "--onlyvisible", "--name", f"^{PREVIEW}$").strip()

    def place(self):
        """The place of the preview window on the screen without its frame: left, top, width, height."""
        shown = subprocess.run(["xwininfo", "-id", self.window_number()], env=self.desktop.environment, check=True,
                               capture_output=True, text=True).stdout
        return tuple(int(re.search(rf"{name}: +(-?\d+)", shown)[1])
                     for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def wait_place(self, is_right, what):
        wait_for(lambda: is_right(self.place()), f"the window {what}; it is at {self.place()}")
        time.sleep(0.4)  # a window manager may move it once more
        self.assertTrue(is_right(self.place()), self.place())

    def double_click_title(self):
        left, top, width, _ = self.place()
        self.desktop.xdotool("mousemove", left + width // 2, top - 8, "click", "--repeat", 2, "--delay", 60, 1)

    def test_minimize_returns_to_the_place_before(self):
        self.start()
        self.preview()
        window = self.window_number()
        self.desktop.xdotool("windowsize", "--sync", window, 760, 600)
        self.desktop.xdotool("windowmove", window, 217, 83)
        self.wait_place(lambda place: place[2:] == (760, 600), "with its new size")
        before = self.place()
        self.assertGreater(before[0], 200)
        by_button = (lambda: self.press("Maximize"), lambda: self.press("Minimize"))
        by_title = (self.double_click_title,) * 2
        for maximize, restore in (by_button, by_title, (by_button[0], by_title[1]), (by_title[0], by_button[1])):
            maximize()
            self.program.find("push button", "Minimize")
            self.wait_place(lambda place: place[2] == SCREEN_WIDTH, "maximized")
            restore()
            self.program.find("push button", "Maximize")
            self.wait_place(lambda place: place == before, f"at {before} again")

    def test_a_window_that_was_just_moved_returns(self):
        self.start()
        self.preview()
        window = self.window_number()
        for left in (40, 330):
            self.desktop.xdotool("windowmove", "--sync", window, left, 60)
            before = self.place()
            self.press("Maximize")
            self.wait_place(lambda place: place[2] == SCREEN_WIDTH, "maximized")
            self.press("Minimize")
            self.wait_place(lambda place: place == before, f"at {before} again")


if __name__ == "__main__":
    unittest.main()
