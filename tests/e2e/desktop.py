"""A separate desktop for tests: an X display with a window manager, a session bus with the accessibility registry, and the
program. Tests send it real keys and clicks and read it as a screen reader does."""
import os
import re
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")

PATIENCE = 15  # seconds; an object that has not appeared by then is missing
SCREEN = "1366x768x24"
ENDS = (0, 1, 2, -signal.SIGTERM, -signal.SIGKILL)  # success, refusals, and the signals that tests send
REPORT = re.compile("Sanitizer|runtime error: ")


class Gone(Exception):
    """The awaited condition did not become true."""


def wait_for(condition, what):
    """The first true value of `condition`; accessibility calls may fail while a window is being built."""
    deadline = time.monotonic() + PATIENCE
    failure = None
    while time.monotonic() < deadline:
        try:
            value = condition()
            if value:
                return value
        except Exception as error:  # noqa: BLE001 - the bus reports vanished objects in many ways
            failure = error
        time.sleep(0.02)
    raise Gone(f"{what}" + (f" ({failure})" if failure else ""))


class Desktop:
    """Starts all processes of the desktop and ends them by process id."""

    def __init__(self, screen=SCREEN):
        self.home = Path(tempfile.mkdtemp())
        self.processes = []
        self.errors = self.home / "errors"
        runtime = self.home / "runtime"
        runtime.mkdir(mode=0o700)
        self.environment = {key: value for key, value in os.environ.items()
                            if not key.startswith(("XDG_", "GTK_", "QT_", "DBUS_", "AT_SPI_"))}
        self.environment |= {"HOME": str(self.home), "XDG_RUNTIME_DIR": str(runtime),
                             "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb", "LANG": "C.UTF-8"}
        try:
            self._start_display(screen)
            self._start_bus()
            self.start("openbox", "--sm-disable")
            wait_for(self._managed, "a window manager")
        except BaseException:
            self.close()
            raise

    def said(self):
        """The standard error of all programs since the last call."""
        text = self.errors.read_text(errors="replace")
        os.truncate(self.errors, 0)
        return text

    def _start_display(self, screen):
        reader, writer = os.pipe()
        self.start("Xvfb", "-displayfd", str(writer), "-screen", "0", screen, "-dpi", "96", "-nolisten", "tcp",
                   "-noreset", pass_fds=(writer,))
        os.close(writer)
        with os.fdopen(reader) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise Gone("the X display")
        self.environment["DISPLAY"] = f":{number}"

    def _start_bus(self):
        address = f"unix:path={self.home}/bus"
        self.start("dbus-daemon", "--session", "--nofork", f"--address={address}")
        wait_for((self.home / "bus").exists, "the session bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        self.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = address
        os.environ["DISPLAY"] = self.environment["DISPLAY"]
        wait_for(lambda: subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
             "org.a11y.Bus.GetAddress"], env=self.environment, capture_output=True).returncode == 0,
            "the accessibility bus")

    def _managed(self):
        run = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.environment, capture_output=True)
        return b"window id" in run.stdout

    def start(self, *command, **options):
        with self.errors.open("ab") as errors:
            process = subprocess.Popen([str(part) for part in command], env=self.environment, stdin=subprocess.DEVNULL,
                                       stdout=subprocess.DEVNULL, stderr=errors, **options)
        self.processes.append(process)
        return process

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, check=True,
                              capture_output=True, text=True, timeout=PATIENCE).stdout

    def key(self, *names):
        self.xdotool("key", "--clearmodifiers", *names)

    def type(self, text):
        self.xdotool("type", "--clearmodifiers", "--delay", "2", "--", text)

    def click(self, x, y):
        self.xdotool("mousemove", x, y)
        self.xdotool("click", 1)

    def screenshot(self, path):
        from PIL import ImageGrab
        ImageGrab.grab(xdisplay=self.environment["DISPLAY"]).save(path)

    def close(self):
        for process in reversed(self.processes):
            process.send_signal(signal.SIGTERM)
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        said = self.said()
        shutil.rmtree(self.home, ignore_errors=True)
        if REPORT.search(said):
            raise AssertionError(said)


class Program:
    """One run of the program with a separate folder."""

    def __init__(self, desktop, program, folder):
        self.desktop = desktop
        self.process = desktop.start(program, "--folder", folder)
        self.root = None
        self.title = None

    def find_root(self):
        from gi.repository import Atspi
        self.root = wait_for(lambda: self._application(Atspi), "the program on the accessibility bus")
        return self

    def _application(self, atspi):
        tree = atspi.get_desktop(0)
        tree.clear_cache()
        for index in range(tree.get_child_count()):
            child = tree.get_child_at_index(index)
            if child and child.get_process_id() == self.process.pid:
                return child
        return None

    # Finding. Every search reads the names again, because the figures change.

    def all(self, start=None):
        from gi.repository import Atspi
        stack = [start or self.root]
        top = stack[0]
        while stack:
            node = stack.pop()
            if node is None:
                continue
            yield node
            # Skips the items of closed pick lists: they are children too, and there are many.
            if node.get_role() != Atspi.Role.COMBO_BOX or node == top:
                stack.extend(node.get_child_at_index(i) for i in reversed(range(node.get_child_count())))

    def window(self, title=None):
        """Restricts later searches to the dialog with this title; None searches the whole program."""
        self.title = title
        if title:
            wait_for(self.front, f"the window {title}")

    def front(self):
        """The dialog given to `window`, or None for the whole program. Searches for message boxes ignore it."""
        if self.title is None:
            return None
        for index in range(self.root.get_child_count()):
            child = self.root.get_child_at_index(index)
            if child and child.get_role_name() == "dialog" and child.get_name() == self.title and self.showing(child):
                return child
        raise Gone(f"no window {self.title}")

    @staticmethod
    def showing(node):
        from gi.repository import Atspi
        return node.get_state_set().contains(Atspi.StateType.SHOWING)

    def find(self, role, name=None, description=None, missing_ok=False):
        """A visible control, in the dialog given to `window` if there is one."""
        def search():
            for node in self.all(self.front()):
                if node.get_role_name() in (role if isinstance(role, tuple) else (role,)) and self.showing(node) \
                        and (name is None or node.get_name() == name) \
                        and (description is None or node.get_description() == description):
                    return node
            return None
        if missing_ok:
            return search()
        return wait_for(search, f"{role} {name or description}")

    def centre(self, node):
        from gi.repository import Atspi
        box = node.get_extents(Atspi.CoordType.SCREEN)
        return box.x + box.width // 2, box.y + box.height // 2

    def click(self, node):
        self.desktop.click(*wait_for(lambda: self._settled(node), "a control that stays where it is"))

    def _settled(self, node):
        """The centre of the control, once the window manager has placed its window."""
        before = self.centre(node)
        time.sleep(0.03)
        return before if self.centre(node) == before else None

    # Reading and typing

    def field(self, name):
        return self.find("text", name)

    def text(self, name):
        from gi.repository import Atspi
        node = self.field(name)
        return Atspi.Text.get_text(node, 0, -1)

    def selection(self, name):
        from gi.repository import Atspi
        node = self.field(name)
        if Atspi.Text.get_n_selections(node) == 0:
            return ""
        chosen = Atspi.Text.get_selection(node, 0)
        return Atspi.Text.get_text(node, chosen.start_offset, chosen.end_offset)

    def result(self, description):
        """The text of the result label with this description."""
        return self.find("label", description=description).get_name()

    def focused(self):
        """The control with the focus. The current tab and windows always report the focus, so they do not count."""
        from gi.repository import Atspi
        for node in self.all(self.front()):
            states = node.get_state_set()
            if states.contains(Atspi.StateType.FOCUSED) and node.get_role_name() not in ("frame", "dialog", "page tab", "list item"):
                return node
        return None

    def wait_focus(self, name):
        def has():
            node = self.focused()
            return node and name in (node.get_name(), node.get_description())
        wait_for(has, f"the focus on {name}; it is on {self._focus_name()}")

    def _focus_name(self):
        node = self.focused()
        return node and (node.get_name(), node.get_description())

    def wait_text(self, name, text):
        wait_for(lambda: self.text(name) == text, f"{name} showing {text}, it shows {self.text(name)}")

    def wait_result(self, description, text):
        wait_for(lambda: self.result(description) == text, f"{description} showing {text}")

    def announced(self, act):
        """The changed names and descriptions that a screen reader hears during `act`."""
        from gi.repository import Atspi, GLib
        heard = []
        listener = Atspi.EventListener.new(lambda event: heard.append((event.type, event.source.get_name())))
        kinds = ("object:property-change:accessible-name", "object:property-change:accessible-description")
        for kind in kinds:
            listener.register(kind)
        try:
            act()
            end = time.monotonic() + 0.5
            while time.monotonic() < end:
                GLib.MainContext.default().iteration(False)
                time.sleep(0.005)
        finally:
            for kind in kinds:
                listener.deregister(kind)
        return [event for event in heard if event[1] is not None]

    def open_box(self):
        return next((node for node in self.all() if node.get_role_name() in ("alert", "alert message")
                     and self.showing(node)), None)

    def box(self):
        """The open message box and its text."""
        node = wait_for(self.open_box, "a message box")
        texts = [child.get_name() for child in self.all(node) if child.get_role_name() == "label"]
        return node, "\n".join(text for text in texts if text)

    def no_box(self):
        """Waits until no message box is open or the program has ended."""
        wait_for(lambda: self.process.poll() is not None
                 or self.open_box() is None, "the message box closed")

    def answer(self, button="OK"):
        """Presses a button of the open message box and waits until it closes; returns title and text."""
        node, text = self.box()
        title = node.get_name()
        press = wait_for(lambda: next((child for child in self.all(node) if child.get_role_name() == "push button"
                                       and child.get_name().replace("&", "") == button), None), f"button {button}")
        time.sleep(0.05)
        self.click(press)
        self.no_box()
        return title, text

    def close(self):
        """Ends the program if it still runs; fails if it crashed or a sanitizer reported an error in it or its children."""
        self.process.terminate()
        self.process.wait(PATIENCE)
        said = self.desktop.said()
        if self.process.returncode not in ENDS or REPORT.search(said):
            raise AssertionError(f"the program ended with {self.process.returncode} and said\n{said}")
