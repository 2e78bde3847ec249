"""The archives of the release: what they hold, that they are made the same twice, and that each one
starts from the folder it was unpacked into."""
import argparse
import calendar
import gzip
import itertools
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tarfile
import zipfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests/windows"))

# pylint: disable=wrong-import-position
import pe_file
from pictures import by_hash, find_frame, stored_frames
from wine_desk import SLOW, Desk, Failure, Stage, expect, windows_path

TITLE = "Ombrel - a fast prod from Quellant"
NOON = (2026, 5, 1, 12, 0, 0)
ZIPS = ("ombrel-win32.zip", "ombrel-win64.zip")
WEB = "ombrel-web.zip"
TAR, TAR_ARM64 = TARS = ("ombrel-linux.tar.gz", "ombrel-linux-arm64.tar.gz")
FIRST_OF_MAY = calendar.timegm(NOON)
I386, AMD64 = 0x14c, 0x8664
PROGRAMS = ("larkfen", "larkfen-capture")
VERSION = re.search(r"project\(ombrel VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1]


def names(program, *licences):
    """The files that an archive must hold, in order."""
    data = [line.split(" | ")[0] for line in (ROOT / "art/MANIFEST").read_text().splitlines()
            if line and not line.startswith("#")]
    recorder = program.replace("larkfen", "larkfen-capture")
    player = ["larkfen-player", "larkfen-player.1.gz"] if program == "larkfen" else []
    return sorted([program, recorder, *player, "readme.txt", "file_id.diz", "ombrel.nfo", "frame-hashes.txt",
                   "licences/ombrel.txt", "licences/fonts.txt", *(f"licences/{name}" for name in licences),
                   *(f"data/{name}" for name in data)])


def unpack(folder, work):
    """Every archive into an empty folder of its own, as a user does."""
    for archive in (*ZIPS, *TARS, WEB):
        place = work / archive
        place.mkdir(parents=True)
        shutil.unpack_archive(folder / archive, place)


def zip_contents(folder):
    """the zip archives: exactly the files that ship, one time and mode, in order"""
    for archive in ZIPS:
        with zipfile.ZipFile(folder / archive) as file:
            entries = file.infolist()
        got = [entry.filename for entry in entries]
        expect(got == ["ombrel/" + name for name in names("larkfen.exe", "mingw-w64.txt")],
               f"{archive} holds {got}")
        for entry in entries:
            mode = 0o100755 if entry.filename.endswith(".exe") else 0o100644
            expect((entry.date_time, entry.external_attr >> 16) == (NOON, mode), str(entry))


def web_contents(folder, work, build):
    """ombrel-web.zip: the folder of the page as it was built, small enough, with licences and a readme"""
    with zipfile.ZipFile(folder / WEB) as file:
        entries = file.infolist()
    for entry in entries:
        expect((entry.date_time, entry.external_attr >> 16) == (NOON, 0o100644), str(entry))
    got = [entry.filename.removeprefix("ombrel/") for entry in entries]
    expect(got == sorted(got) and not any("/" in name for name in got), f"it holds {got}")
    built = {path.name for path in (build / "web").iterdir() if path.is_file()}
    expect(built <= set(got) and set(got) - built == {"readme.txt"}, f"it holds {got}, built are {built}")
    place = work / WEB / "ombrel"
    for name in built:
        expect((place / name).read_bytes() == (build / "web" / name).read_bytes(), name)
    expect(sum(entry.file_size for entry in entries) < 12_000_000, "it is too large to be fetched")
    readme = (place / "readme.txt").read_text("ascii")
    expect(VERSION in readme and "@" not in readme and max(map(len, readme.splitlines())) < 80, "readme.txt")
    licences = (place / "licences.txt").read_text("utf-8")
    expect((ROOT / "LICENSE").read_text("ascii") in licences and "musl" in licences and
           "ParaType" in licences, "licences.txt")
    expect(str(ROOT).encode() not in (place / "ombrel.wasm").read_bytes(), "it holds the path of the checkout")


def tar_contents(folder):
    """the tar archives: the same, owned by nobody in particular"""
    wanted = ["ombrel/" + name for name in names("larkfen", "lame.txt", "sdl.txt")]
    for archive in TARS:
        with tarfile.open(folder / archive) as file:
            entries = file.getmembers()
        got = [entry.name for entry in entries]
        expect(got == wanted, f"{archive} holds {got}")
        for entry in entries:
            program = entry.name.startswith("ombrel/larkfen") and not entry.name.endswith(".gz")
            mode = 0o755 if program else 0o644
            expect((entry.mtime, entry.mode, entry.uid, entry.gid, entry.uname, entry.gname) ==
                   (FIRST_OF_MAY, mode, 0, 0, "root", "root"), str(entry.get_info()))


def texts(work):
    """the texts: line ends of the system, the right half of the readme, a small file_id.diz"""
    for archive in (*ZIPS, *TARS):
        place = work / archive / "ombrel"
        ours = [place / name for name in ("readme.txt", "file_id.diz", "ombrel.nfo")]
        for path in (*ours, *(place / "licences").iterdir()):
            raw = path.read_bytes()
            ends = b"\n" if archive in TARS else b"\r\n"
            expect(raw.endswith(ends) and raw.count(ends) == raw.count(b"\n"),
                   f"{archive}: line ends of {path.name}")
            expect((b"\r" in raw) == (archive in ZIPS), f"{archive}: line ends of {path.name}")
        readme = (place / "readme.txt").read_text("ascii")
        expect(("BASS.dll" in readme) == (archive in ZIPS) and "@" not in readme, archive)
        expect(("libsdl2-2.0-0" in readme) == (archive in TARS), archive)
        lines = (place / "file_id.diz").read_text("ascii").splitlines()
        expect(len(lines) <= 10 and max(map(len, lines)) <= 45, f"{archive}: file_id.diz")
        for path in ours:
            said = path.read_text("ascii")
            expect(VERSION in said and "2026" in said and "@" not in said, f"{archive}: {path.name}")
            expect(max(map(len, said.splitlines())) < 80, f"{archive}: {path.name} is wide")
        expect(all("repository" in path.read_text("ascii") for path in (ours[0], ours[2])),
               f"{archive}: where to find us")
        licence = (place / "licences/ombrel.txt").read_text("ascii")
        expect(licence == (ROOT / "LICENSE").read_text("ascii"), f"{archive}: our licence")


def data(work):
    """the data: byte for byte the files of data/"""
    for archive in (*ZIPS, *TARS):
        place = work / archive / "ombrel"
        for path in (place / "data").rglob("*"):
            if path.is_file():
                own = ROOT / "data" / path.relative_to(place / "data")
                expect(path.read_bytes() == own.read_bytes(), f"{archive}: {path.name}")


def hash_lists(work):
    """the list of frame hashes: the stored frames, in every archive"""
    with gzip.open(ROOT / "tests/scenario/frames.txt.gz", "rt") as file:
        stored = [line.split() for line in file]
    wanted = [f"frame {words[1]} hash {words[9]}" for words in stored]
    for archive in (*ZIPS, *TARS):
        lines = (work / archive / "ombrel/frame-hashes.txt").read_text("ascii").splitlines()
        expect([line for line in lines if line[0] != "#"] == wanted, archive)


def windows_programs(work):
    """the Windows programs: kind, no time of the linker, no symbols, imports of the system only"""
    for archive, machine, name in itertools.product(ZIPS, (I386, AMD64), PROGRAMS):
        if (machine == I386) != ("win32" in archive):
            continue
        program = work / archive / f"ombrel/{name}.exe"
        raw = program.read_bytes()
        start = struct.unpack_from("<I", raw, 0x3c)[0] + 4
        kind, _, made, symbols = struct.unpack_from("<HHII", raw, start)
        expect((kind, made, symbols) == (machine, 0, 0), f"{kind:x} {made} {symbols}")
        expect(str(ROOT).encode() not in raw, "it holds the path of the checkout")
        (pe_file.check_program if name == "larkfen" else pe_file.check_imports)(program)
        if machine == I386:
            pe_file.check_imports_listed(program, ROOT / "tests/windows/xp_imports.txt")


def linux_programs(work):
    """the Linux programs: no symbols, no path of the checkout, no library but the C library, and of
    that nothing is newer than the readme says"""
    for name in (*PROGRAMS, "larkfen-player"):
        linux_program(work / TAR / "ombrel" / name, "X86-64", "ld-linux-x86-64.so.2")
        linux_program(work / TAR_ARM64 / "ombrel" / name, "AArch64", "ld-linux-aarch64.so.1")


def linux_program(program, machine, loader):
    """One of them."""
    told = subprocess.run(["readelf", "-W", "-h", "-S", "-d", str(program)], check=True,
                          stdout=subprocess.PIPE).stdout.decode()
    expect(machine in told, f"it is not for {machine}")
    expect(".symtab" not in told and ".debug" not in told, "it holds symbols")
    expect("RPATH" not in told and "RUNPATH" not in told, "it looks for libraries elsewhere")
    needed = {line.split("[")[1].split("]")[0] for line in told.splitlines() if "(NEEDED)" in line}
    allowed = {"libm.so.6", "libc.so.6", loader}
    expect(needed <= allowed and "libc.so.6" in needed, str(sorted(needed)))
    versions = subprocess.run(["readelf", "-W", "-V", str(program)], check=True,
                              stdout=subprocess.PIPE).stdout.decode()
    newest = max((int(part) for part in re.findall(r"GLIBC_2\.(\d+)", versions)), default=0)
    told = (program.parent / "readme.txt").read_text("ascii")
    expect(17 < newest <= 35 and "glibc 2.35" in told, f"it asks for glibc 2.{newest}")
    expect(str(ROOT).encode() not in program.read_bytes(), "it holds the path of the checkout")


def twice(folder, work, build):
    """made a second time: the same bytes"""
    again = work / "again"
    subprocess.run([ROOT / "tools/package.py", "--no-build", "--build", build, "--out", again],
                   check=True, stdout=subprocess.DEVNULL)
    for archive in (*ZIPS, *TARS, WEB):
        expect((again / archive).read_bytes() == (folder / archive).read_bytes(), archive)


def linux_verify(work, archive, *emulator):
    """a tar archive, unpacked: its recorder finds the frames as published"""
    done = subprocess.run([*emulator, work / archive / "ombrel/larkfen-capture", "--verify",
                           "--frames", "0:12"], cwd="/", stdout=subprocess.PIPE, check=False)
    expect(done.returncode == 0 and done.stdout.startswith(b"12 of 12 frames as published ("),
           str(done))


def linux_player(work, archive, *emulator):
    """a tar archive, unpacked: its player finds the data beside it and plays; its page is one"""
    place = work / archive / "ombrel"
    done = subprocess.run([*emulator, place / "larkfen-player", "--timedemo", "--to", "3"], cwd="/",
                          stdout=subprocess.PIPE, check=False)
    expect(done.returncode == 0 and b"\nscene one " in done.stdout, str(done))
    page = gzip.decompress((place / "larkfen-player.1.gz").read_bytes()).decode("ascii")
    expect(page.startswith(".TH LARKFEN\\-PLAYER 1") or page.startswith(".TH LARKFEN-PLAYER 1"),
           page[:60])


def win64_verify(desk, work):
    """ombrel-win64.zip, unpacked: its recorder finds the frames as published"""
    code, said = desk.wine([work / "ombrel-win64.zip/ombrel/larkfen-capture.exe", "--verify",
                            "--frames", "0:12"], folder="/", last="of 12 frames")
    expect(code == 0 and "12 of 12 frames as published (" in said, said)


def linux_start(desk, work, archive, *emulator):
    """a tar archive, unpacked: shows the production, ends on Escape with 0"""
    env = dict(desk.env, SDL_AUDIODRIVER="dummy", SDL_VIDEODRIVER="x11")
    with subprocess.Popen([*emulator, work / archive / "ombrel/larkfen", "-w"], env=env, cwd="/",
                          stdin=subprocess.DEVNULL) as process:
        try:
            find_frame(desk, "linux", by_hash(stored_frames()), (320, 272, 640, 480))
            desk.focus(TITLE)
            desk.key("Escape")
            expect(process.wait(SLOW) == 0, f"exit code {process.returncode}")
        finally:
            process.kill()


def closure(*programs):
    """Every library file that these load when they start, the loader included."""
    files = set()
    for program in programs:
        told = subprocess.run(["ldd", str(program)], check=True, stdout=subprocess.PIPE).stdout
        files |= set(re.findall(r"(/\S+) \(0x", told.decode()))
    return files


def make_root(work, name, libraries):
    """A root directory with the unpacked program and these libraries, and nothing else at all."""
    root = work / name
    shutil.copytree(work / TAR / "ombrel", root)
    for file in libraries:
        target = root / file.lstrip("/")
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(pathlib.Path(file).resolve(), target)
    return root


def in_root(root, *arguments):
    """The command that starts the program with that root."""
    own_user = [] if os.geteuid() == 0 else ["/usr/bin/unshare", "--user", "--map-root-user"]
    return [*own_user, "/usr/sbin/chroot", root, "/larkfen", *arguments]


def empty_root(work):
    """ombrel-linux.tar.gz in a root directory with the C library alone: asks for SDL2 in one line"""
    program = work / TAR / "ombrel/larkfen"
    root = make_root(work, "root-of-c", closure(program))
    for arguments, code, said in ((["-w"], 1, "larkfen: SDL2 is missing (on Debian: apt install "
                                               "libsdl2-2.0-0): libSDL2-2.0.so.0: cannot open "
                                               "shared object file: No such file or directory\n"),
                                  (["--version"], 0, "larkfen 1.")):
        done = subprocess.run(in_root(root, *arguments), stdout=subprocess.PIPE, env={},
                              stderr=subprocess.STDOUT, text=True, timeout=SLOW, check=False)
        expect(done.returncode == code and done.stdout.startswith(said) and
               done.stdout.count("\n") == 1, f"{arguments}: {done.returncode} {done.stdout}")


def sdl_root(desk, work):
    """ombrel-linux.tar.gz in a root directory with the C library and SDL2: plays, says nothing"""
    listed = subprocess.run(["/sbin/ldconfig", "-p"], check=True, stdout=subprocess.PIPE).stdout
    sdl = re.search(r"libSDL2-2\.0\.so\.0 .*x86-64.* => (\S+)", listed.decode())[1]
    root = make_root(work, "root-of-sdl", closure(work / TAR / "ombrel/larkfen", sdl) | {sdl})
    env = {"DISPLAY": desk.env["DISPLAY"], "SDL_AUDIODRIVER": "dummy"}
    with subprocess.Popen(in_root(root, "-w"), env=env, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True) as process:
        try:
            find_frame(desk, "linux-root", by_hash(stored_frames()), (320, 272, 640, 480))
            # (Without its files of languages the X library sets no title in the old way.)
            desk.screen.focus_on(lambda title, x, y, w, h: (w, h) == (640, 480))
            desk.key("Escape")
            said, _ = process.communicate(timeout=SLOW)
            expect((process.returncode, said) == (0, ""), f"{process.returncode}: {said}")
        finally:
            process.kill()


def win64_start(desk, work):
    """ombrel-win64.zip, unpacked: shows the production, ends on Escape with 0"""
    desk.prepare()
    stage = Stage(desk, "unpacked",
                  [windows_path(work / "ombrel-win64.zip/ombrel/larkfen.exe"), "-w", "-ns"], folder="/")
    _, client = stage.window()
    find_frame(desk, "win64", by_hash(stored_frames()), (*client[:2], 640, 480))
    stage.end("Escape")


def run(cases):
    """Runs (function, arguments) one after the other; whether each passed."""
    results = []
    for function, arguments in cases:
        try:
            function(*arguments)
            fault = None
        except (Failure, OSError, subprocess.SubprocessError) as error:
            fault = str(error) or type(error).__name__
        results.append(fault is None)
        print(f"FAILED {function.__doc__}: {fault}" if fault else f"ok     {function.__doc__}",
              flush=True)
    return results


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", nargs="?", default=ROOT / "build", type=pathlib.Path,
                        help="the folder of the build folders; the archives stand in its package/")
    build = parser.parse_args().build.resolve()
    folder, work = build / "package", build / "package-tests/unpacked"
    missing = [name for name in (*ZIPS, *TARS, WEB) if not (folder / name).exists()]
    if missing:
        print(f"FAILED {folder} has no {missing}: cmake --build --preset package makes them")
        print("0 passed, 1 failed")
        return 1
    shutil.rmtree(work, ignore_errors=True)
    unpack(folder, work)
    results = run(((zip_contents, (folder,)), (tar_contents, (folder,)),
                   (web_contents, (folder, work, build)), (texts, (work,)),
                   (data, (work,)), (hash_lists, (work,)),
                   (windows_programs, (work,)), (linux_programs, (work,)),
                   (twice, (folder, work, build))))
    desk = Desk(build / "win64", place=build / "package-tests")
    try:
        arm64 = (TAR_ARM64, "qemu-aarch64-static", "-L", build / "sysroot-arm64")
        results += run(((linux_verify, (work, TAR)), (linux_verify, (work, *arm64)),
                        (linux_player, (work, TAR)), (linux_player, (work, *arm64)),
                        (win64_verify, (desk, work)), (linux_start, (desk, work, TAR)),
                        (linux_start, (desk, work, *arm64)), (empty_root, (work,)),
                        (sdl_root, (desk, work)), (win64_start, (desk, work))))
    finally:
        desk.close()
    shutil.rmtree(work)
    print(f"{results.count(True)} passed, {results.count(False)} failed")
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
