#!/usr/bin/python3
"""Checks the habits of the source tree: who includes whom, where operating systems may be named,
and where state may live. Prints one line a fault, `file:line: what`, and exits 1 if there is any."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SRC = ROOT / "src"

# Folder: what its files may include, as path prefixes below src/ (its own folder always).
MAY_INCLUDE = {
    "base": [],
    "math": ["base/"],
    "assets": ["base/", "math/"],
    "scene": ["base/", "math/", "assets/", "lanes/"],
    "lanes": ["base/"],
    "raster": ["base/", "lanes/", "assets/texture.h", "scene/face_list.h"],
    "platform": ["base/"],
    "demo": ["base/", "math/", "assets/", "scene/", "raster/", "platform/*.h"],
    "player": ["base/", "math/", "assets/", "scene/", "raster/", "demo/", "platform/*.h"],
    "app": [""],
}
BACKENDS = ["win32", "sdl2", "offscreen", "web"]
SYSTEM_HEADERS = re.compile(
    r"windows\.h|mmsystem\.h|ddraw\.h|SDL|unistd\.h|signal\.h|sys/|dlfcn\.h|X11/|immintrin\.h|"
    r"[a-z]mmintrin\.h|x86intrin\.h|cpuid\.h|arm_neon\.h|shellapi\.h")


def folder_of(path):
    """The key of MAY_INCLUDE and the back end (or None) of a file below src/."""
    parts = path.relative_to(SRC).parts
    backend = parts[1] if parts[0] == "platform" and len(parts) > 2 else None
    return parts[0], backend


def allowed(path, included):
    """Whether the file may include this header of ours."""
    top, backend = folder_of(path)
    own = str(path.relative_to(SRC).parent) + "/"
    if included.startswith(own) or (top != "platform" and included.startswith(top + "/")):
        return True
    if top == "platform" and backend:
        shared = included.startswith("platform/") and included.count("/") == 1
        soft = included.startswith("platform/soft/")
        return included.startswith("base/") or shared or soft
    for prefix in MAY_INCLUDE[top]:
        if prefix == "platform/*.h":
            if included.startswith("platform/") and included.count("/") == 1:
                return True
        elif included.startswith(prefix):
            return not (top != "app" and included.startswith("app/"))
    return False


def may_name_system(path):
    """Whether the file may include headers of operating systems, SDL and vector instructions."""
    top, backend = folder_of(path)
    if top == "platform" and backend in BACKENDS:
        return True
    if top == "app" and path.name.startswith("entry_"):
        return True
    return top == "lanes"


def faults_of(path):
    """Yields (line number, what is wrong) for one source file."""
    depth_static = re.compile(r"^\s{4,}static\s+(?!_assert|cast|constexpr|[^=;]*\(.*\) \{)")
    for number, line in enumerate(path.read_text().splitlines(), 1):
        match = re.match(r'\s*#\s*include\s*(["<])([^">]+)[">]', line)
        if match:
            quote, header = match.groups()
            if quote == '"' and not allowed(path, header):
                yield number, f"may not include {header}"
            if SYSTEM_HEADERS.match(header) and not may_name_system(path):
                yield number, f"may not include the system header {header}"
        if re.search(r"#\s*if.*\b(_WIN32|__linux__|WIN32)\b", line) and not may_name_system(path):
            yield number, "asks for the operating system outside a back end"
        if path.suffix == ".cpp" and re.match(r"\s*extern\s+(?!\"C\")", line):
            yield number, "declares with extern in a .cpp file"
        if depth_static.match(line):
            yield number, "has a static variable inside a function"
        if len(line) > 100 and "clang-format off" not in path.read_text():
            yield number, "is longer than 100 columns"


def main():
    files = sorted(p for p in SRC.rglob("*") if p.suffix in (".h", ".cpp", ".inc"))
    count = 0
    for path in files:
        for number, what in faults_of(path):
            print(f"{path.relative_to(ROOT)}:{number}: {what}")
            count += 1
    print(f"{len(files)} files read, {count} faults")
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main())
