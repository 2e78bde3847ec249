"""Reads what a Windows program file says of itself: subsystem, imports, resources."""
import re
import struct
import subprocess

from wine_desk import expect

SYSTEM_DLLS = {"kernel32.dll", "user32.dll", "gdi32.dll", "ddraw.dll", "winmm.dll", "msvcrt.dll"}
ICON, ICON_GROUP, VERSION, MANIFEST = 3, 14, 16, 24
GRAPHICAL = 2


def imports(path):
    """{(dll, function)} in small letters for the dll, as objdump prints them."""
    text = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", str(path)], check=True,
                          stdout=subprocess.PIPE).stdout.decode()
    found, dll = set(), None
    for line in text.splitlines():
        name = re.search(r"DLL Name: (\S+)", line)
        entry = re.match(r"\t[0-9a-f]+\t +\d+ +(\S+)", line)
        if name:
            dll = name[1].lower()
        elif entry and dll:
            found.add((dll, entry[1]))
    return found


def sections(data):
    """(optional header, [(virtual address, size, file offset)])."""
    start = struct.unpack_from("<I", data, 0x3c)[0] + 4
    count, = struct.unpack_from("<H", data, start + 2)
    optional_size, = struct.unpack_from("<H", data, start + 16)
    optional = start + 20
    table = []
    for i in range(count):
        at = optional + optional_size + 40 * i
        size, address, _, offset = struct.unpack_from("<IIII", data, at + 8)
        table.append((address, size, offset))
    return optional, table


def resources(data):
    """{type number: [bytes of each]} of the resource tree."""
    optional, table = sections(data)
    wide = struct.unpack_from("<H", data, optional)[0] == 0x20b
    address, = struct.unpack_from("<I", data, optional + (112 if wide else 96) + 16)
    place = {a: o for a, _, o in table}
    expect(address in place, "no resources")
    root = place[address]
    found = {}

    def walk(at, kind):
        named, numbered = struct.unpack_from("<HH", data, root + at + 12)
        for i in range(named + numbered):
            key, to = struct.unpack_from("<II", data, root + at + 16 + 8 * i)
            if to >> 31:
                walk(to & 0x7fffffff, key if kind is None else kind)
            else:
                where, size = struct.unpack_from("<II", data, root + to)
                begin = where - address + root
                found.setdefault(kind, []).append(data[begin:begin + size])

    walk(0, None)
    return found


def check_program(path):
    """A graphical program with our resources that imports nothing but DLLs of the system."""
    data = path.read_bytes()
    optional, _ = sections(data)
    expect(struct.unpack_from("<H", data, optional + 68)[0] == GRAPHICAL, "not a graphical program")
    dlls = {dll for dll, _ in imports(path)}
    expect(dlls and dlls <= SYSTEM_DLLS, f"imports {sorted(dlls - SYSTEM_DLLS)}")
    expect("ddraw.dll" in dlls and "user32.dll" in dlls, f"imports only {sorted(dlls)}")
    parts = resources(data)
    expect(ICON_GROUP in parts and len(parts.get(ICON, [])) == 5, "no icon of five sizes")
    expect("Quellant".encode("utf-16-le") in parts.get(VERSION, [b""])[0], "no version")
    expect(b">true/pm</dpiAware>" in parts.get(MANIFEST, [b""])[0], "no manifest with DPI")


def check_imports(path):
    """It imports nothing but DLLs of the system."""
    dlls = {dll for dll, _ in imports(path)}
    expect(dlls and dlls <= SYSTEM_DLLS, f"imports {sorted(dlls - SYSTEM_DLLS)}")


def check_imports_listed(path, allowed):
    """Every imported function is one of the list."""
    listed = {tuple(line.split()) for line in allowed.read_text().splitlines()
              if not line.startswith("#")}
    surplus = imports(path) - listed
    expect(not surplus, f"not on the list of {allowed.name}: {sorted(surplus)}")
