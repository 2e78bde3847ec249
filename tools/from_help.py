#!/usr/bin/python3
"""Makes the manual page and the bash completion of a program from what it says to --help, so that
both are written once.
  from_help.py man PROGRAM VERSION OUT.1.gz      a page of section 1, compressed
  from_help.py bash PROGRAM VERSION OUT          a completion file
What --help says must have this form: `Usage:` with the arguments, a line after it that says what
the program does, options as `  --name VALUE   what it does` with further lines below the text, and
at the end a paragraph that begins with `Exit code:`."""
import gzip
import os
import pathlib
import re
import subprocess
import sys

PROGRAMS = ("larkfen", "larkfen-capture", "larkfen-gallery", "larkfen-inspect", "larkfen-player")
OPTION = re.compile(r" {2}(-[^\s,]+)(?: ([A-Z][A-Za-z0-9.:=|]*))?(?: {2,}(\S.*))?")
ROW = re.compile(r"(\S+) {2,}(\S.*)")


class Fault(Exception):
    """Help that has not the form."""


def help_of(program):
    """The lines of --help."""
    done = subprocess.run([str(program), "--help"], stdout=subprocess.PIPE, check=True, timeout=20,
                          stdin=subprocess.DEVNULL)
    return done.stdout.decode("ascii").splitlines()


def paragraphs(lines):
    """Runs of lines between empty ones."""
    return [part.splitlines() for part in re.split(r"\n\n+", "\n".join(lines).strip("\n"))]


class Help:
    """What --help says, in parts."""

    def __init__(self, program):
        self.name = pathlib.Path(program).name
        parts = paragraphs(help_of(program))
        if not parts or not parts[0][0].startswith("Usage: " + self.name):
            raise Fault(f"{self.name} --help does not begin with its usage")
        self.usage = parts[0][0].removeprefix("Usage: ")
        first = parts[0][1:] or parts.pop(1)
        parts[0] = first
        self.summary = re.split(r"[.:](?:\s|$)", " ".join(line.strip() for line in first))[0]
        self.texts, self.exits = [], ""
        for part in parts:
            text, found, exits = "\n".join(part).partition("Exit code: ")
            if found:
                self.exits = " ".join(exits.split())
            if text and not OPTION.fullmatch(part[0]):
                self.texts.append(text.splitlines())
        self.options = []  # [(flag, value, [lines of text])]
        for part in parts:
            if OPTION.fullmatch(part[0]):
                for line in part:
                    match = OPTION.fullmatch(line)
                    if match:
                        self.options.append((match[1], match[2] or "",
                                             [match[3]] if match[3] else []))
                    else:
                        self.options[-1][2].append(line.strip())
        if not self.exits:
            raise Fault(f"{self.name} --help does not tell the `Exit code: `")


def roff(text):
    """A text that says the same to the formatter."""
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + text if text.startswith((".", "'")) else text


def option_text(lines):
    """The text after an option; rows of two columns stay rows."""
    out = []
    for line in lines:
        row = ROW.fullmatch(line)
        if row and len(lines) > 1 and re.fullmatch(r"[a-z][\w-]+", row[1]):
            out += [".br", f"\\fB{roff(row[1])}\\fR: {roff(row[2])}"]
        else:
            out.append(roff(line))
    return out


def manual(program, version):
    """The manual page."""
    said = Help(program)
    name = said.name
    page = [f'.TH {name.upper()} 1 "2026\\-05\\-01" "Ombrel {version}" "Ombrel"', ".SH NAME",
            f"{roff(name)} \\- {roff(said.summary[0].lower() + said.summary[1:])}",
            ".SH SYNOPSIS", f".B {roff(name)}",
            roff(said.usage.removeprefix(name).strip()) or ".", ".SH DESCRIPTION"]
    for i, part in enumerate(said.texts):
        page += [".PP"] if i else []
        for line in part:
            if line.startswith("    "):
                page += [".RS", ".nf", roff(line.strip()), ".fi", ".RE"]
            else:
                page.append(roff(line.strip()))
    if said.options:
        page.append(".SH OPTIONS")
    for flag, value, lines in said.options:
        page += [".TP", f"\\fB{roff(flag)}\\fR" + (f" \\fI{roff(value)}\\fR" if value else "")]
        page += option_text(lines)
    page += [".SH EXIT STATUS", roff(said.exits[0].upper() + said.exits[1:])]
    others = [other for other in PROGRAMS if other != name and
              (pathlib.Path(program).parent / other).exists()]
    if others:
        page.append(".SH SEE ALSO")
        page += [f".BR {roff(other)} (1)" + ("," if other != others[-1] else "")
                 for other in others]
    return "\n".join(page) + "\n"


BASH = """# Completion for {name}; made from its --help.
_{function}() {{
    local word=${{COMP_WORDS[COMP_CWORD]}} before=${{COMP_WORDS[COMP_CWORD - 1]}}
    local option=$before
    # "--name=value" comes as three words.
    [[ $word == = ]] && option=$before word=
    [[ $before == = ]] && option=${{COMP_WORDS[COMP_CWORD - 2]}}
    COMPREPLY=()
    case $option in
{cases}    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "{flags}" -- "$word")
        [[ ${{COMPREPLY[0]-}} == *= ]] && compopt -o nospace 2>/dev/null
    else
        compopt -o default 2>/dev/null
    fi
}}
complete -F _{function} {name}
"""


def completion(program):
    """The completion file."""
    said = Help(program)
    words = {}  # flag -> what may follow
    for flag, value, lines in said.options:
        if "=" in flag:  # a switch with its values in the text
            flag, sample = flag.split("=", 1)
            words[flag + "="] = [sample] + re.findall(r"\d+x\d+", " ".join(lines))
        else:
            rows = [row[1] for row in map(ROW.fullmatch, lines[1:]) if row]
            words[flag] = rows if value == "NAME" and rows else value
    cases = ""
    for flag, value in words.items():
        if isinstance(value, list):
            order = {"key": lambda v: int(v.split("x")[0])} if flag.endswith("=") else {}
            follow = f'compgen -W "{" ".join(sorted(value, **order))}"'
        elif value == "DIR":
            follow = "compgen -d"
        elif value.startswith(("FILE", "OUT")):
            follow = "compgen -f"
        elif value:
            follow = ""
        else:
            continue
        action = f'mapfile -t COMPREPLY < <({follow} -- "$word"); ' if follow else ""
        cases += f"        {flag.rstrip('=')}) {action}return ;;\n"
    return BASH.format(name=said.name, function=said.name.replace("-", "_"), cases=cases,
                       flags=" ".join(words))


def main():
    form, program, version, out = sys.argv[1:]
    try:
        if form == "man":
            content = gzip.compress(manual(program, version).encode("ascii"), 9, mtime=0)
        elif form == "bash":
            content = completion(program).encode("ascii")
        else:
            raise Fault(f"{form}: man or bash")
        part = pathlib.Path(out + ".part")
        part.parent.mkdir(parents=True, exist_ok=True)
        part.write_bytes(content)
        os.replace(part, out)
    except (Fault, OSError, subprocess.SubprocessError) as fault:
        print(f"error: {fault}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
