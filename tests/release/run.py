"""What `cmake --install` and the Debian package give: the files, programs that find their data, manual
pages, completion, the entry in the menu. Usage: run.py BUILD_FOLDER"""
import gzip
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PASSED, FAILED = [], []
VERSION = re.search(r"project\(ombrel VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1]


def check(name, good, what=""):
    """One test."""
    (PASSED if good else FAILED).append(name)
    print(f"ok     {name}" if good else f"FAILED {name}\n{what}", flush=True)


def run(*command, **more):
    """Exit code and everything said."""
    done = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, timeout=300,
                          check=False, **more)
    return done.returncode, done.stdout.decode("utf-8", "replace")


def as_root(*command):
    """As root, or as whom a package tool takes for it."""
    return command if os.geteuid() == 0 else ("fakeroot", *command)


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


def wanted_files(programs):
    """What must be installed, below the prefix."""
    data = [line.split(" | ")[0] for line in (ROOT / "art/MANIFEST").read_text().splitlines()
            if line and not line.startswith("#")]
    return {*(f"bin/{name}" for name in programs), *(f"share/ombrel/data/{name}" for name in data),
            *(f"share/man/man1/{name}.1.gz" for name in programs),
            *(f"share/bash-completion/completions/{name}" for name in programs),
            *(f"share/icons/hicolor/{size}x{size}/apps/larkfen.png"
              for size in (16, 32, 48, 64, 128, 256)),
            "share/ombrel/frame-hashes.txt", "share/applications/larkfen.desktop",
            "share/metainfo/org.quellant.ombrel.metainfo.xml", "share/doc/ombrel/copyright",
            "share/doc/ombrel/changelog.gz"}


def programs_run(prefix, programs, what):
    """Installed programs know their version and find their data and the list."""
    for name in programs:
        code, said = run(prefix / "bin" / name, "--version", cwd="/")
        check(f"{what}: {name} --version", (code, said) == (0, f"{name} {VERSION}\n"), said)
    code, said = run(prefix / "bin/larkfen-capture", "--verify", "--frames", "0:12", cwd="/")
    check(f"{what}: frames as published", code == 0 and "12 of 12 frames as published (" in said,
          said)
    code, said = run(prefix / "bin/larkfen-inspect", prefix / "share/ombrel/data/cam", cwd="/")
    check(f"{what}: the inspector reads the installed data", "scene1.trk" in said, said)


def list_tests(build, prefix, work):
    """The list of hashes is the stored frames, and one wrong digit is found."""
    published = prefix / "share/ombrel/frame-hashes.txt"
    lines = [line for line in published.read_text("ascii").splitlines() if line[0] != "#"]
    with gzip.open(ROOT / "tests/scenario/frames.txt.gz", "rt") as file:
        stored = [line.split() for line in file]
    check("the list holds every stored frame", [line.split()[1::2] for line in lines] ==
          [[words[1], words[9]] for words in stored])
    capture = build / "larkfen-capture"
    doctored = work / "doctored.txt"
    digit = "1" if lines[7][-1] == "0" else "0"
    doctored.write_text("\n".join(lines[:7] + [lines[7][:-1] + digit] + lines[8:]) + "\n")
    code, said = run(capture, "--verify", "--frames", "0:12", "--hashes-file", doctored)
    seen, told = lines[7].split()[-1], lines[7].split()[-1][:-1] + digit
    check("a doctored list is found out", code == 1 and
          "11 of 12 frames as published; frame 7 is the first that differs: "
          f"hash {seen}, published {told} (" in said and ", path " in said, said)
    for path in ("scalar", "sse"):
        code, said = run(capture, "--verify", "--frames", "0:3",
                         env={**os.environ, "RASTER_USE": path})
        check(f"path {path} is named", code == 0 and f", path {path})" in said, said)
    for name, text, what in (("short", "\n".join(lines[:5]) + "\n", "ends with frame 4, "),
                             ("other words", "frame one hash 0\n", ":1: here \"frame 0 hash"),
                             ("gap of order", lines[3] + "\n" + lines[2] + "\n", ":2: here"),
                             ("empty", "", "holds none of the frames")):
        doctored.write_text(text)
        code, said = run(capture, "--verify", "--hashes-file", doctored)
        check(f"list: {name}", code == 2 and what in said, said)
    code, said = run(capture, "--verify", "--hashes-file", work / "absent.txt")
    check("list: missing", code == 2 and "absent.txt: No such file" in said, said)
    for words in (["-resolution=320x240"], ["--switch", "blur=1"]):
        code, said = run(capture, "--verify", *words)
        check(f"--verify {' '.join(words)} is refused", code == 2 and "--verify: " in said, said)
    code, said = run(capture, "-w", "-resolution=320x240", "--frames", "0:4", "--hashes",
                     work / "small.txt")
    code, said = run(capture, "-resolution=320x240", "--frames", "0:4", "--verify", "--hashes-file",
                     work / "small.txt")
    check("a list of --hashes serves too", code == 0 and "4 of 4 frames" in said, said)


def page_tests(build, prefix, programs):
    """Manual pages say all that --help says, and the formatter finds no fault with them."""
    for name in programs:
        text = gzip.decompress((prefix / f"share/man/man1/{name}.1.gz").read_bytes())
        done = subprocess.run(["groff", "-man", "-ww", "-b", "-z", "-Tascii"], input=text,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        check(f"{name}.1 is well formed", done.returncode == 0 and not done.stdout, done.stdout)
        shown = subprocess.run(["groff", "-man", "-Tascii", "-P-cbou", "-rLL=500n"], input=text,
                               stdout=subprocess.PIPE, check=True).stdout.decode()
        _, told = run(build / name, "--help")
        words = set(re.findall(r"[\w=.:/-]+", told)) - {"Usage:", "Exit", "code:", name}
        shown_words = set(re.findall(r"[\w=.:/-]+", shown))
        lost = {word for word in words if word not in shown_words
                and word.rstrip(":.") not in {s.rstrip(":.") for s in shown_words}
                and word.capitalize() not in shown_words}
        check(f"{name}.1 says what --help says", not lost, str(sorted(lost)))


COMPLETE = """
source "$1"; COMP_WORDS=("${@:2}"); COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
compopt() { :; }
"_${2//-/_}"; printf '%s\\n' "${COMPREPLY[@]}"
"""


def completion_tests(prefix, programs, work):
    """What Tab gives."""
    (work / "folder").mkdir()
    (work / "file.png").write_text("")

    def offered(name, *words):
        place = prefix / f"share/bash-completion/completions/{name}"
        code, said = run("bash", "-c", COMPLETE, "bash", place, name, *words, cwd=work)
        return sorted(said.split()) if code == 0 else said
    for name in programs:
        got = offered(name, "--ver")
        want = ["--verify", "--version"] if name == "larkfen-capture" else ["--version"]
        check(f"{name} --ver<Tab>", got == want, got)
    for words, want in ((("--da",), ["--data"]), (("--data", "fo"), ["folder"]),
                        (("--data", "=", "fo"), ["folder"]), (("--hashes", "fi"), ["file.png"]),
                        (("--png", "f"), ["folder"]), (("--scale", ""), []),
                        (("--look", "dep"), ["depth"])):
        got = offered("larkfen-capture", *words)
        check(f"larkfen-capture {' '.join(words)}<Tab>", got == want, got)
    if "larkfen" in programs:
        got = offered("larkfen", "-resolution", "=", "6")
        check("larkfen -resolution=6<Tab>", got == ["640x480"], got)


def desktop_tests(prefix):
    """The validators of the desktops."""
    code, said = run("desktop-file-validate", prefix / "share/applications/larkfen.desktop")
    check("desktop-file-validate", code == 0 and not said, said)
    path = prefix / "share/metainfo/org.quellant.ombrel.metainfo.xml"
    code, said = run("appstreamcli", "validate", "--no-net", "--pedantic", path)
    check("appstreamcli validate", code == 0, said)
    check("the metainfo has the version", f'version="{VERSION}"' in path.read_text("utf-8"))
    for size in (16, 256):
        raw = (prefix / f"share/icons/hicolor/{size}x{size}/apps/larkfen.png").read_bytes()
        check(f"icon of {size} pixels", raw[16:24] == size.to_bytes(4, "big") * 2)


def package_tests(build, programs, work):
    """The Debian package: lintian, then into an empty root, played and removed."""
    code, said = run("cpack", "--config", build / "CPackConfig.cmake", "-B", work / "deb",
                     env={**os.environ, "SOURCE_DATE_EPOCH": "1777636800"}, cwd=work)
    packages = list((work / "deb").glob("*.deb"))
    check("a package is made", code == 0 and len(packages) == 1 and
          packages[0].name.startswith(f"ombrel_{VERSION}_"), said)
    if len(packages) != 1:
        return
    code, said = run("lintian", "--fail-on", "error,warning", "--allow-root", packages[0])
    check("lintian", code == 0 and not re.search(r"^[EW]:", said, re.M), said)
    root = work / "root"
    (root / "var/lib/dpkg/info").mkdir(parents=True)
    (root / "var/lib/dpkg/updates").mkdir()
    (root / "var/lib/dpkg/status").write_text("")
    before = files_below(root)
    dpkg = as_root("dpkg", f"--root={root}", "--force-depends", "--force-not-root",
                   "--force-bad-path", "--log=/dev/null")
    code, said = run(*dpkg, "--install", packages[0])
    check("dpkg --install", code == 0, said)
    check("the package holds what is installed", {name.removeprefix("usr/") for name in files_below(
        root) if name.startswith("usr/")} == wanted_files(programs))
    programs_run(root / "usr", programs, "package")
    code, said = run(*dpkg, "--remove", "ombrel")
    left = files_below(root) - before
    check("dpkg --remove leaves nothing", code == 0 and not (root / "usr").exists() and
          all(name.startswith("var/lib/dpkg/") for name in left), f"{said} {sorted(left)}")


def version_tests():
    """The version stands in one place."""
    said_again = []
    for folder in ("src", "tools", "cmake", "tests"):
        for path in (ROOT / folder).rglob("*"):
            if path.suffix in {".h", ".cpp", ".py", ".cmake", ".in", ".rc", ".manifest", ".txt",
                               ".desktop", ".diz", ".nfo", ".sh"}:
                for number, line in enumerate(path.read_text("utf-8", "replace").splitlines(), 1):
                    comment = "//" in line.split(VERSION)[0] if VERSION in line else True
                    if not comment:
                        said_again.append(f"{path.relative_to(ROOT)}:{number}: {line.strip()}")
    check("no file but CMakeLists.txt states the version", not said_again, "\n".join(said_again))


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    work = pathlib.Path(tempfile.mkdtemp(prefix="ombrel-release-"))
    programs = [name for name in ("larkfen", "larkfen-capture", "larkfen-gallery", "larkfen-inspect",
                                  "larkfen-player") if (build / name).exists()]
    try:
        prefix = work / "prefix"
        code, said = run("cmake", "--install", build, "--prefix", prefix)
        check("cmake --install", code == 0, said)
        got, wanted = files_below(prefix), wanted_files(programs)
        check("exactly the files that ship are installed", got == wanted, sorted(got ^ wanted))
        programs_run(prefix, programs, "installed")
        list_tests(build, prefix, work)
        page_tests(build, prefix, programs)
        completion_tests(prefix, programs, work)
        desktop_tests(prefix)
        package_tests(build, programs, work)
        version_tests()
    finally:
        shutil.rmtree(work)
    print(f"{len(PASSED)} passed, {len(FAILED)} failed")
    return 1 if FAILED else 0


if __name__ == "__main__":
    sys.exit(main())
