#!/usr/bin/python3
"""Makes the release: ombrel-win32.zip, ombrel-win64.zip, ombrel-linux.tar.gz and
ombrel-linux-arm64.tar.gz from built programs, each with one folder in it, and in that the production,
its data, the recorder and the list of frame hashes that it compares with (larkfen-capture --verify);
those for Linux hold the player and its manual page too; and ombrel-web.zip, the folder of the page.
The same sources give the same bytes: order, times, owners and modes of the files are fixed here, and
the programs are built without dates and without the place of the checkout."""
import argparse
import gzip
import io
import os
import pathlib
import re
import subprocess
import sys
import tarfile
import time
import zipfile

import frame_hashes
import web_folder

ROOT = pathlib.Path(__file__).resolve().parent.parent
PARTS = ROOT / "tools/package"
DATE = 1777636800  # of every file in the archives: the first of May 2026, noon

FOLDER = "ombrel/"  # in every archive

# Archive                | preset    | ending of programs | strip
ARCHIVES = [
    ("ombrel-win32.zip",          "win32",   ".exe", "i686-w64-mingw32-strip"),
    ("ombrel-win64.zip",          "win64",   ".exe", "x86_64-w64-mingw32-strip"),
    ("ombrel-linux.tar.gz",       "release", "",     "strip"),
    ("ombrel-linux-arm64.tar.gz", "arm64",   "",     "aarch64-linux-gnu-strip"),
]
WEB_ARCHIVE = "ombrel-web.zip"
# In the archive    | as the build calls it | in which archives
PROGRAMS = [
    ("larkfen",         "larkfen",        ("windows", "linux")),
    ("larkfen-capture", "larkfen-hashes", ("windows", "linux")),
    ("larkfen-player",  "larkfen-player", ("linux",)),
]
TEXTS = ["readme.txt", "file_id.diz", "ombrel.nfo"]
LICENCES = {"windows": ["fonts.txt", "mingw-w64.txt"],
            "linux": ["fonts.txt", "lame.txt", "sdl.txt"]}


VERSION = re.search(r"^project\(ombrel VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(),
                    re.M)[1]


class Fault(Exception):
    """Why no archive can be made."""


def text(path, system):
    """A text of ours as one system shows it: its own paragraphs, its own line ends; with the version
    and the year."""
    whole = path.read_text(encoding="utf-8" if path.parent.name == "licences" else "ascii")
    whole = whole.replace("@version@", VERSION).replace("@year@", str(time.gmtime(DATE).tm_year))
    for name in ("windows", "linux"):
        block = re.compile(rf"^@{name}@\n(.*?)(?=^@)", re.M | re.S)
        whole = block.sub(r"\1" if name == system else "", whole)
    whole = whole.replace("@end@\n", "")
    return (whole.replace("\n", "\r\n") if system == "windows" else whole).encode()


def data_files():
    """The files of data/ that ship, as art/MANIFEST lists them; nothing else may lie there."""
    listed = {line.split(" | ")[0] for line in (ROOT / "art/MANIFEST").read_text().splitlines()
              if line and not line.startswith("#")}
    there = {str(path.relative_to(ROOT / "data")) for path in (ROOT / "data").rglob("*")
             if path.is_file() and ".cache" not in path.parts}
    if listed != there:
        raise Fault(f"data/ and art/MANIFEST disagree: {sorted(listed ^ there)}")
    return sorted(listed)


def stripped(program, strip):
    """The bytes of a program without symbols; refuses one that knows where it was built."""
    if not program.exists():
        raise Fault(f"{program} is not there; build it first")
    short = program.with_name(program.name + ".stripped")
    subprocess.run([strip, "-s", "-p", "-o", str(short), str(program)], check=True)
    content = short.read_bytes()
    short.unlink()
    if str(ROOT).encode() in content:
        raise Fault(f"{program} holds the path of the checkout")
    return content


def system_of(preset):
    return "windows" if preset.startswith("win") else "linux"


def manual_page(build):
    """Of the player; made by the build that runs here."""
    page = build / "release/man/larkfen-player.1.gz"
    if not page.exists():
        raise Fault(f"{page} is not there; build it first")
    return page.read_bytes()


def files(preset, ending, strip, build):
    """[(name, content, executable)] of one archive, in the order of their names."""
    system = system_of(preset)
    out = [(name + ending, stripped(build / preset / (target + ending), strip), True)
           for name, target, systems in PROGRAMS if system in systems]
    if system == "linux":
        out.append(("larkfen-player.1.gz", manual_page(build), False))
    out += [(name, text(PARTS / name, system), False) for name in TEXTS]
    hashes = frame_hashes.hash_list(ROOT / "tests/scenario/frames.txt.gz", VERSION)
    out += [("licences/ombrel.txt", text(ROOT / "LICENSE", system), False),
            ("frame-hashes.txt", hashes.encode("ascii"), False)]
    out += [(f"licences/{name}", text(PARTS / "licences" / name, system), False)
            for name in LICENCES[system]]
    out += [(f"data/{name}", (ROOT / "data" / name).read_bytes(), False) for name in data_files()]
    return sorted(out)


def web_files(build):
    """The same of the archive with the page: what tools/web_folder.py makes, and a readme."""
    program = build / "web/ombrel.wasm"
    if not program.exists():
        raise Fault(f"{program} is not there; build it first")
    out = web_folder.page_files(program)
    if str(ROOT).encode() in out["ombrel.wasm"]:
        raise Fault(f"{program} holds the path of the checkout")
    out["readme.txt"] = text(PARTS / "readme-web.txt", "web")
    return sorted((name, content, False) for name, content in out.items())


def zip_bytes(members):
    """A zip archive."""
    out = io.BytesIO()
    with zipfile.ZipFile(out, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name, content, executable in members:
            entry = zipfile.ZipInfo(FOLDER + name, time.gmtime(DATE)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3  # the modes are those of Unix
            entry.external_attr = (0o100755 if executable else 0o100644) << 16
            archive.writestr(entry, content, compresslevel=9)
    return out.getvalue()


def tar_bytes(members):
    """A compressed tar archive."""
    plain = io.BytesIO()
    with tarfile.open(fileobj=plain, mode="w", format=tarfile.USTAR_FORMAT) as archive:
        for name, content, executable in members:
            entry = tarfile.TarInfo(FOLDER + name)
            entry.size, entry.mtime = len(content), DATE
            entry.mode = 0o755 if executable else 0o644
            entry.uname = entry.gname = "root"
            archive.addfile(entry, io.BytesIO(content))
    return gzip.compress(plain.getvalue(), 9, mtime=DATE)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build",
                        help="the folder of the build folders")
    parser.add_argument("--out", type=pathlib.Path, default=ROOT / "build/package",
                        help="where the archives go")
    parser.add_argument("--no-build", action="store_true",
                        help="take the programs for other systems as they stand")
    options = parser.parse_args()
    options.out.mkdir(parents=True, exist_ok=True)
    try:
        if not options.no_build:
            subprocess.run([ROOT / "tools/arm64_sysroot.sh"], check=True)
        for preset in () if options.no_build else ("win32", "win64", "arm64"):
            for command in (["--preset", preset], ["--build", f"build/{preset}", "--target",
                                                   *(target for _, target, systems in PROGRAMS
                                                     if system_of(preset) in systems)]):
                subprocess.run(["cmake", *command], cwd=ROOT, check=True)
        if not options.no_build:
            subprocess.run(["cmake", "--workflow", "--preset", "web"], cwd=ROOT, check=True)
        contents = [(archive, files(preset, ending, strip, options.build))
                    for archive, preset, ending, strip in ARCHIVES]
        contents.append((WEB_ARCHIVE, web_files(options.build)))
        for archive, members in contents:
            content = zip_bytes(members) if archive.endswith(".zip") else tar_bytes(members)
            part = options.out / (archive + ".part")
            part.write_bytes(content)
            os.replace(part, options.out / archive)
            print(f"{options.out / archive}: {len(members)} files, {len(content)} bytes")
    except (Fault, web_folder.Fault, OSError, subprocess.CalledProcessError) as fault:
        print(f"error: {fault}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
