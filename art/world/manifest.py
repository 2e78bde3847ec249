"""Writes art/MANIFEST: one line for each file of data/.  Usage: manifest.py DATA_FOLDER OUT"""
import pathlib
import sys

OURS = "MIT (Quellant)"
BAKED = {"gate", "tower", "causeway", "causeway-lit", "parasol-pole", "viaduct", "pavilion",
         "armillary", "basin",
         "hour-stone", "lamp", "stand", "pine", "islet", "reef", "spire", "boat", "lantern-ring"}
FIXED = {"sky-sphere-04", "sky-sphere-04-alpha0", "sky-sphere-04-alpha-s2", "stay-01",
         "ground-lowpoly-03", "ground-lowpoly-03-alpha", "light_debug", "sea"}


LIGHTS = {"garlands", "paper-boats", "signs", "traces", "beam"}


def entry(name):
    path = pathlib.PurePosixPath(name)
    if path.parent.name == "sfx":
        return ("art/music/compose.py, art/music/soundtrack.orc", "csound, lame", OURS)
    if path.name == "font-48.bmp":
        return ("art/world/fonts.py", "python3; font PT Serif Bold Italic (c) ParaType, package "
                "fonts-paratype", "picture: " + OURS + "; font: ParaType Free Font License")
    if path.name == "font-48-16px.bmp":
        return ("art/world/fonts.py", "python3; font DejaVu Sans Mono Bold, (c) Bitstream, changes "
                "public domain, package fonts-dejavu-core",
                "picture: " + OURS + "; font: Bitstream Vera license")
    if path.suffix == ".trk":
        return ("art/world/flights.py", "python3", OURS)
    if path.suffix == ".po":
        return ("art/world/layout.py", "python3", OURS)
    if path.suffix == ".cob":
        source = ("fixed.py" if path.stem in FIXED else
                  "lights.py" if path.stem in LIGHTS else "island.py"
                  if path.stem.startswith(("isle", "dial")) else "models.py")
        tool = "python3" + (", uv by blender" if path.stem in BAKED else "")
        return ("art/world/" + source, tool, OURS)
    if path.stem in BAKED:
        return ("art/world/models.py, art/world/bake.py", "blender (Cycles), python3", OURS)
    if path.stem.startswith(("isle", "dial")):
        return ("art/world/paint.py, art/world/bake.py", "python3, blender (Cycles)", OURS)
    return ("art/world/paint.py", "python3", OURS)


def main():
    data, out = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    lines = ["# file of data/ | source | author tool | licence"]
    for p in sorted(data.rglob("*")):
        if p.is_file() and not any(q.startswith(".") for q in p.relative_to(data).parts):
            name = p.relative_to(data).as_posix()
            lines.append(" | ".join((name,) + entry(name)))
    out.write_text("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
