#!/usr/bin/python3
"""Makes the release: ombrel-win32.zip, ombrel-win64.zip and ombrel-linux.tar.gz from built programs.
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

ROOT = pathlib.Path(__file__).resolve().parent.parent
PARTS = ROOT / "tools/package"
DATE = 1777636800  # of every file in the archives: the first of May 2026, noon

# Archive          | preset    | program       | strip                      | folder
ARCHIVES = [
    ("ombrel-win32.zip",    "win32",   "larkfen.exe", "i686-w64-mingw32-strip",   ""),
    ("ombrel-win64.zip",    "win64",   "larkfen.exe", "x86_64-w64-mingw32-strip", ""),
    ("ombrel-linux.tar.gz", "release", "larkfen",     "strip",                    "ombrel/"),
]
LICENCES = {"windows": ["fonts.txt", "mingw-w64.txt"],
            "linux": ["fonts.txt", "lame.txt", "sdl.txt"]}


class Fault(Exception):
    """Why no archive can be made."""


def text(path, system):
    """A text of ours as one system shows it: its own paragraphs, its own line ends."""
    whole = path.read_text(encoding="ascii" if path.suffix == ".diz" else "utf-8")
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


def files(preset, program, strip, build):
    """[(name, content, executable)] of one archive, in the order of their names."""
    system = "linux" if preset == "release" else "windows"
    out = [(program, stripped(build / preset / program, strip), True),
           ("readme.txt", text(PARTS / "readme.txt", system), False),
           ("file_id.diz", text(PARTS / "file_id.diz", system), False),
           ("licences/ombrel.txt", text(ROOT / "LICENSE", system), False)]
    out += [(f"licences/{name}", text(PARTS / "licences" / name, system), False)
            for name in LICENCES[system]]
    out += [(f"data/{name}", (ROOT / "data" / name).read_bytes(), False) for name in data_files()]
    return sorted(out)


def zip_bytes(members):
    """A zip archive."""
    out = io.BytesIO()
    with zipfile.ZipFile(out, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name, content, executable in members:
            entry = zipfile.ZipInfo(name, time.gmtime(DATE)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3  # the modes are those of Unix
            entry.external_attr = (0o100755 if executable else 0o100644) << 16
            archive.writestr(entry, content, compresslevel=9)
    return out.getvalue()


def tar_bytes(members, folder):
    """A compressed tar archive, everything in one folder of its own."""
    plain = io.BytesIO()
    with tarfile.open(fileobj=plain, mode="w", format=tarfile.USTAR_FORMAT) as archive:
        for name, content, executable in members:
            entry = tarfile.TarInfo(folder + name)
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
                        help="take the Windows programs as they stand")
    options = parser.parse_args()
    options.out.mkdir(parents=True, exist_ok=True)
    try:
        for preset in () if options.no_build else ("win32", "win64"):
            for command in (["--preset", preset], ["--build", f"build/{preset}", "--target", "larkfen"]):
                subprocess.run(["cmake", *command], cwd=ROOT, check=True)
        for archive, preset, program, strip, folder in ARCHIVES:
            members = files(preset, program, strip, options.build)
            content = tar_bytes(members, folder) if folder else zip_bytes(members)
            part = options.out / (archive + ".part")
            part.write_bytes(content)
            os.replace(part, options.out / archive)
            print(f"{options.out / archive}: {len(members)} files, {len(content)} bytes")
    except (Fault, OSError, subprocess.CalledProcessError) as fault:
        print(f"error: {fault}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
