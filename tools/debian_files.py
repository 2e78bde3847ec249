#!/usr/bin/python3
"""Writes `copyright` and `changelog.gz` of the Debian package from LICENSE, tools/package/licences and
CHANGELOG.md into a folder. Usage: debian_files.py FOLDER CONTACT"""
import datetime
import gzip
import pathlib
import re
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parent.parent
RULE = "\n" + "-" * 77 + "\n\n"


def copyright_text():
    """Our licence, and those of what is drawn with or linked in."""
    texts = ["Ombrel, programs and data, by Quellant, under the terms of the MIT license:\n\n" +
             (ROOT / "LICENSE").read_text("utf-8")]
    texts += [path.read_text("utf-8") for path in sorted((ROOT / "tools/package/licences").iterdir())
              if "mingw" not in path.name]
    texts.append("On Debian systems the GNU Library General Public License, version 2, is in\n"
                 "/usr/share/common-licenses/LGPL-2.\n")
    return RULE.join(texts)


def changelog(contact):
    """The changes in the form of the Debian changelog, newest version first."""
    out = ""
    sections = re.split(r"^## ", (ROOT / "CHANGELOG.md").read_text("utf-8"), flags=re.M)[1:]
    for section in sections:
        head, _, body = section.partition("\n")
        version, day = head.split(", ")
        noon = datetime.datetime.fromisoformat(day + "T12:00:00+00:00")
        out += f"ombrel ({version}) unstable; urgency=low\n\n"
        for item in re.split(r"^- ", body, flags=re.M)[1:]:
            out += textwrap.fill(" ".join(item.replace("`", "").split()), 78,
                                 initial_indent="  * ", subsequent_indent="    ") + "\n"
        out += f"\n -- {contact}  {noon:%a, %d %b %Y %H:%M:%S +0000}\n\n"
    return out


def main():
    folder, contact = pathlib.Path(sys.argv[1]), sys.argv[2]
    (folder / "copyright").write_text(copyright_text(), "utf-8")
    (folder / "changelog.gz").write_bytes(
        gzip.compress(changelog(contact).encode("utf-8"), 9, mtime=0))


if __name__ == "__main__":
    main()
