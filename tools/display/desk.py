"""A display of one's own: a virtual X server, a window manager on it, its mouse, keys and windows."""

import contextlib
import ctypes
import functools
import os
import pathlib
import select
import shutil
import signal
import subprocess
import tempfile
import time

from PIL import Image
from Xlib import X, XK, Xatom, display, error
from Xlib.ext import xtest
from Xlib.protocol import event

PATIENCE = 30  # seconds; far more than anything takes on an idle machine


def wait_until(what, look, patience=PATIENCE):
    """Looks until it sees something, and returns that. `what` names it when it does not come."""
    end = time.monotonic() + patience
    while not (seen := look()):
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)
    return seen


def start(command, **options):
    """Starts a child process that cannot outlive this one."""
    die_with_parent = functools.partial(ctypes.CDLL(None).prctl, 1, signal.SIGKILL)
    return subprocess.Popen(command, preexec_fn=die_with_parent, **{"stdin": subprocess.DEVNULL, **options})


def stop(process):
    process.kill()
    process.wait()


class Desk:
    """The virtual display. Use it in a `with`: all that it started ends with it."""

    def __init__(self, window_manager="openbox", size=(1280, 960)):
        self.window_manager = window_manager
        self.size = size
        self.display = None
        self._children = []
        self._endings = []

    def __enter__(self):
        self._folder = tempfile.TemporaryDirectory(prefix="desk-", ignore_cleanup_errors=True)
        self.home = self._folder.name
        try:
            self._start_server()
            if self.window_manager:
                self._start_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for ending in self._endings:
            ending()
        if self.display:
            self.display.close()
        for child in reversed(self._children):
            stop(child)
        self._folder.cleanup()

    def start(self, command, quiet=False, pipes=None, **variables):
        """Starts a program on this display, with nothing of the user's desktop and files. `pipes` are its standard
        input and output, where they are not this one's."""
        kept = {name: os.environ[name] for name in ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS") if name in os.environ}
        kept |= {"LANG": "C.UTF-8", "HOME": self.home, "XDG_RUNTIME_DIR": self.home, "SDL_AUDIODRIVER": "dummy",
                 "XDG_CONFIG_HOME": self.home + "/config", "XDG_CACHE_HOME": self.home + "/cache"}
        words = subprocess.DEVNULL if quiet else None
        options = {"stdout": words, "stderr": words, **(pipes or {})}
        self._children.append(start(command, env={**kept, "DISPLAY": self.name, **variables}, **options))
        return self._children[-1]

    def launcher(self, preparation):
        """A script that starts the game after a line of shell."""
        script = pathlib.Path(self.home, "launch")
        script.write_text(f"#!/bin/sh\n{preparation}\nexec '{os.environ['GAME']}'\n")
        script.chmod(0o755)
        return str(script)

    def lose_server(self):
        """The display goes, with all that is on it."""
        self.display = None
        stop(self._children[0])

    def at_end(self, ending):
        """Has `ending` called before all that was started here is stopped."""
        self._endings.append(ending)

    def _start_server(self):
        for program in filter(None, ("Xvfb", self.window_manager)):
            if not shutil.which(program):
                raise FileNotFoundError(f"{program} is not installed")
        there, here = os.pipe()
        screen = "{}x{}x24".format(*self.size)
        server = ["Xvfb", "-displayfd", str(here), "-screen", "0", screen, "-noreset", "-nolisten", "tcp"]
        self._children.append(start(server, pass_fds=[here], stderr=subprocess.DEVNULL))
        os.close(here)
        with os.fdopen(there) as number:
            # The server tells its number when it is ready, or closes the pipe when it gives up.
            if not select.select([number], [], [], PATIENCE)[0] or not (line := number.readline().strip()):
                raise RuntimeError("the virtual display does not start")
        self.name = ":" + line
        self.display = display.Display(self.name)
        self.display.set_error_handler(lambda *_: None)  # windows may go between a look and a request
        self.root = self.display.screen().root
        self.display.xfixes_query_version()

    def _start_window_manager(self):
        command, variables = [self.window_manager], {"NO_AT_BRIDGE": "1"}
        if self.window_manager == "xfwm4":
            # It reads its settings over a session bus.
            command.append("--compositor=off")
            variables["DBUS_SESSION_BUS_ADDRESS"] = bus = f"unix:path={self.home}/bus"
            self.start(["dbus-daemon", "--session", "--nofork", "--address=" + bus], quiet=True)
            wait_until("the session bus", lambda: os.path.exists(self.home + "/bus"))
        self.start(command, quiet=True, **variables)
        check = self.display.intern_atom("_NET_SUPPORTING_WM_CHECK")
        wait_until(self.window_manager, lambda: self.root.get_full_property(check, Xatom.WINDOW))
        wait_until(f"{self.window_manager} to show windows", self._shows_a_probe)

    def _shows_a_probe(self):
        """While it starts, a window manager may forget a window that asks to be shown. So ask until one is."""
        probe = self.root.create_window(0, 0, 9, 9, 0, X.CopyFromParent)
        probe.map()
        try:
            return wait_until("a probe", Window(self, probe).is_shown, patience=1)
        except AssertionError:
            return False
        finally:
            probe.destroy()
            self.display.sync()

    # --- Mouse and keys

    def move(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=x, y=y)
        self.display.sync()

    def press(self, button=1):
        xtest.fake_input(self.display, X.ButtonPress, button)
        self.display.sync()

    def release(self, button=1):
        xtest.fake_input(self.display, X.ButtonRelease, button)
        self.display.sync()

    def click(self, x, y):
        self.move(x, y)
        self.press()
        self.release()

    def drag(self, start, end, steps=8):
        """Press, move in steps, and leave the button down."""
        self.move(*start)
        self.press()
        for step in range(1, steps + 1):
            self.move(*(round(a + (b - a) * step / steps) for a, b in zip(start, end)))

    def key(self, *names):
        """Presses keys together, such as "Alt_L", "g"."""
        with self.holding(*names):
            pass

    @contextlib.contextmanager
    def holding(self, *names):
        """Keeps keys down meanwhile. The server repeats the last of them after two thirds of a second."""
        codes = [self.display.keysym_to_keycode(XK.string_to_keysym(name)) for name in names]
        for code in codes:
            xtest.fake_input(self.display, X.KeyPress, code)
        self.display.sync()
        yield
        for code in reversed(codes):
            xtest.fake_input(self.display, X.KeyRelease, code)
        self.display.sync()
        # A press in the millisecond of the release, which no hand can do, is how the server tells a key that repeats.
        time.sleep(0.002)

    def pointer_shape(self):
        """The pixels of the pointer as it is shown now."""
        return bytes(value & 255 for value in self.display.xfixes_get_cursor_image(self.root).cursor_image)

    def take_keyboard(self):
        """Opens a window of another program, which takes the keyboard. Returns it."""
        other = self.root.create_window(0, 0, 50, 50, 0, X.CopyFromParent)
        other.map()
        wait_until("a window of another program", Window(self, other).is_shown)
        other.set_input_focus(X.RevertToParent, X.CurrentTime)
        self.display.sync()
        return other

    def clipboard(self):
        """The text that was copied last, or an empty one."""
        asker = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        atom = self.display.intern_atom
        asker.convert_selection(atom("CLIPBOARD"), atom("UTF8_STRING"), atom("COPIED"), X.CurrentTime)
        end = time.monotonic() + 1
        while time.monotonic() < end:
            self.display.sync()
            while self.display.pending_events():
                if self.display.next_event().type == X.SelectionNotify:
                    copied = asker.get_full_property(atom("COPIED"), X.AnyPropertyType)
                    return copied.value.decode() if copied else ""
            time.sleep(0.02)
        return ""

    # --- Windows and pixels

    def picture(self, left, top, width, height):
        """A piece of the screen; black where it reaches beyond."""
        screen = self.root.get_geometry()
        x, y = max(left, 0), max(top, 0)
        size = min(left + width, screen.width) - x, min(top + height, screen.height) - y
        picture = Image.new("RGB", (width, height))
        if min(size) <= 0:
            return picture
        raw = self.root.get_image(x, y, *size, X.ZPixmap, 0xFFFFFFFF)
        picture.paste(Image.frombytes("RGB", size, raw.data, "raw", "BGRX"), (x - left, y - top))
        return picture

    def panel(self, width):
        """A panel along the left side of the screen, which takes its width from the work area."""
        atom = self.display.intern_atom
        height = self.root.get_geometry().height
        panel = self.root.create_window(0, 0, width, height, 0, X.CopyFromParent)
        panel.change_property(atom("_NET_WM_WINDOW_TYPE"), Xatom.ATOM, 32, [atom("_NET_WM_WINDOW_TYPE_DOCK")])
        panel.change_property(atom("_NET_WM_STRUT_PARTIAL"), Xatom.CARDINAL, 32,
                              [width, 0, 0, 0, 0, height - 1] + [0] * 6)
        panel.map()

        def room_left():
            area = self.root.get_full_property(atom("_NET_WORKAREA"), Xatom.CARDINAL)
            return area and area.value[0] == width

        wait_until("the panel's room", room_left)
        return panel

    def windows(self, pid):
        """The process's windows on the screen, back to front."""
        owner = self.display.intern_atom("_NET_WM_PID")
        found = []

        def walk(window):
            for child in window.query_tree().children:
                try:
                    pids = child.get_full_property(owner, Xatom.CARDINAL)
                    if child.get_attributes().map_state != X.IsViewable:
                        continue
                    if pids and pids.value[0] == pid:
                        found.append(Window(self, child))
                    else:
                        walk(child)
                except error.XError:
                    pass  # it has just gone

        walk(self.root)
        return found


class Window:
    """A program's window. Places are the X server's own, never the program's word."""

    def __init__(self, desk, window):
        self.desk = desk
        self.window = window
        self.id = window.id

    def rect(self):
        """Left, top, width and height on the screen, without any decoration."""
        at = self.desk.root.translate_coords(self.window, 0, 0)
        size = self.window.get_geometry()
        return at.x, at.y, size.width, size.height

    def frame(self):
        """The same, with the window manager's decoration."""
        outermost = self.window
        while (parent := outermost.query_tree().parent).id != self.desk.root.id:
            outermost = parent
        return Window(self.desk, outermost).rect()

    def title(self):
        return self.window.get_full_text_property(self.desk.display.intern_atom("_NET_WM_NAME"))

    def is_menu(self):
        return bool(self.window.get_attributes().override_redirect)

    def is_shown(self):
        try:
            return self.window.get_attributes().map_state == X.IsViewable
        except error.XError:
            return False

    def picture(self):
        return self.desk.picture(*self.rect())

    def has_focus(self):
        focus = self.desk.display.get_input_focus().focus
        return getattr(focus, "id", None) == self.id

    def close(self):
        """What the window manager sends for a click on the close button."""
        atom = self.desk.display.intern_atom
        self._send(self.window, atom("WM_PROTOCOLS"), [atom("WM_DELETE_WINDOW"), X.CurrentTime])

    def kill(self):
        """The server breaks the connection to whoever owns the window."""
        self.window.kill_client()
        self.desk.display.sync()

    def ask_manager(self, message, *data):
        mask = X.SubstructureRedirectMask | X.SubstructureNotifyMask
        self._send(self.desk.root, self.desk.display.intern_atom(message), list(data), mask)

    def _send(self, to, message, data, mask=0):
        data = (data + [0] * 5)[:5]
        to.send_event(event.ClientMessage(window=self.window, client_type=message, data=(32, data)), mask)
        self.desk.display.sync()
