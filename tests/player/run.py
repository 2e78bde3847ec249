"""larkfen-player as its user meets it: keys, mouse, the bar, wrong arguments. What is shown is told by
the pictures that the key S saves: they are held to the stored frames, pixel for pixel."""
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import traceback

import numpy
from PIL import Image

from player import ROOT, SLOW, Count, Player, chapters, check, hash_of, stored_hashes
import x11

SIZE = (1000, 700)  # of the screen
STORED = stored_hashes()
CHAPTERS = chapters()
START = CHAPTERS["gates"] + 100
NIGHT = CHAPTERS["night"] + 60  # blurred, and lit by lamps
DIGITS = ["none", "wires", "dots", "lights-off", "back-faces", "no-blur", "depth", "overdraw",
          "fillers", "density"]
SECONDS = {"3": "lights", "8": "objects", "9": "mip-level"}


class Desk:
    """A screen, a folder to work in, and where pictures for the eye are kept."""

    def __init__(self, build, work, keep):
        self.build, self.work, self.keep = build, work, keep
        self.screen = x11.Screen(f"{SIZE[0]}x{SIZE[1]}x24")

    def player(self, *arguments, **environment):
        return Player(self.build, self.work, self.screen, *arguments, **environment)

    def paused(self, frame, *more):
        """A player that stands at a frame: the last one that it is told to play."""
        player = self.player("--data", ROOT / "data", "--from", str(frame), "--to", str(frame),
                             *more)
        player.opened()
        player.becomes(lambda saved: saved.frame == frame)
        return player

    def refused(self, *arguments):
        """What a player without a screen says and returns."""
        code, out, err = Player(self.build, self.work, None, *arguments).end()
        return code, err.strip() if not out else out + err

    def photo(self, name, picture):
        if self.keep and picture is not None:
            Image.fromarray(picture).save(self.keep / f"{name}.png")


def goes(player, what, frame, *keys):
    """Presses keys and waits for the frame, with its stored pixels."""
    player.press(*keys)
    saved = player.becomes(lambda shown: shown.frame == frame)
    check(f"{what} goes to frame {frame}", saved and saved.frame == frame,
          "" if saved is None else saved.frame)
    check("and shows its stored picture", saved and saved.look == "none" and
          hash_of(saved.pixels) == STORED[saved.frame])


def moving_tests(desk):
    player = desk.paused(START)
    saved = player.save()
    check("it begins where it is told to and pauses at the last frame",
          saved and saved.frame == START and hash_of(saved.pixels) == STORED[START])
    goes(player, "Shift and right", START + 1, "Shift_L", "Right")
    goes(player, "Shift and left", START, "Shift_L", "Left")
    goes(player, "right", START + 200, "Right")
    goes(player, "left", START, "Left")
    names = list(CHAPTERS)
    here = names.index("gates")
    goes(player, "up", CHAPTERS[names[here + 1]], "Up")
    goes(player, "down from a beginning", CHAPTERS["gates"], "Down")
    goes(player, "right", CHAPTERS["gates"] + 200, "Right")
    goes(player, "down from within", CHAPTERS["gates"], "Down")
    goes(player, "Home", 0, "Home")

    # Frame 0 is before --to: it plays on from there.
    player.press("space")
    saved = player.becomes(lambda shown: shown.frame > 0)
    check("Space plays", saved and 0 < saved.frame <= START, saved and saved.frame)
    player.press("space")
    first, second = player.save(), player.save()
    check("and pauses", first and second and first.frame == second.frame,
          first and second and (first.frame, second.frame))
    check("at a stored picture", first and hash_of(first.pixels) == STORED[first.frame])

    # Four times as fast shows every fourth frame, half as fast as that every second.
    player.press("Home")
    player.becomes(lambda shown: shown.frame == 0)
    for keys, step in ((("plus", "plus"), 4), (("minus",), 2)):
        for key in keys:
            player.press(key)
        before = player.save()
        player.press("space")
        seen = [player.becomes(lambda shown, now=before: shown.frame > now.frame)
                for _ in range(3)]
        player.press("space")
        check(f"every {step}. frame is shown at {step} times the speed",
              all(saved and (saved.frame - before.frame) % step == 0 for saved in seen),
              [saved and saved.frame for saved in seen])
    player.press("Escape")
    check("Escape ends it with 0", player.end()[0] == 0)


def loop_tests(desk):
    player = desk.paused(START)
    player.press("l")
    for _ in range(3):
        player.press("Shift_L", "Right")
    player.becomes(lambda shown: shown.frame == START + 3)
    player.press("l")
    seen = [player.save() for _ in range(12)]
    frames = [saved.frame for saved in seen if saved]
    check("a loop stays between its marks", len(frames) == 12 and
          START <= min(frames) <= max(frames) <= START + 3, frames)
    back = [b for a, b in zip(frames, frames[1:]) if b < a]
    while not back and len(frames) < 200:
        frames.append(player.save().frame)
        back = [b for a, b in zip(frames, frames[1:]) if b < a]
    check("and begins again", back, frames)
    player.press("l")
    player.press("space")
    player.press("Escape")
    check("Escape ends it with 0", player.end()[0] == 0)

    looped = desk.player("--data", ROOT / "data", "--from", "40", "--to", "42", "--loop")
    looped.opened()
    frames = []
    while len(frames) < 200 and not [b for a, b in zip(frames, frames[1:]) if b < a]:
        frames.append(looped.save().frame)
    check("--loop plays its stretch again and again", set(frames) <= {40, 41, 42} and
          len(frames) < 200, frames)
    looped.screen.press_close_button(looped.window)
    check("the close button ends it with 0", looped.end()[0] == 0)


def look_tests(desk):
    player = desk.paused(NIGHT)
    seen = {}
    for digit, name in list(enumerate(DIGITS))[1:]:
        for wanted in (name, SECONDS.get(str(digit))):
            if wanted:
                player.press(str(digit))
                saved = player.becomes(lambda shown, look=wanted: shown.look == look)
                check(f"{digit} shows {wanted}", saved and saved.look == wanted and
                      saved.frame == NIGHT, saved and (saved.look, saved.frame))
                seen[wanted] = saved.pixels.tobytes() if saved else b""
                desk.photo(f"look-{wanted}", saved.pixels if saved else None)
    check("every look is another picture", len(set(seen.values())) == len(seen))
    player.press("0")
    saved = player.becomes(lambda shown: shown.look == "none")
    check("0 shows the picture as it is stored",
          saved and hash_of(saved.pixels) == STORED[saved.frame])
    player.press("Escape")
    check("Escape ends it with 0", player.end()[0] == 0)

    begun = desk.paused(NIGHT, "--look", "depth")
    saved = begun.save()
    check("--look begins with it", saved and saved.look == "depth" and
          saved.pixels.tobytes() == seen["depth"])
    begun.press("Escape")
    begun.end()


def differing(a, b, box=None):
    """Pixels that differ, in a box left, top, right, bottom of the screen."""
    left, top, right, bottom = box or (0, 0, SIZE[0], SIZE[1])
    return int((a != b).any(2)[top:bottom, left:right].sum())


def still(player):
    """The screen once it has stopped changing: notes and the bar go away by themselves."""
    before = player.screen.picture()
    end = time.monotonic() + SLOW
    while time.monotonic() < end:
        time.sleep(3.0)
        now = player.screen.picture()
        if not differing(before, now):
            return now
        before = now
    return before


def panel_tests(desk):
    player = desk.paused(START)
    _, left, top, width, height = player.opened()
    corner = (left, top, left + width // 2, top + height // 2)
    inside = lambda shot: numpy.ascontiguousarray(shot[top:top + height, left:left + width])
    bare = player.shows(lambda shot: hash_of(inside(shot)) == STORED[START])
    check("nothing covers the picture uninvited", bare is not None)
    for key, what in (("h", "the keys"), ("i", "figures")):
        player.press(key)
        shot = player.shows(lambda now: differing(now, bare, corner) > 2000)
        check(f"{key.upper()} shows {what}", shot is not None)
        desk.photo(f"panel-{key}", shot)
        player.press(key)
        gone = player.shows(lambda now: not differing(now, bare))
        check("and takes them away again", gone is not None)

    # The bar comes with the mouse and goes by itself.
    player.screen.move(left + 1, top + 1)
    player.screen.move(left + width // 2, top + height // 2)
    bar = (left, top + height - 40, left + width, top + height)
    shot = player.shows(lambda now: differing(now, bare, bar) > 5000)
    check("the bar comes with the mouse", shot is not None)
    desk.photo("bar", shot)
    check("and goes without it", player.shows(lambda now: not differing(now, bare)) is not None)

    player.screen.click(left + width // 2, top + height // 2)
    shot = player.shows(lambda now: differing(now, bare) > 3000)
    desk.photo("object", shot)
    check("a click names the object", shot is not None)

    player.press("z")
    player.screen.resize(player.window, 900, 600)
    check("the window takes another size",
          player.screen.wait_for_window(lambda title, x, y, w, h: (w, h) == (900, 600))[0])
    shot = still(player)
    desk.photo("stretched", shot)
    player.press("Escape")
    player.end()


def bar_tests(desk):
    player = desk.paused(START)
    _, left, top, width, height = player.opened()
    y = top + height - 12
    last = len(STORED) - 1
    expected = lambda x: (x - left) / width * last
    player.screen.move(left + width // 3, y - 100)
    player.screen.click(left + width // 5, y)
    near = lambda x: lambda saved: abs(saved.frame - expected(x)) < last * 0.02
    saved = player.becomes(near(left + width // 5))
    check("a click in the bar goes there", saved and near(left + width // 5)(saved),
          saved and (saved.frame, round(expected(left + width // 5))))
    check("and shows the stored picture", saved and hash_of(saved.pixels) == STORED[saved.frame])
    player.screen.move(left + width // 3, y - 100)
    player.screen.drag(left + width // 5, y, left + width // 10, y)
    saved = player.becomes(near(left + width // 10))
    check("dragging goes where the mouse is let go", saved and near(left + width // 10)(saved),
          saved and (saved.frame, round(expected(left + width // 10))))
    check("and shows the stored picture", saved and hash_of(saved.pixels) == STORED[saved.frame])
    player.press("Escape")
    player.end()


def full_screen_tests(desk):
    for start, keys, more in (("F", ("f",), ()), ("Alt and Enter", ("Alt_L", "Return"), ()),
                              ("--fullscreen", None, ("--fullscreen",))):
        player = desk.paused(START, *more)
        if keys:
            player.press(*keys)
        whole = lambda title, x, y, w, h: (x, y, w, h) == (0, 0, *SIZE)
        window, _ = player.screen.wait_for_window(whole)
        check(f"{start} fills the screen", window is not None,
              "" if window else list(player.screen.windows().values()))
        x, y = (SIZE[0] - 640) // 2, (SIZE[1] - 480) // 2
        middle = lambda now: numpy.ascontiguousarray(now[y:y + 480, x:x + 640])
        shot = player.shows(lambda now: hash_of(middle(now)) == STORED[START])
        check("with the picture in the middle", shot is not None)
        inner = (x, y, x + 640, y + 480)
        black = numpy.zeros_like(shot)
        shot = player.shows(lambda now: differing(now, black) == differing(now, black, inner))
        check("on black", shot is not None)
        desk.photo(f"full-screen-{start.split()[0].strip('-')}", shot)
        if keys:
            player.press(*keys)
            window, _ = player.screen.wait_for_window(
                lambda title, x, y, w, h: (w, h) == (640, 480))
            check("and back", window is not None)
        player.press("Escape")
        check("Escape ends it with 0", player.end()[0] == 0)


def refusal_tests(desk):
    data = ROOT / "data"
    empty = desk.work / "empty"
    (empty / "data").mkdir(parents=True)
    for arguments, words in (
            (("--data", data, "--from", "99999"), ("--from", "99999", str(len(STORED) - 1))),
            (("--data", data, "--from", "9 pm"), ("--from", "9 pm")),
            (("--data", data, "--from", "20", "--to", "10"), ("--to", "10")),
            (("--data", data, "--look", "rosy"), ("--look", "rosy")),
            (("--data", data, "--frobnicate"), ("--frobnicate",)),
            (("--data", data, "--from"), ("--from", "value")),
            (("--data", empty / "data"), (str(empty / "data"),)),
            (("--data", desk.work / "nowhere"), (str(desk.work / "nowhere"),))):
        code, said = desk.refused(*arguments)
        check(f"{' '.join(map(str, arguments[2 if arguments[1] == data else 0:]))} is refused in a line",
              code == 2 and len(said.splitlines()) == 1 and all(word in said for word in words),
              (code, said))
    code, said = desk.refused("--data", data)
    check("without a display it says so and returns 1", code == 1 and "display" in said,
          (code, said))


def recorder_tests(desk):
    """larkfen-capture --look draws what the player shows."""
    def record(*more):
        out = desk.work / "recorded"
        shutil.rmtree(out, ignore_errors=True)
        done = subprocess.run([desk.build / "larkfen-capture", "--data", ROOT / "data", "--png", out,
                               *more], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              timeout=SLOW, check=False)
        pictures = {file.stem: numpy.array(Image.open(file).convert("RGB"))
                    for file in sorted(out.glob("*.png"))}
        return done.returncode, done.stdout, pictures

    code, said, looks = record("--frames", f"{START - 4}:{START + 1}", "--every", "2", "--look",
                               "depth")
    check("the recorder records a look", code == 0 and list(looks) == [
        f"frame-{frame:06d}" for frame in (START - 4, START - 2, START)], (code, said, list(looks)))
    player = desk.paused(START, "--look", "depth")
    saved = player.save()
    player.press("Escape")
    player.end()
    check("the one that the player shows", saved and looks and
          saved.pixels.tobytes() == looks[f"frame-{START:06d}"].tobytes())
    for more, word in ((("--look", "rosy"), "rosy"), (("--look", "depth", "--verify"), "--verify"),
                       (("--look", "depth", "--hashes", "-"), "--hashes"),
                       (("--look", "depth", "--switch", "blur=1"), "--switch")):
        code, said, _ = record("--frames", "0:1", *more)
        check(f"{' '.join(more)} is refused", code == 2 and word in said, (code, said))


def measure_tests(desk):
    """--timedemo: needs no display; what it prints adds up."""
    run = lambda *more: Player(desk.build, desk.work, None, "--data", ROOT / "data", "--timedemo",
                               *more).end()
    code, out, err = run("--json", "--from", "180", "--to", "200")
    told = json.loads(out) if code == 0 else {"parts": []}
    rows = {row["name"]: row for row in told["parts"]}
    check("a measurement has rows for all, the scene and its chapters", (code, err) == (0, "") and
          list(rows) == ["all", "scene one", "dawn", "gates"], (code, err, list(rows)))
    check("of these frames", [(row["first"], row["last"], row["frames"]) for row in rows.values()] ==
          [(180, 200, 21), (180, 200, 21), (180, 191, 12), (192, 200, 9)])
    check("with a worst frame among them", all(row["first"] <= row["worst_frame"] <= row["last"] and
          row["median_ms"] <= row["p99_ms"] <= row["worst_ms"] for row in rows.values()))
    every = rows.get("all", {"mean_ms": {}, "frames_per_second": 1})
    mean, parts = 1000 / every["frames_per_second"], sum(every["mean_ms"].values())
    check("the parts of a frame are the whole frame", len(every["mean_ms"]) == 6 and
          abs(mean - parts) < 0.05 * mean, (mean, parts))
    code, out, err = run("--to", "20")
    check("the table tells the same", code == 0 and not err and "front end" in out and
          out.count("scene one") == 2, (code, err))


def end_tests(desk):
    """To the end of the production and over it."""
    player = desk.paused(START)
    goes(player, "End", len(STORED) - 1, "End")
    player.press("space")
    saved = player.save()
    check("playing on behind the end stays there", saved and saved.frame == len(STORED) - 1)
    goes(player, "left", len(STORED) - 201, "Left")
    player.press("Escape")
    player.end()


def world_of(desk, name):
    """A data folder of our own, with the files of the production."""
    folder = desk.work / name
    shutil.copytree(ROOT / "data", folder, ignore=lambda _, names: ["sfx"])
    return folder


def watch_tests(desk):
    """Files change, break and are mended while they are shown."""
    data = world_of(desk, "watched")
    player = desk.player("--data", data, "--watch", "--from", str(START), "--to", str(START))
    player.opened()
    saved = player.becomes(lambda shown: shown.frame == START)
    check("a watched world looks as any", saved and hash_of(saved.pixels) == STORED[START])
    texture = data / "texture" / "t-sky-04.bmp"
    texture = texture if texture.exists() else max((data / "texture").glob("*.bmp"),
                                                   key=lambda file: file.stat().st_size)
    good = texture.read_bytes()

    texture.write_bytes(good[:60])
    # (The line about it stands in the lower left of the window, in the colour of marks.)
    shot = player.shows(lambda now: (now == (255, 190, 60)).all(2).sum() > 100)
    desk.photo("broken", shot)
    check("a broken file is named in the window", shot is not None)
    saved = player.becomes(lambda shown: shown.frame == START)
    check("and the world before stays", saved and hash_of(saved.pixels) == STORED[START])
    saved_next = player.press("Shift_L", "Right") or player.becomes(
        lambda shown: shown.frame == START + 1)
    check("and plays on", saved_next and hash_of(saved_next.pixels) == STORED[START + 1])

    picture = Image.open(ROOT / "data" / texture.relative_to(data)).convert("RGB")
    picture.point(lambda value: 255 - value).save(texture)
    saved = player.becomes(lambda shown: hash_of(shown.pixels) != STORED[START + 1])
    check("a new file is taken over", saved and saved.frame == START + 1)
    desk.photo("repainted", saved.pixels if saved else None)
    check("and the word about the broken one goes",
          player.shows(lambda now: (now == (255, 190, 60)).all(2).sum() < 100) is not None)
    texture.write_bytes(good)
    saved = player.becomes(lambda shown: hash_of(shown.pixels) == STORED[START + 1])
    check("and the old one again", saved and hash_of(saved.pixels) == STORED[START + 1])
    track = data / "cam" / "scene1.trk"
    track.rename(track.with_suffix(".away"))
    shot = player.shows(lambda now: (now == (255, 190, 60)).all(2).sum() > 100)
    check("a file that is gone is named", shot is not None)
    desk.photo("gone", shot)
    player.press("Escape")
    check("Escape ends it with 0", player.end()[0] == 0)
    check("its copy of the data is removed",
          not list(pathlib.Path(tempfile.gettempdir()).glob("larkfen-player-*")))


def tone(path):
    """A soundtrack that tells where it is: 10 s of silence, 10 s of 400 Hz, the rest 1000 Hz."""
    path.parent.mkdir(parents=True, exist_ok=True)
    sound = "if(lt(t,10),0,if(lt(t,20),sin(2*PI*400*t),sin(2*PI*1000*t)))"
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i",
                    f"aevalsrc='{sound}':s=44100:d=60", "-ac", "2", str(path)], check=True,
                   timeout=60)


def heard(raw):
    """The loudest frequency of the last fifth of a second that was played; 0: silence."""
    data = raw.read_bytes() if raw.exists() else b""
    count = 44100 // 5 * 4
    if len(data) < count:
        return None
    end = len(data) // 4 * 4
    left = numpy.frombuffer(data[end - count:end], numpy.int16)[::2].astype(float)
    if numpy.abs(left).max() < 200:
        return 0
    return int(numpy.abs(numpy.fft.rfft(left)).argmax() * 5)


def sound_tests(desk):
    data, raw = world_of(desk, "heard"), desk.work / "sound.raw"
    tone(data / "sfx/soundtrack.mp3")
    player = desk.player("--data", data, "--from", "12s", SDL_AUDIODRIVER="disk",
                         SDL_DISKAUDIOFILE=str(raw))
    player.opened()

    def hears(what, pitch):
        end = time.monotonic() + SLOW
        while heard(raw) != pitch and time.monotonic() < end:
            time.sleep(0.05)
        now = heard(raw)
        check(what, now == pitch or heard(raw) == pitch, now)

    hears("the soundtrack is heard where the show is", 400)
    player.press("space")
    hears("a pause is silent", 0)
    player.press("Right")
    player.press("Right")
    player.press("space")
    hears("it follows a seek", 1000)
    player.press("m")
    hears("M mutes it", 0)
    player.press("m")
    hears("and lets it be heard again", 1000)
    player.press("plus")
    hears("it is silent at twice the speed", 0)
    player.press("minus")
    player.press("Home")
    hears("and where the music is", 0)
    player.press("Escape")
    check("Escape ends it with 0", player.end()[0] == 0)

    track = data / "sfx/soundtrack.mp3"
    tone(track)
    for driver, what, words in (("alsa", "sound device", "there is no sound device"),
                                ("dummy", "sound that can be read", "is no MP3 file"),
                                ("dummy", "soundtrack", "soundtrack.mp3 is missing")):
        if what == "sound that can be read":
            track.write_bytes(b"no music at all" * 1000)
        elif what == "soundtrack":
            track.unlink()
        player = desk.player("--data", data, "--from", str(START), "--to", str(START),
                             SDL_AUDIODRIVER=driver)
        player.opened()
        saved = player.becomes(lambda shown: shown.frame == START)
        check(f"without a {what} it plays on",
              saved and hash_of(saved.pixels) == STORED[START])
        player.press("Escape")
        code, _, err = player.end()
        told = err.splitlines()  # (this machine may have a sound device)
        check("says so in one line, and ends with 0", code == 0 and
              (len(told) == 1 and words in told[0] or driver == "alsa" and not told), (code, err))


QUICK = [refusal_tests, recorder_tests, measure_tests, moving_tests, panel_tests, bar_tests]
REST = [loop_tests, look_tests, full_screen_tests, end_tests, watch_tests, sound_tests]


def main():
    arguments = [a for a in sys.argv[1:] if a != "--quick"]
    build = pathlib.Path(arguments[0]).resolve()
    keep = pathlib.Path(arguments[1]).resolve() if len(arguments) > 1 else None
    if keep:
        keep.mkdir(parents=True, exist_ok=True)
    tests = QUICK if "--quick" in sys.argv else QUICK + REST
    named = os.environ.get("PLAYER_TESTS", "").split()  # watch_tests, sound_tests, ...
    tests = [test for test in QUICK + REST if test.__name__ in named] if named else tests
    with tempfile.TemporaryDirectory(prefix="larkfen-") as name:
        desk = Desk(build, pathlib.Path(name), keep)
        try:
            for test in tests:
                try:
                    test(desk)
                except Exception:  # pylint: disable=broad-except
                    traceback.print_exc()
                    check(f"{test.__name__} came to its end", False)
        finally:
            desk.screen.close()
            shutil.rmtree(desk.work, ignore_errors=True)
    print(f"{Count.passed} passed, {Count.failed} failed")
    return 1 if Count.failed else 0


if __name__ == "__main__":
    sys.exit(main())
