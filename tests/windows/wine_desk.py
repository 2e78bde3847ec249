"""A virtual X server with Wine on it: starting both, screenshots, keys, and the programs of a build.

Everything started here is ended here, by its own process id; the Wine prefixes are the tests' own and
stand in the build folder, one for each desk that may be open at a time."""
import fcntl
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

from PIL import Image

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "desktop"))

# pylint: disable=wrong-import-position
import x11
from x11 import SLOW

WIDTH, HEIGHT = 1280, 1024
# Wine's server kills a program that takes more than a second to leave, as it may on a busy machine.
# Its exit code, 0 or not, was given before; what it wrote last counts.
KILLED_LEAVING = -9


class Failure(Exception):
    """What a case says when it fails."""


def expect(good, what):
    """Fails the case unless good."""
    if not good:
        raise Failure(what)


class Desk:
    """The X server, the Wine prefix and the folder of the build. Desks of different numbers do not
    disturb each other; one of the same number waits until the other is closed."""

    def __init__(self, build, number=0, place=None):
        self.build = pathlib.Path(build).resolve()
        self.tests = self.build / "windows-tests"
        place = place or self.tests
        self.screens = place / "screens"
        self.work = place / f"work-{number}"
        self.prefix = self.tests / f"prefix-{number}"
        self.prefix.mkdir(parents=True, exist_ok=True)
        self.lock = (self.tests / f"prefix-{number}.lock").open("w")
        fcntl.flock(self.lock, fcntl.LOCK_EX)
        shutil.rmtree(self.work, ignore_errors=True)
        for folder in (self.screens, self.work):
            folder.mkdir(parents=True, exist_ok=True)
        self.env = dict(os.environ, WINEPREFIX=str(self.prefix), WINEDEBUG="-all",
                        WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=", WINEARCH="win64",
                        LC_ALL="C.UTF-8")
        self.env.pop("WAYLAND_DISPLAY", None)
        self.screen = x11.Screen(f"{WIDTH}x{HEIGHT}x24")
        self.env["DISPLAY"] = self.screen.name
        self.running = []

    def prepare(self):
        """Makes the Wine prefix at its first use, without a sound device."""
        if not (self.prefix / "system.reg").exists():
            self.wine(["wineboot", "-i"], limit=600)
        self.wine(["reg", "add", "HKCU\\Software\\Wine\\Drivers", "/v", "Audio", "/d", "", "/f"],
                  limit=600)

    def end_programs(self):
        """Ends everything that runs in the prefix, after a case that failed."""
        for process in self.running:
            if process.poll() is None:
                process.kill()
                process.wait()
        self.running.clear()
        subprocess.run(["wineserver", "-k"], env=self.env, check=False, timeout=60,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def close(self):
        """Ends what is left."""
        self.end_programs()
        self.screen.close()
        self.lock.close()

    def start(self, command, folder=None):
        """Starts `wine command` in the background."""
        process = subprocess.Popen(["wine", *map(str, command)], env=self.env, cwd=folder,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT)
        self.running.append(process)
        return process

    def wine(self, command, folder=None, limit=SLOW, last=None):
        """Runs `wine command` to its end: (exit code, output). A program that was killed while it
        left has the exit code 0 if the pattern `last`, what it writes last when all is well, is
        found in its output."""
        process = self.start(command, folder)
        try:
            output = process.communicate(timeout=limit)[0].decode(errors="replace")
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            raise Failure(f"{pathlib.Path(str(command[0])).name} took more than {limit} s")
        code = process.returncode
        if code == KILLED_LEAVING and last and re.search(last, output):
            code = 0
        return code, output

    def screenshot(self, name):
        """The whole screen as bytes of red, green, blue; kept as a picture too."""
        picture = self.screen.picture()
        Image.fromarray(picture).save(self.screens / f"{name}.png", compress_level=1)
        return picture.tobytes()

    def key(self, *names):
        """Holds keys down together for a moment, long enough to be seen by a poll."""
        self.screen.keys(*names, seconds=0.4)

    def focus(self, title):
        """Gives the keyboard to a window of the X server; without a window manager nobody does."""
        expect(self.screen.focus_on(lambda name, *_: name == title),
               f"no window '{title}' on the X server")
        time.sleep(0.3)


class Stage:
    """A program under test inside a Wine desktop of its own, and what it does there."""

    def __init__(self, desk, name, command, options=(), virtual=True, folder=None):
        self.desk, self.name = desk, name
        self.log = desk.work / f"{name}.txt"
        self.log.unlink(missing_ok=True)
        line = [desk.tests / "stage.exe", windows_path(self.log), "--limit", "200", *options, "--",
                *command]
        if virtual:
            line = ["explorer", f"/desktop=t{name},{WIDTH}x{HEIGHT}", *line]
        self.process = desk.start(line, folder or desk.build)

    def lines(self):
        """What the stage has written so far."""
        return self.log.read_text(errors="replace").splitlines() if self.log.exists() else []

    def wait(self, start, limit=SLOW):
        """The first line that begins so, as soon as it is there."""
        end = time.monotonic() + limit
        while time.monotonic() < end:
            for line in self.lines():
                if line.startswith(start):
                    return line
            time.sleep(0.1)
        raise Failure(f"no '{start}' within {limit} s; last: {self.lines()[-1:]}")

    def answer(self, key, limit=SLOW):
        """Presses a key until the box that was seen is gone: what is pressed before the box has the
        keys is lost."""
        end, again = time.monotonic() + limit, 0.0
        while self.boxes_open() and time.monotonic() < end:
            if time.monotonic() >= again:
                self.desk.key(key)
                again = time.monotonic() + 3
            time.sleep(0.1)
        expect(not self.boxes_open(), "the box stays")

    def boxes_open(self):
        """How many boxes were seen and are not gone."""
        words = [line[:8] for line in self.lines()]
        return words.count("seen box") - words.count("gone box")

    def window(self, limit=SLOW):
        """Waits for a visible window: its outer and its client rectangle, as it stands now."""
        end = time.monotonic() + limit
        while time.monotonic() < end:
            found = [line.split() for line in self.lines() if line.startswith("seen window")]
            if found and found[-1][14] == "1":
                words = found[-1]
                return [int(w) for w in words[2:6]], [int(w) for w in words[7:11]]
            expect(not self.lines()[-1:] or not self.lines()[-1].startswith("could not start"),
                   str(self.lines()[-1:]))
            time.sleep(0.1)
        raise Failure("no visible window")

    def end(self, held=None, limit=SLOW):
        """Waits for the end, with a key held down all the time if one is named; fails unless the
        exit code is 0 and the desktop is as before."""
        if held:
            self.desk.screen.key(held, True)
        try:
            code = self.wait("exit", limit)
        finally:
            if held:
                self.desk.screen.key(held, False)
        after = self.wait("after", limit)
        try:
            self.process.wait(timeout=SLOW)
        except subprocess.TimeoutExpired:
            self.process.kill()
        expect(code == "exit 0", code)
        before = self.wait("before", 1)
        expect(before.split()[2] == after.split()[2], f"{before}, but {after}")
        expect(after.endswith("saver 1"), f"the screen saver is off: {after}")
        return self.lines()


def windows_path(path):
    """A path of ours as Wine knows it."""
    return "Z:" + str(path).replace("/", "\\")
