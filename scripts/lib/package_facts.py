"""What the scripts about modules and packages share: the project's name, version and texts, and what Windows sees of a
module."""
import pathlib
import re
import struct
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
# The library that a module built against the headless host imports, and one built for the CAD program does not.
HEADLESS_HOST = "TintoraHost.dll"


def project():
    """The values that templates name, from the places that have them."""
    text = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
    found = re.search(r'^project\((\w+)\n  VERSION ([\d.]+)\n  DESCRIPTION "([^"]+)"$', text, re.MULTILINE)
    values = dict(zip(("PROJECT_NAME", "PROJECT_VERSION", "PROJECT_DESCRIPTION"), found.groups()))
    for name in ("TINTORA_AUTHOR", "LIBRARY_BUILDER_DESCRIPTION"):
        values[name] = re.search(rf'^set\({name}\s+"([^"]+)"\)$', text, re.MULTILINE).group(1)
    return values


# The machine in the header of a module for 64-bit Windows.
AMD64 = 0x8664


def machine_of(content):
    """The machine that the header in the content of a Windows module names."""
    header = struct.unpack_from("<I", content, 0x3C)[0]
    return struct.unpack_from("<4xH", content, header)[0]


class Module:
    """Exports (sorted), imported libraries and loader flags of a Windows module, by their names."""

    def __init__(self, file):
        command = ["x86_64-w64-mingw32-objdump", "-p", str(file)]
        facts = subprocess.run(command, check=True, capture_output=True, text=True).stdout
        table = re.search(r"\[Ordinal/Name Pointer\] Table.*\n((?:\s*\[.*\n)*)", facts)
        self.exports = sorted(re.findall(r"\S+$", table.group(1), re.MULTILINE)) if table else []
        self.imports = re.findall(r"^\s*DLL Name: (\S+)$", facts, re.MULTILINE)
        self.flags = set(re.findall(r"^\s+([A-Z_]+)$", facts, re.MULTILINE))
        self.is_headless = HEADLESS_HOST in self.imports
