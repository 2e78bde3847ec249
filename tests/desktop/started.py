"""What the tests of programs in windows share: counting checks, and a program in a folder and on a
screen of its own."""
import os
import signal
import subprocess

from x11 import SLOW


class Count:
    """How many checks went well, and how many did not."""
    passed = 0
    failed = 0


def check(name, good, told=""):
    Count.passed += bool(good)
    Count.failed += not good
    print(f"{'ok    ' if good else 'FAILED'} {name}{': ' + str(told) if told != '' else ''}",
          flush=True)


class Started:
    """A program that was started with these arguments; screen: an X server, or None for none."""

    def __init__(self, command, folder, screen, **environment):
        env = {**os.environ, "SDL_AUDIODRIVER": "dummy"}
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "SDL_VIDEODRIVER"):
            env.pop(name, None)
        env.update(environment)
        if screen:
            env["DISPLAY"] = screen.name
        self.process = subprocess.Popen(command, env=env, cwd=folder, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                                        start_new_session=True)

    def end(self, seconds=SLOW):
        """Its exit code and what it wrote; kills it, and whatever it started, when it does not end
        by itself."""
        try:
            out, err = self.process.communicate(timeout=seconds)
        except subprocess.TimeoutExpired:
            os.killpg(self.process.pid, signal.SIGKILL)
            out, err = self.process.communicate()
            return "did not end", out, err
        return self.process.returncode, out, err
