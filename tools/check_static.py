#!/usr/bin/python3
"""Runs clang-tidy (.clang-tidy) and cppcheck over src/ and tools/. Needs a native build folder with
compile_commands.json (default build/release). A file that was clean and has not changed since, nor
any header, is not looked at again. Prints what was found; the last line counts the files."""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TIDY = "clang-tidy-14"
CLEAN = ROOT / "build" / "static-checks"  # one empty file a clean source, named by its digest

# What cppcheck is not asked for, and why.
SUPPRESSED = [
    "useStlAlgorithm",  # a plain loop is often the shorter text
    "memsetClassFloat",  # all bits 0 is the number 0 on every system we build for
    "missingIncludeSystem",
    "preprocessorErrorDirective",  # an #error for processors nobody chose
    "constVariable:src/platform/win32/*",  # COM calls take no pointers to const
    "unusedStructMember",  # records of files and of the seam
    "*:src/lanes/*",  # vectors speak a language of their own; it reads them through raster
    "duplInheritedMember:src/raster/rules.h",  # a rule says again what it does otherwise
    "uninitMemberVar:src/base/cut_single.h",  # as float itself
    "noExplicitConstructor:src/base/cut_single.h",  # as float itself
    "incorrectLogicOperator:src/base/cut_single.h",  # it reads no hexadecimal floating numbers
]


def digest_of(entry, headers):
    """Names everything that can change what clang-tidy says of a source."""
    text = hashlib.sha256()
    text.update(headers)
    text.update(entry["command"].encode())
    text.update(pathlib.Path(entry["file"]).read_bytes())
    return text.hexdigest()


def all_headers():
    text = hashlib.sha256((ROOT / ".clang-tidy").read_bytes())
    for folder in ("src", "tools"):
        for path in sorted((ROOT / folder).rglob("*.h")):
            text.update(str(path.relative_to(ROOT)).encode() + path.read_bytes())
    return text.digest()


def tidy(entry, build, headers):
    """What clang-tidy finds in one source; empty for none."""
    mark = CLEAN / digest_of(entry, headers)
    if mark.exists():
        return ""
    result = subprocess.run([TIDY, "--quiet", "-p", str(build), entry["file"]], cwd=ROOT,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
    if result.returncode == 0:
        mark.touch()
        return ""
    return result.stdout or result.stderr or f"{entry['file']}: {TIDY} failed\n"


def cppcheck():
    """What cppcheck finds in all of src/ and tools/, whatever system a file is for."""
    result = subprocess.run(
        ["cppcheck", "--enable=warning,performance,portability,style", "--std=c++20", "--quiet",
         "--inline-suppr", "--error-exitcode=1", f"-j{os.cpu_count() or 1}", "-I", "src", "-I", "tools",
         "--template={file}:{line}: {message} [{id}]",
         "-i", "src/lanes", "-i", "src/scene/simd",
         *(f"--suppress={name}" for name in SUPPRESSED), "src", "tools"],
        cwd=ROOT, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
    return result.stderr if result.returncode != 0 else ""


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build" / "release").resolve()
    entries = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        # Vectors speak a language of their own; they are held to the plain code.
        if path.is_relative_to(ROOT / "src") or path.is_relative_to(ROOT / "tools"):
            if path.parent.name != "simd" and not path.stem.endswith(("_sse41", "_avx2", "_avx512")):
                entries[path] = entry
    CLEAN.mkdir(parents=True, exist_ok=True)
    headers = all_headers()
    with concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count() or 1) as pool:
        # The big ones first.
        files = sorted(entries.values(), key=lambda e: -os.path.getsize(e["file"]))
        found = list(pool.map(lambda e: tidy(e, build, headers), files))
    found = sorted({line for text in found for line in text.splitlines(keepends=True)
                    if ": error:" in line or ": warning:" in line or "failed" in line})
    found.append(cppcheck())
    text = "".join(found).replace(str(ROOT) + "/", "")
    sys.stdout.write(text)
    bad = text.count("\n")
    print(f"{len(entries)} sources, {bad} findings")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
